// SPDX-License-Identifier: GPL-3.0-or-later
// The return file as it is written: bytes and integrity code in blocks.
#pragma once

#include "filing/codificacion.h"
#include "filing/codigo_integridad.h"

class ArchivoNuevo;

/// Takes records one by one; memory does not grow with them. What can't be written throws ErrorDisco.
class SalidaArchivo
{
public:
    explicit SalidaArchivo(ArchivoNuevo& archivo) : archivo_(archivo) {}

    /// Where the next record is appended.
    Piezas& empezarRegistro() { return bloque_; }
    /// Ends the record that was appended to the block.
    void terminarRegistro(bool saltoEnCodigo);
    /// Writes what is left and closes; gives the integrity code.
    QString cerrar();

private:
    void volcar();

    ArchivoNuevo& archivo_;
    CodigoIntegridad codigo_;
    Piezas bloque_;
};
