// SPDX-License-Identifier: GPL-3.0-or-later
// One row of the store as one record of the return file.
#pragma once

#include "filing/codificacion.h"
#include "tree/registros.h"

#include <stdexcept>
#include <vector>

struct sqlite3_stmt;

/// A value that its field can't take. The text tells which record, deed, field and value.
class ErrorRegistro : public std::runtime_error
{
public:
    ErrorRegistro(const QString& registro_, int renglon_, const QString& detalle_);
    QString registro;
    int renglon;  ///< SEDD_ID of the row, 0 for the header
    QString detalle;
};

/// A value of a row that its field can't take.
struct ValorQueNoEntra
{
    const char* campo = nullptr;
    qsizetype largo = 0;  ///< characters that it has; 0 for a null where a value must stand
    int ancho = 0;        ///< and that the field takes
};

/// Writes the rows of one statement; the places of the columns are found once.
class EscritorRegistro
{
public:
    EscritorRegistro(const Registro& registro, sqlite3_stmt* sentencia);

    /// Appends the record of the current row, without its line end. Throws ErrorRegistro.
    void escribir(Piezas& salida) const;
    /// What of the current row would stop `escribir`, all of it.
    [[nodiscard]] std::vector<ValorQueNoEntra> revisar() const;

private:
    void campo(const CampoRegistro& c, int columna, Piezas& salida) const;
    void rellenar(const CampoRegistro& c, std::string_view texto, qsizetype cuentan, Piezas& salida) const;
    [[nodiscard]] bool vale(const CampoRegistro& c, int columna) const;
    [[noreturn]] void fallar(const CampoRegistro& c, const QString& motivo) const;

    const Registro& registro_;
    sqlite3_stmt* sentencia_;
    std::vector<int> columnas_;
    int columnaRenglon_ = -1;
    int columnaAlcanzado_ = -1;
    int columnaMotivo_ = -1;
};
