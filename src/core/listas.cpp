// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/listas.h"

#include "core/modGlobales.h"

using namespace Qt::StringLiterals;

Entradas leer_entradas(const QString& sql, const char* texto, const char* dato)
{
    Entradas lista;
    for (Recordset rs(cnRtn, sql); !rs.eof(); rs.siguiente())
        lista.push_back({rs.texto(texto), rs.valor(dato)});
    return lista;
}

Entradas con_sin_filtro(const Entradas& leidas)
{
    Entradas lista{{u"(sin filtro)"_s, 0}};
    lista.insert(lista.end(), leidas.begin(), leidas.end());
    return lista;
}

Entradas provincias()
{
    return leer_entradas(u"select GPRO_ID, GPRO_DESCRIPCION, GPRO_JURISDICCION, GPRO_LETRA_PAT  from GLB_TB_PROVINCIAS "
                         u" order by GPRO_DESCRIPCION collate ESPANOL"_s,
                         "GPRO_DESCRIPCION", "GPRO_ID");
}

Entradas localidades(std::optional<int> provincia)
{
    return leer_entradas(u"select GLOC_ID, GLOC_DESCRIPCION, GPRO_ID from GLB_TB_LOCALIDADES where GPRO_ID=%1"
                         u" order by GLOC_DESCRIPCION collate ESPANOL"_s.arg(QString::number(provincia.value_or(0))),
                         "GLOC_DESCRIPCION", "GLOC_ID");
}

Entradas localidades_propias()
{
    return leer_entradas(u"select L.GLOC_ID, L.GLOC_DESCRIPCION  from GLB_TB_LOCALIDADES as L, GLB_TB_PROVINCIAS as P"
                         u" where L.GPRO_ID=P.GPRO_ID and P.GPRO_DESCRIPCION='MARVEN'"
                         u" order by L.GLOC_DESCRIPCION collate ESPANOL "_s,
                         "GLOC_DESCRIPCION", "GLOC_ID");
}

Entradas conceptos_sellos()
{
    Entradas lista;
    for (Recordset rs(cnRtn, u"select SCON_ID, SCON_DESCRIPCION from SEL_TB_CONCEPTOS"_s); !rs.eof(); rs.siguiente())
        lista.push_back({u"%1 - %2"_s.arg(rs.texto("SCON_ID"), rs.texto("SCON_DESCRIPCION")), rs.valor("SCON_ID")});
    return lista;
}
