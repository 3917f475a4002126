// SPDX-License-Identifier: GPL-3.0-or-later

#include "deeds/hijos_escritura.h"

#include "core/modGlobales.h"
#include "core/numero.h"

using namespace Qt::StringLiterals;

namespace {

QString texto_numero(const Recordset& rs, const char* columna)
{
    return rs.nulo(columna) ? QString() : numero_sql(rs.real(columna));
}

QString importe_o_vacio(const Recordset& rs, const char* columna)
{
    return rs.nulo(columna) ? QString() : importe_llano(rs.real(columna));
}

}  // namespace

void leer_partes(const RenglonDJ& r, const AgregarFila& fila)
{
    for (Recordset rs(cnRtn, consulta_partes_renglon(r)); !rs.eof(); rs.siguiente()) {
        QString nacionalidad = u"Argentina"_s;
        QString nro = rs.texto("SPIN_NRODOC");
        // The code is compared with the two words, and not its description: deliberately so,
        // hence a stored CUIT shows from the document number.
        if (const QString tipo = rs.texto("GTDC_ID"); tipo == u"CUIT" || tipo == u"CUIL")
            nro = rs.logico("SPIN_CUIT_EN_TRAMITE") ? u"En trámite"_s : texto_numero(rs, "SPIN_CUIT");
        else if (rs.texto("SPIN_NACIONALIDAD") == u"E")
            nacionalidad = rs.nulo("CPAI_PAIS") ? u"Extranjero"_s
                                                : rs.texto("CPAI_PAIS") + u" - "_s + rs.texto("CPAI_PERSONA") + u" ("_s
                                                      + rs.texto("CPAI_CODIGO") + u")"_s;
        fila({rs.texto("SPIN_ID"), rs.texto("GTDC_DESCRIPCION"), nro, rs.texto("SPIN_RSOCIAL"), nacionalidad});
    }
}

double leer_operaciones(const RenglonDJ& r, const AgregarFila& fila)
{
    double total = 0;
    for (Recordset rs(
             cnRtn,
             u"select O.SEDJ_NRO, O.SEDD_ID, O.SEDO_ID, O.SSUB_ID - (int(O.SSUB_ID / 1000)*1000) as SSUB_ID_SIN_LEY"
             u", O.SSUB_ID , S.SSUB_DESCRIPCION, O.SINS_BASEIMPONIBLE, O.SINS_MONTO_FINAL"
             u" from SEL_TB_RTN_INS_OPERACIONES as O,       SEL_TB_SUBCONCEPTOS as S where O.SSUB_ID=S.SSUB_ID"
             u" and O.SEDJ_NRO='"_s
                 + r.dj + u"' and O.SEDD_ID="_s + r.renglon);
         !rs.eof(); rs.siguiente()) {
        fila({rs.texto("SEDO_ID"), rs.texto("SSUB_ID_SIN_LEY"), rs.texto("SSUB_DESCRIPCION"),
              importe_o_vacio(rs, "SINS_BASEIMPONIBLE"), importe_o_vacio(rs, "SINS_MONTO_FINAL")});
        total += rs.real("SINS_MONTO_FINAL");
    }
    return total;
}

void leer_inmuebles(const RenglonDJ& r, const AgregarFila& fila)
{
    for (Recordset rs(cnRtn, u"select *  from SEL_VW_RTN_DJ_INMUEBLES  where SEDJ_NRO='"_s + r.dj + u"' and SEDD_ID="_s
                                 + r.renglon + u" order by  SEII_ID"_s);
         !rs.eof(); rs.siguiente())
        fila({rs.texto("SEII_ID"), rs.texto("SEII_PARTIDA"), rs.texto("GTUB_DESCRIPCION"),
              importe_o_vacio(rs, "SEII_VAL_FISCAL")});
}

void borrar_parte(const RenglonDJ& r, const QString& id)
{
    cnRtn.ejecutar(u"delete from SEL_TB_RTN_INS_PARTES "_s + r.donde() + u" and SPIN_ID="_s + id);
}

void borrar_inmueble(const RenglonDJ& r, const QString& id)
{
    cnRtn.ejecutar(u"delete from SEL_TB_RTN_INS_INMUEBLES "_s + r.donde() + u" and SEII_ID="_s + id);
}

void borrar_operacion(const RenglonDJ& r, const QString& id, const QString& total, Dialogo& dialogo)
{
    const QString donde = r.donde() + u" and SEDO_ID="_s + id;
    cnRtn.comenzar();
    cnRtn.ejecutar(u"delete from SEL_TB_RTN_INS_ROLES "_s + donde);
    if (cnRtn.ejecutar(u"delete from SEL_TB_RTN_INS_OPERACIONES "_s + donde) == 0) {
        // The transaction deliberately stays open here, without a commit.
        dialogo.avisar({u"No se pudo borrar la operación"_s, u"Borrar operación"_s, Icono::informacion});
        return;
    }
    // What is taken off is the shown total of the whole deed, deliberately, not the one operation's.
    cnRtn.ejecutar(u" update SEL_TB_RTN_DETDJ set SEDD_TOTAL_IMPUESTO=SEDD_TOTAL_IMPUESTO-"_s + total
                   + u"  where SEDD_ID="_s + r.renglon + u" and SEDJ_NRO='"_s + r.dj + u"'"_s);
    cnRtn.ejecutar(u" update SEL_TB_RTN_CABDJ set SEDJ_TOTAL_RETENIDO=SEDJ_TOTAL_RETENIDO-"_s + total
                   + u"  where SEDJ_NRO='"_s + r.dj + u"'"_s);
    cnRtn.confirmar();
}
