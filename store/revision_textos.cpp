// SPDX-License-Identifier: GPL-3.0-or-later

#include "revision_textos.h"

#include "core/almacen.h"
#include "core/redondeo.h"
#include "reglas_catalogo.h"
#include "tramos.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

QSet<QString> claves_presentes(const TablasTexto& tablas, const ClaveTexto& r)
{
    QSet<QString> claves;
    if (const auto t = tablas.find(r.tabla); t != tablas.end())
        for (const FilaCSV& fila : t->second.filas)
            claves << t->second.clave(fila, r.suyas);
    return claves;
}

void revisar_referencias(const TablasTexto& tablas, const TablaTexto& t, QList<FallaTexto>& fallas)
{
    for (const ClaveTexto& r : t.referencias) {
        const QSet<QString> claves = claves_presentes(tablas, r);
        for (const FilaCSV& fila : t.filas) {
            const QString clave = t.clave(fila, r.columnas);
            if (clave.isEmpty() || claves.contains(clave))
                continue;
            QStringList valores;
            for (const QString& columna : r.columnas)
                valores << t.valor(fila, columna);
            fallas << t.falla(fila, r.columnas.constLast(),
                              u"%1 %2 no existe en %3"_s.arg(r.columnas.join(u", "), valores.join(u", "), r.tabla));
        }
    }
}

// The folder's file of each table, and what stands there besides.
QStringList archivos_de(const QString& carpeta, const QStringList& tablas, bool solo_catalogo,
                        QList<FallaTexto>& fallas)
{
    const QDir dir(carpeta);
    if (!dir.exists())
        fallas << FallaTexto{carpeta, 1, 1, u"no está la carpeta"_s};
    QStringList archivos;
    for (const QString& archivo : dir.entryList({u"*.csv"_s}, QDir::Files)) {
        const QString tabla = QFileInfo(archivo).completeBaseName();
        if (!tablas.contains(tabla))
            fallas << FallaTexto{dir.filePath(archivo), 1, 1, u"no existe esa tabla"_s};
        else if (solo_catalogo && !es_de_catalogo(tabla))
            fallas << FallaTexto{dir.filePath(archivo), 1, 1, u"la tabla no es del catálogo"_s};
        else
            archivos << dir.filePath(archivo);
    }
    return archivos;
}

}  // namespace

bool es_de_catalogo(const QString& tabla)
{
    static const QSet<QString> SUYAS{u"SEL_TB_PARAMETROS"_s,
                                     u"SEL_TB_CONCEPTOS"_s,
                                     u"SEL_TB_TIPOS_CALCULOS"_s,
                                     u"SEL_TB_TIPOS_CALCULO_BI"_s,
                                     u"SEL_TB_NO_ALCANZADOS_DESC"_s,
                                     u"SEL_TB_SUBCONCEPTOS"_s,
                                     u"SEL_TB_ALICUOTAS"_s,
                                     u"SEL_TB_MODULOS"_s,
                                     u"SEL_TB_ROLES"_s};
    return tabla.startsWith(u"GLB_TB_") || SUYAS.contains(tabla);
}

QStringList tablas_del_almacen(Conexion& cn)
{
    QStringList nombres;
    for (Recordset rs(cn, u"select name from sqlite_master where type='table' order by rowid"_s); !rs.eof();
         rs.siguiente())
        nombres << rs.texto(0);
    return nombres;
}

TablasTexto leer_textos(Conexion& cn, const QStringList& carpetas, bool solo_catalogo)
{
    QList<FallaTexto> fallas;
    const QStringList nombres = tablas_del_almacen(cn);
    TablasTexto tablas;
    for (const QString& carpeta : carpetas)
        for (const QString& archivo : archivos_de(carpeta, nombres, solo_catalogo, fallas))
            tablas.insert_or_assign(QFileInfo(archivo).completeBaseName(), leer_tabla(cn, archivo, fallas));
    for (const QString& nombre : nombres)
        if (es_de_catalogo(nombre) && !tablas.contains(nombre))
            fallas << FallaTexto{u"%1/%2.csv"_s.arg(carpetas.constFirst(), nombre), 1, 1, u"falta el archivo"_s};
    if (!fallas.isEmpty())
        throw ErrorTextos(fallas);
    return tablas;
}

void revisar_textos(Conexion& cn, const TablasTexto& tablas, QList<FallaTexto> mas)
{
    for (const auto& [nombre, tabla] : tablas)
        revisar_referencias(tablas, tabla, mas);
    revisar_tramos(tablas, mas);
    revisar_reglas(cn, tablas, mas);
    if (!mas.isEmpty())
        throw ErrorTextos(mas);
}

QList<FallaTexto> faltan_en_uso(Conexion& cn, const TablasTexto& tablas)
{
    QList<FallaTexto> fallas;
    for (const QString& nombre : tablas_del_almacen(cn)) {
        if (es_de_catalogo(nombre))
            continue;
        for (const ClaveTexto& r : referencias_de(cn, nombre)) {
            if (!es_de_catalogo(r.tabla))
                continue;
            const QSet<QString> claves = claves_presentes(tablas, r);
            const QString columna = r.columnas.constFirst();
            for (Recordset rs(cn,
                              u"select %1, count(*) from %2 where %1 is not null group by %1"_s.arg(columna, nombre));
                 !rs.eof(); rs.siguiente())
                if (!claves.contains(rs.texto(0).toLower()))
                    fallas << tablas.at(r.tabla).falla(u"falta %1 %2, que está en %3 %4 de %5"_s.arg(
                        columna, rs.texto(0), rs.texto(1), rs.entero(1) == 1 ? u"fila"_s : u"filas"_s, nombre));
        }
    }
    return fallas;
}
