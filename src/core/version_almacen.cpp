// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/version_almacen.h"

#include "core/recordset.h"

#include <sqlcipher/sqlite3.h>

using namespace Qt::StringLiterals;

int version_almacen(Conexion& cn)
{
    return int(Recordset(cn, u"pragma user_version"_s).entero(0));
}

void rechazar_mas_nueva(Conexion& cn)
{
    const int version = version_almacen(cn);
    if (version > VERSION_ALMACEN)
        throw ErrorAlmacen(SQLITE_SCHEMA, u"La base de datos es de un programa más nuevo (versión %1; la de este es la "
                                          u"%2). Actualice el programa."_s.arg(version)
                                              .arg(VERSION_ALMACEN));
}

void exigir_version(Conexion& cn)
{
    rechazar_mas_nueva(cn);
    const int version = version_almacen(cn);
    if (version < VERSION_ALMACEN)
        throw ErrorAlmacen(SQLITE_SCHEMA, u"La base de datos es de una versión anterior (%1; la de este programa es la "
                                          u"%2). Para actualizarla: crear_base --actualizar %3"_s.arg(
                                              QString::number(version), QString::number(VERSION_ALMACEN), cn.ruta()));
}
