// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/imagen.h"

#include "core/recordset.h"

#include <sqlcipher/sqlite3.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 BLOQUE = 1 << 20;

}  // namespace

Imagen::Imagen(Conexion& cn) : cn_(cn)
{
    if (cn_.transacciones() > 0)
        throw ErrorAlmacen(SQLITE_MISUSE, u"Hay una operación sin terminar."_s);
    cn_.ejecutar(u"begin"_s);
    try {
        // The transaction begins with its first read, which also undoes what a crash left half done.
        const Recordset primera(cn_, u"select count(*) from sqlite_master"_s);
        sqlite3_file* archivo = cn_.archivo();
        sqlite3_int64 bytes = 0;
        if (archivo->pMethods->xFileSize(archivo, &bytes) != SQLITE_OK)
            throw ErrorAlmacen(SQLITE_IOERR_FSTAT, "xFileSize");
        bytes_ = bytes;
    } catch (...) {
        cn_.deshacerTodo();
        throw;
    }
}

Imagen::~Imagen()
{
    cn_.deshacerTodo();
}

QByteArray Imagen::leer(qint64 desde, qint64 cuantos) const
{
    QByteArray bloque(std::max<qint64>(std::min(cuantos, bytes_ - desde), 0), Qt::Uninitialized);
    sqlite3_file* archivo = cn_.archivo();
    const int rc = archivo->pMethods->xRead(archivo, bloque.data(), int(bloque.size()), desde);
    if (rc != SQLITE_OK)
        throw ErrorAlmacen(rc, "xRead");
    return bloque;
}

void Imagen::recorrer(const std::function<void(const QByteArray& bloque)>& ver) const
{
    for (qint64 desde = 0; desde < bytes_; desde += BLOQUE)
        ver(leer(desde, BLOQUE));
}
