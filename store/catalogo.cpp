// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogo.h"

#include "core/version_almacen.h"
#include "revision_textos.h"
#include "textos.h"

using namespace Qt::StringLiterals;

Reemplazo reemplazar_catalogo(const QString& carpeta, const QString& almacen, const QString& clave,
                              const QDateTime& momento)
{
    AlmacenParaCambiar abierto(almacen, clave);
    Conexion& cn = abierto.cn;
    exigir_version(cn);
    const TablasTexto tablas = leer_textos(cn, {carpeta}, true);
    revisar_textos(cn, tablas, faltan_en_uso(cn, tablas));
    Reemplazo r{abierto.respaldar(momento), qsizetype(tablas.size())};
    Transaccion t(cn);
    // Deeds point at rows that go and come back.
    cn.ejecutar(u"pragma defer_foreign_keys = on"_s);
    for (const auto& [nombre, tabla] : tablas)
        cn.ejecutar(u"delete from %1"_s.arg(nombre));
    for (const auto& [nombre, tabla] : tablas) {
        insertar_tabla(cn, tabla);
        r.filas += tabla.filas.size();
    }
    t.confirmar();
    return r;
}
