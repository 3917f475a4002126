// SPDX-License-Identifier: GPL-3.0-or-later
// A statement with parameters.
#pragma once

#include "core/conexion.h"

#include <QDate>
#include <QVariant>

/// One statement with positional parameters.
class Comando
{
public:
    Comando(Conexion& cn, const QString& sql);
    ~Comando();
    Comando(const Comando&) = delete;
    Comando& operator=(const Comando&) = delete;

    /// Appends the next parameter. A text above `ancho` characters (0 is without limit) throws ErrorAlmacen, as the
    /// store would cut it.
    void parametro(const char* nombre, const QString& valor, int ancho = 0);
    /// A day, as 'YYYY-MM-DD'.
    void parametro(const char* nombre, const QDate& valor);
    void parametro(const char* nombre, double valor);
    void parametro(const char* nombre, qint64 valor);
    void parametro(const char* nombre, int valor) { parametro(nombre, qint64(valor)); }
    void nulo();
    /// A value of any of these kinds; an invalid one is a null.
    void parametro(const char* nombre, const QVariant& valor, int ancho = 0);
    /// Runs the statement; gives the rows affected.
    int ejecutar();

private:
    Conexion& cn_;
    QString sql_;
    sqlite3_stmt* sentencia_;
    int siguiente_ = 1;
};
