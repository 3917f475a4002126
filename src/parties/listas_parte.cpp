// SPDX-License-Identifier: GPL-3.0-or-later

#include "parties/listas_parte.h"

#include "core/modGlobales.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int POSICION_DIGITO_CUIT = 200;

}  // namespace

bool es_cuit_o_cuil(QStringView tipo)
{
    return tipo == tipo_documento::CUIT || tipo == tipo_documento::CUIL;
}

Entradas tipos_documento()
{
    return leer_entradas(u"select GTDC_ID, GTDC_DESCRIPCION from GLB_TB_AFIP_TIPOS_DOC order by GTDC_FREC_USO"_s,
                         "GTDC_DESCRIPCION", "GTDC_ID");
}

Entradas tipos_sociedad()
{
    return leer_entradas(u"select GTSO_ID, GTSO_DESCRIPCION from GLB_TB_TIPOS_SOCIEDAD "
                         u" order by GTSO_DESCRIPCION collate ESPANOL"_s,
                         "GTSO_DESCRIPCION", "GTSO_ID");
}

Entradas tipos_sociedad_con_digito()
{
    Entradas lista;
    for (Recordset rs(cnRtn, u"select GTSO_ID, GTSO_DESCRIPCION, GTSO_CUIT_DIGITO_1  from GLB_TB_TIPOS_SOCIEDAD "
                             u" order by GTSO_DESCRIPCION collate ESPANOL"_s);
         !rs.eof(); rs.siguiente()) {
        const QString nombre = rs.texto("GTSO_DESCRIPCION").leftJustified(POSICION_DIGITO_CUIT);
        lista.push_back({nombre + rs.texto("GTSO_CUIT_DIGITO_1"), rs.valor("GTSO_ID")});
    }
    return lista;
}

QString nombre_sociedad(const QString& entrada)
{
    return entrada.left(POSICION_DIGITO_CUIT).trimmed();
}

QString digito_sociedad(const QString& entrada)
{
    return entrada.mid(POSICION_DIGITO_CUIT);
}

Entradas codigos_pais()
{
    Entradas lista;
    for (Recordset rs(cnRtn, u"select CPAI_CODIGO, CPAI_PAIS, CPAI_PERSONA from GLB_TB_AFIP_CODIGOS_PAIS "
                             u" order by CPAI_PAIS collate ESPANOL, CPAI_PERSONA collate ESPANOL "_s);
         !rs.eof(); rs.siguiente())
        lista.push_back({texto_pais(rs), {}});
    return lista;
}

QString texto_pais(const Recordset& rs)
{
    return u"%1 - %2 (%3)"_s.arg(rs.texto("CPAI_PAIS"), rs.texto("CPAI_PERSONA"), rs.texto("CPAI_CODIGO"));
}

QString codigo_pais(const QString& texto)
{
    const auto apertura = texto.lastIndexOf(u'(');
    return apertura < 0 ? QString() : texto.mid(apertura + 1, texto.lastIndexOf(u')') - apertura - 1);
}
