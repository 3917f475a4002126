// SPDX-License-Identifier: GPL-3.0-or-later

#include "deeds/hijos_escritura.h"

#include "core/modGlobales.h"
#include "core/numero.h"
#include "parties/listas_parte.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int DECIMALES_IMPORTE = 2;

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
        if (es_cuit_o_cuil(rs.texto("GTDC_ID")))
            nro = rs.logico("SPIN_CUIT_EN_TRAMITE") ? u"En trámite"_s : texto_numero(rs, "SPIN_CUIT");
        else if (rs.texto("SPIN_NACIONALIDAD") == u"E")
            nacionalidad = rs.nulo("CPAI_PAIS") ? u"Extranjero"_s : texto_pais(rs);
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
             u" and O.SEDJ_NRO='%1' and O.SEDD_ID=%2"_s.arg(r.dj, r.renglon));
         !rs.eof(); rs.siguiente()) {
        fila({rs.texto("SEDO_ID"), rs.texto("SSUB_ID_SIN_LEY"), rs.texto("SSUB_DESCRIPCION"),
              importe_o_vacio(rs, "SINS_BASEIMPONIBLE"), importe_o_vacio(rs, "SINS_MONTO_FINAL")});
        // Each step is rounded as the field of the total shows it.
        total = redondear(total + rs.real("SINS_MONTO_FINAL"), DECIMALES_IMPORTE);
    }
    return total;
}

void leer_inmuebles(const RenglonDJ& r, const AgregarFila& fila)
{
    for (Recordset rs(cnRtn, u"select *  from SEL_VW_RTN_DJ_INMUEBLES %1 order by  SEII_ID"_s.arg(r.donde()));
         !rs.eof(); rs.siguiente())
        fila({rs.texto("SEII_ID"), rs.texto("SEII_PARTIDA"), rs.texto("GTUB_DESCRIPCION"),
              importe_o_vacio(rs, "SEII_VAL_FISCAL")});
}

void borrar_parte(const RenglonDJ& r, const QString& id)
{
    cnRtn.ejecutar(u"delete from SEL_TB_RTN_INS_PARTES %1 and SPIN_ID=%2"_s.arg(r.donde(), id));
}

void borrar_inmueble(const RenglonDJ& r, const QString& id)
{
    cnRtn.ejecutar(u"delete from SEL_TB_RTN_INS_INMUEBLES %1 and SEII_ID=%2"_s.arg(r.donde(), id));
}

void borrar_operacion(const RenglonDJ& r, const QString& id, const QString& total, Dialogo& dialogo)
{
    const QString donde = u"%1 and SEDO_ID=%2"_s.arg(r.donde(), id);
    Transaccion t(cnRtn);
    cnRtn.ejecutar(u"delete from SEL_TB_RTN_INS_ROLES %1"_s.arg(donde));
    if (cnRtn.ejecutar(u"delete from SEL_TB_RTN_INS_OPERACIONES %1"_s.arg(donde)) == 0) {
        dialogo.avisar({u"No se pudo borrar la operación"_s, u"Borrar operación"_s, Icono::informacion});
        return;
    }
    // What is taken off is the shown total of the whole deed, deliberately, not the one operation's.
    cnRtn.ejecutar(u" update SEL_TB_RTN_DETDJ set SEDD_TOTAL_IMPUESTO=SEDD_TOTAL_IMPUESTO-%1 "
                   u" where SEDD_ID=%2 and SEDJ_NRO='%3'"_s.arg(total, r.renglon, r.dj));
    cnRtn.ejecutar(u" update SEL_TB_RTN_CABDJ set SEDJ_TOTAL_RETENIDO=SEDJ_TOTAL_RETENIDO-%1 "
                   u" where SEDJ_NRO='%2'"_s.arg(total, r.dj));
    t.confirmar();
}
