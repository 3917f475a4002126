// SPDX-License-Identifier: GPL-3.0-or-later

#include "constructor.h"

#include "core/archivos_disco.h"
#include "revision_textos.h"
#include "textos.h"

using namespace Qt::StringLiterals;

namespace {

void llenar(Conexion& cn, const Construccion& c)
{
    Transaccion t(cn);
    cn.ejecutarGuion(leer_texto(c.textos + u"/esquema.sql"_s));
    cn.ejecutarGuion(leer_texto(c.textos + u"/vistas.sql"_s));
    QStringList carpetas;
    for (const QString& carpeta : c.carpetas)
        carpetas << c.textos + u'/' + carpeta;
    const TablasTexto tablas = leer_textos(cn, carpetas, false);
    revisar_textos(cn, tablas);
    for (const QString& nombre : tablas_del_almacen(cn))
        if (const auto tabla = tablas.find(nombre); tabla != tablas.end())
            insertar_tabla(cn, tabla->second);
    t.confirmar();
}

}  // namespace

void construir_almacen(const Construccion& c)
{
    // A store that a program has open is not replaced under its hands.
    Candado candado;
    candado.tomar(c.destino);
    // The engine takes the empty file for a new store, and gives its journal the file's mode.
    ArchivoNuevo nuevo(c.destino);
    nuevo.cerrar();
    {
        Conexion cn;
        crear_conexion_nueva(cn, nuevo.aparte(), c.clave);
        llenar(cn, c);
    }
    nuevo.ocupar();
}
