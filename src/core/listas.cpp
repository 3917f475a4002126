#include "core/listas.h"

#include "core/modGlobales.h"

Entradas leer_entradas(const QString& sql, const char* texto, const char* dato)
{
    Entradas lista;
    for (Recordset rs(cnRtn, sql); !rs.eof(); rs.siguiente())
        lista.push_back({rs.texto(texto), rs.valor(dato)});
    return lista;
}

Entradas con_sin_filtro(const Entradas& leidas)
{
    Entradas lista{{QStringLiteral("(sin filtro)"), 0}};
    lista.insert(lista.end(), leidas.begin(), leidas.end());
    return lista;
}

Entradas provincias()
{
    return leer_entradas(QStringLiteral("select GPRO_ID, GPRO_DESCRIPCION, GPRO_JURISDICCION, GPRO_LETRA_PAT ")
                             + QStringLiteral(" from GLB_TB_PROVINCIAS ") + QStringLiteral(" order by GPRO_DESCRIPCION collate ESPANOL"),
                         "GPRO_DESCRIPCION", "GPRO_ID");
}

Entradas localidades(int provincia)
{
    return leer_entradas(QStringLiteral("select GLOC_ID, GLOC_DESCRIPCION, GPRO_ID from GLB_TB_LOCALIDADES") + QStringLiteral(" where GPRO_ID=")
                             + QString::number(provincia) + QStringLiteral(" order by GLOC_DESCRIPCION collate ESPANOL"),
                         "GLOC_DESCRIPCION", "GLOC_ID");
}

Entradas localidades_propias()
{
    return leer_entradas(QStringLiteral("select L.GLOC_ID, L.GLOC_DESCRIPCION ") + QStringLiteral(" from GLB_TB_LOCALIDADES as L, GLB_TB_PROVINCIAS as P")
                             + QStringLiteral(" where L.GPRO_ID=P.GPRO_ID") + QStringLiteral(" and P.GPRO_DESCRIPCION='MARVEN'")
                             + QStringLiteral(" order by L.GLOC_DESCRIPCION collate ESPANOL "),
                         "GLOC_DESCRIPCION", "GLOC_ID");
}

Entradas conceptos_sellos()
{
    Entradas lista;
    for (Recordset rs(cnRtn, QStringLiteral("select SCON_ID, SCON_DESCRIPCION from SEL_TB_CONCEPTOS")); !rs.eof(); rs.siguiente())
        lista.push_back({rs.texto("SCON_ID") + QStringLiteral(" - ") + rs.texto("SCON_DESCRIPCION"), rs.valor("SCON_ID")});
    return lista;
}
