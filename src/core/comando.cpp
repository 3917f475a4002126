// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/comando.h"

#include <QDate>

#include <sqlcipher/sqlite3.h>

using namespace Qt::StringLiterals;

Comando::Comando(Conexion& cn, const QString& sql) : cn_(cn), sql_(sql), sentencia_(cn.prestar(sql)) {}

Comando::~Comando()
{
    cn_.devolver(sql_, sentencia_);
}

void Comando::parametro(const char* nombre, const QVariant& valor, int ancho)
{
    const int n = siguiente_++;
    switch (valor.typeId()) {
    case QMetaType::UnknownType: sqlite3_bind_null(sentencia_, n); return;
    case QMetaType::QString: {
        const QString texto = valor.toString();
        if (ancho > 0 && texto.size() > ancho)
            throw ErrorAlmacen(SQLITE_TOOBIG,
                               u"El valor de %1 excede los %2 caracteres"_s.arg(QLatin1String(nombre)).arg(ancho));
        const QByteArray utf8 = texto.toUtf8();
        sqlite3_bind_text(sentencia_, n, utf8.constData(), int(utf8.size()), SQLITE_TRANSIENT);
        return;
    }
    case QMetaType::QDate: {
        const QByteArray iso = valor.toDate().toString(Qt::ISODate).toUtf8();
        sqlite3_bind_text(sentencia_, n, iso.constData(), int(iso.size()), SQLITE_TRANSIENT);
        return;
    }
    case QMetaType::Double: sqlite3_bind_double(sentencia_, n, valor.toDouble()); return;
    default: sqlite3_bind_int64(sentencia_, n, valor.toLongLong());
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
