// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/textos_escrituras.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "core/redondeo.h"
#include "printing/cuit_impreso.h"

#include <QStringList>

#include <map>

using namespace Qt::StringLiterals;

namespace {

// One text a deed, out of the rows of a query.
template <class Texto>
std::map<QString, QString> textos_por_escritura(const QString& sql, Texto texto)
{
    std::map<QString, QString> textos;
    for (Recordset rs(cnRtn, sql); !rs.eof(); rs.siguiente())
        textos[rs.texto("SEDD_ID")] += texto(rs);
    return textos;
}

void guardar_textos(const QString& columna, const QString& nro, const std::map<QString, QString>& textos)
{
    for (const auto& [id, texto] : textos)
        cnRtn.ejecutar(u"update SEL_TMP_DJ_OPER set %1='%2' where SEDJ_NRO='%3' and SEDD_ID=%4"_s.arg(
            columna, toSQL(texto), nro, id));
}

// Behind the name of an Argentine party come its document and its CUIT, behind a foreign one's the country's code alone.
QString texto_de_parte(const Recordset& rs)
{
    QStringList piezas{rs.texto("SPIN_RSOCIAL")};
    if (rs.texto("SPIN_NACIONALIDAD") != u"A")
        piezas << rs.texto("CPAI_CODIGO");
    else
        piezas << rs.texto("GTDC_DESCRIPCION") << rs.texto("SPIN_NRODOC") << cuit_impreso(rs, "SPIN_CUIT")
               << (rs.logico("SPIN_CUIT_EN_TRAMITE") ? u"(CUIT en trámite)"_s : QString());
    piezas.removeAll(QString());
    return piezas.join(u' ') + u"; "_s;
}

QString texto_de_inmueble(const Recordset& rs)
{
    return u"Partida: %1 - %2 - Val.Fiscal: $%3; "_s.arg(rs.texto("SEII_PARTIDA"), rs.texto("GTUB_DESCRIPCION"),
                                                         importe_agrupado(rs.real("SEII_VAL_FISCAL")));
}

}  // namespace

void cargar_tmp_dj_oper(const QString& nro)
{
    Transaccion t(cnRtn);
    cnRtn.ejecutar(u"delete from sel_tmp_dj_oper"_s);
    cnRtn.ejecutar(u" insert into SEL_TMP_DJ_OPER (SEDJ_NRO, SEDD_ID, PARTES, INMUEBLES) "
                   u" select SEDJ_NRO, SEDD_ID, NULL as PARTES, NULL as INMUEBLES "
                   u" from SEL_TB_RTN_DETDJ where SEDJ_NRO='%1'"_s.arg(nro));
    const QString inmuebles =
        u"select SEDJ_NRO, SEDD_ID, SEII_ID, SEII_PARTIDA, GTUB_DESCRIPCION, SEII_VAL_FISCAL "
        u" from SEL_TB_RTN_INS_INMUEBLES I  inner join GLB_TB_TIPOS_UBICACION  TU ON I.GTUB_ID = TU.GTUB_ID"
        u" where SEDJ_NRO='%1' order by SEDJ_NRO, SEDD_ID"_s.arg(nro);
    guardar_textos(u"INMUEBLES"_s, nro, textos_por_escritura(inmuebles, texto_de_inmueble));
    const QString partes = u"select P.*, T.GTDC_DESCRIPCION from SEL_TB_RTN_INS_PARTES P"
                           u" left join GLB_TB_AFIP_TIPOS_DOC T on T.GTDC_ID=P.GTDC_ID"
                           u" left join GLB_TB_AFIP_CODIGOS_PAIS C on C.CPAI_CODIGO=P.CPAI_CODIGO"
                           u" where P.SEDJ_NRO='%1' order by P.SEDJ_NRO, P.SEDD_ID, P.SPIN_ID"_s.arg(nro);
    guardar_textos(u"PARTES"_s, nro, textos_por_escritura(partes, texto_de_parte));
    t.confirmar();
}
