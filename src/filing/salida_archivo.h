// SPDX-License-Identifier: GPL-3.0-or-later
// The return file as it is written: bytes and integrity code in blocks.
#pragma once

#include "filing/codificacion.h"
#include "filing/codigo_integridad.h"

#include <QFile>

/// Takes records one by one; memory does not grow with them. What can't be written throws
/// std::runtime_error with the file's name and the system's reason.
class SalidaArchivo
{
public:
    explicit SalidaArchivo(const QString& ruta) : archivo_(ruta) {}

    /// False when the file can't be made; an earlier one is replaced.
    [[nodiscard]] bool crear();
    /// Where the next record is appended.
    Piezas& empezarRegistro();
    /// Takes back what was appended of a record that can't be ended.
    void descartarRegistro();
    /// Ends the record that was appended to the block.
    void terminarRegistro(bool saltoEnCodigo);
    void volcar();
    /// Writes what is left; gives the integrity code.
    QString cerrar();

private:
    [[noreturn]] void fallar() const;

    QFile archivo_;
    CodigoIntegridad codigo_;
    Piezas bloque_;
    size_t inicioArchivo_ = 0;
    size_t inicioCodigo_ = 0;
};
