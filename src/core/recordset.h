// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of a query.
#pragma once

#include "core/conexion.h"

#include <QDate>
#include <QVariant>

#include <array>
#include <string_view>
#include <vector>

/// The rows of a query, walked once from the first. Columns are found by their name,
/// without regard to case, or by position.
class Recordset
{
public:
    Recordset(Conexion& cn, const QString& sql);
    ~Recordset();
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    [[nodiscard]] bool eof() const { return eof_; }
    void siguiente();

    [[nodiscard]] int columnas() const;
    [[nodiscard]] QString nombre(int columna) const;
    [[nodiscard]] int columna(const char* nombre) const;

    [[nodiscard]] bool nulo(int columna) const;
    [[nodiscard]] QString texto(int columna) const;
    /// The text as the engine holds it, or an integer as one, in UTF-8, until the next row.
    [[nodiscard]] std::string_view utf8(int columna) const;
    [[nodiscard]] double real(int columna) const;
    [[nodiscard]] qint64 entero(int columna) const;
    [[nodiscard]] QVariant valor(int columna) const;

    [[nodiscard]] bool nulo(const char* n) const { return nulo(columna(n)); }
    /// A null reads as the empty text.
    [[nodiscard]] QString texto(const char* n) const { return texto(columna(n)); }
    [[nodiscard]] double real(const char* n) const { return real(columna(n)); }
    [[nodiscard]] qint64 entero(const char* n) const { return entero(columna(n)); }
    [[nodiscard]] bool logico(const char* n) const { return entero(columna(n)) != 0; }
    /// Invalid for a null.
    [[nodiscard]] QVariant valor(const char* n) const { return valor(columna(n)); }
    /// The date stored as 'YYYY-MM-DD'; invalid for a null.
    [[nodiscard]] QDate fecha(const char* n) const;

    [[nodiscard]] sqlite3_stmt* nativa() const { return sentencia_; }

private:
    Conexion& cn_;
    QString sql_;
    sqlite3_stmt* sentencia_ = nullptr;
    bool eof_ = false;
    mutable std::vector<std::array<char, 24>> enteros_;  // the integers of this row as texts
};
