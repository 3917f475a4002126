// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/comando.h"

#include <sqlcipher/sqlite3.h>

using namespace Qt::StringLiterals;

Comando::Comando(Conexion& cn, const QString& sql) : cn_(cn), sql_(sql), sentencia_(cn.prestar(sql)) {}

Comando::~Comando()
{
    cn_.devolver(sql_, sentencia_);
}

void Comando::parametro(const char* nombre, const QString& valor, int ancho)
{
    if (ancho > 0 && valor.size() > ancho)
        throw ErrorAlmacen(SQLITE_TOOBIG,
                           u"El valor de %1 excede los %2 caracteres"_s.arg(QLatin1String(nombre)).arg(ancho));
    const QByteArray utf8 = valor.toUtf8();
    sqlite3_bind_text(sentencia_, siguiente_++, utf8.constData(), int(utf8.size()), SQLITE_TRANSIENT);
}

void Comando::parametro(const char* nombre, const QDate& valor)
{
    parametro(nombre, valor.toString(Qt::ISODate));
}

void Comando::parametro(const char*, double valor)
{
    sqlite3_bind_double(sentencia_, siguiente_++, valor);
}

void Comando::parametro(const char*, qint64 valor)
{
    sqlite3_bind_int64(sentencia_, siguiente_++, valor);
}

void Comando::nulo()
{
    sqlite3_bind_null(sentencia_, siguiente_++);
}

void Comando::parametro(const char* nombre, const QVariant& valor, int ancho)
{
    switch (valor.typeId()) {
    case QMetaType::UnknownType: return nulo();
    case QMetaType::QString: return parametro(nombre, valor.toString(), ancho);
    case QMetaType::QDate: return parametro(nombre, valor.toDate());
    case QMetaType::Double: return parametro(nombre, valor.toDouble());
    default: parametro(nombre, valor.toLongLong());
    }
}

int Comando::ejecutar()
{
    const int rc = sqlite3_step(sentencia_);
    siguiente_ = 1;
    if (rc != SQLITE_DONE && rc != SQLITE_ROW) {
        const ErrorAlmacen error = cn_.falla();
        sqlite3_reset(sentencia_);
        throw error;
    }
    sqlite3_reset(sentencia_);
    return sqlite3_changes(cn_.base_);
}
