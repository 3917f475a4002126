// SPDX-License-Identifier: GPL-3.0-or-later

#include "actualizacion.h"

#include "textos.h"

#include "core/almacen.h"
#include "core/version_almacen.h"

using namespace Qt::StringLiterals;

namespace {

// Nothing but the views reads them: they go first, so that no step has to mind them.
void quitar_vistas(Conexion& cn)
{
    QStringList vistas;
    for (Recordset rs(cn, u"select name from sqlite_master where type='view'"_s); !rs.eof(); rs.siguiente())
        vistas << rs.texto(0);
    for (const QString& vista : vistas)
        cn.ejecutar(u"drop view %1"_s.arg(vista));
}

qint64 filas_sin_padre(Conexion& cn)
{
    qint64 cuantas = 0;
    for (Recordset rs(cn, u"pragma foreign_key_check"_s); !rs.eof(); rs.siguiente())
        ++cuantas;
    return cuantas;
}

}  // namespace

Actualizacion actualizar_almacen(const QString& textos, const QString& almacen, const QString& clave,
                                 const QDateTime& momento)
{
    AlmacenParaCambiar abierto(almacen, clave);
    Conexion& cn = abierto.cn;
    Actualizacion a;
    a.desde = version_almacen(cn);
    if (a.desde == VERSION_ALMACEN)
        return a;
    if (a.desde > VERSION_ALMACEN)
        exigir_version(cn);
    a.respaldo = abierto.respaldar(momento);
    // A table that is made anew leaves its rows' relations alone meanwhile; within a transaction this changes nothing.
    cn.ejecutar(u"pragma foreign_keys = off"_s);
    Transaccion t(cn);
    quitar_vistas(cn);
    for (int version = a.desde + 1; version <= VERSION_ALMACEN; ++version) {
        cn.ejecutarGuion(leer_texto(u"%1/pasos/%2.sql"_s.arg(textos).arg(version)));
        cn.ejecutar(u"pragma user_version = %1"_s.arg(version));
    }
    cn.ejecutarGuion(leer_texto(textos + u"/vistas.sql"_s));
    a.sinPadre = filas_sin_padre(cn);
    t.confirmar();
    return a;
}
