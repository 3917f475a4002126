// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/recordset.h"

#include <sqlcipher/sqlite3.h>

#include <charconv>

using namespace Qt::StringLiterals;

Recordset::Recordset(Conexion& cn, const QString& sql) : cn_(cn), sql_(sql), sentencia_(cn.prestar(sql))
{
    try {
        siguiente();
    } catch (...) {
        sqlite3_finalize(sentencia_);
        throw;
    }
}

Recordset::~Recordset()
{
    cn_.devolver(sql_, sentencia_);
}

void Recordset::siguiente()
{
    const int rc = cn_.paso(sentencia_);
    if (rc != SQLITE_ROW && rc != SQLITE_DONE)
        cn_.fallar();
    eof_ = rc == SQLITE_DONE;
}

int Recordset::columnas() const
{
    return sqlite3_column_count(sentencia_);
}

QString Recordset::nombre(int columna) const
{
    return QString::fromUtf8(sqlite3_column_name(sentencia_, columna));
}

int Recordset::columna(const char* nombre) const
{
    for (int i = 0; i < columnas(); ++i)
        if (qstricmp(sqlite3_column_name(sentencia_, i), nombre) == 0)
            return i;
    throw ErrorAlmacen(SQLITE_RANGE, u"No existe la columna %1"_s.arg(QLatin1String(nombre)));
}

bool Recordset::nulo(int columna) const
{
    return sqlite3_column_type(sentencia_, columna) == SQLITE_NULL;
}

std::string_view Recordset::utf8(int columna) const
{
    sqlite3_value* valor = sqlite3_column_value(sentencia_, columna);
    // The engine writes a number by a general formatter, in new memory: lists have thousands of them.
    if (sqlite3_value_type(valor) == SQLITE_INTEGER) {
        enteros_.resize(size_t(columnas()));
        auto& cifras = enteros_[size_t(columna)];
        const auto fin = std::to_chars(cifras.begin(), cifras.end(), sqlite3_value_int64(valor)).ptr;
        return {cifras.begin(), fin};
    }
    const auto* texto = reinterpret_cast<const char*>(sqlite3_value_text(valor));
    return texto ? std::string_view(texto, size_t(sqlite3_value_bytes(valor))) : std::string_view();
}

QString Recordset::texto(int columna) const
{
    const std::string_view t = utf8(columna);
    return QString::fromUtf8(t.data(), qsizetype(t.size()));
}

double Recordset::real(int columna) const
{
    return sqlite3_column_double(sentencia_, columna);
}

qint64 Recordset::entero(int columna) const
{
    return sqlite3_column_int64(sentencia_, columna);
}

QVariant Recordset::valor(int columna) const
{
    switch (sqlite3_column_type(sentencia_, columna)) {
    case SQLITE_NULL: return {};
    case SQLITE_INTEGER: return entero(columna);
    case SQLITE_FLOAT: return real(columna);
    default: return texto(columna);
    }
}

QDate Recordset::fecha(const char* n) const
{
    return QDate::fromString(texto(n).left(10), Qt::ISODate);
}
