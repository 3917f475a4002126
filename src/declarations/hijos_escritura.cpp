#include "declarations/hijos_escritura.h"

#include "core/modGlobales.h"
#include "core/numero.h"
#include "declarations/escritura.h"

namespace {

QString texto_numero(const Recordset& rs, const char* columna)
{
    return rs.nulo(columna) ? QString() : numero_sql(rs.real(columna));
}

QString importe_o_vacio(const Recordset& rs, const char* columna)
{
    return rs.nulo(columna) ? QString() : formato_importe(rs.real(columna));
}

}  // namespace

QString consulta_partes(const RenglonDJ& r)
{
    return QStringLiteral(" SELECT ") + QStringLiteral(" SEL_TB_RTN_INS_PARTES.SEDJ_NRO,") + QStringLiteral(" SEL_TB_RTN_INS_PARTES.SEDD_ID,")
        + QStringLiteral(" SEL_TB_RTN_INS_PARTES.SPIN_ID,") + QStringLiteral(" GLB_TB_AFIP_TIPOS_DOC.GTDC_ID,")
        + QStringLiteral(" GLB_TB_AFIP_TIPOS_DOC.GTDC_DESCRIPCION,") + QStringLiteral(" SEL_TB_RTN_INS_PARTES.SPIN_NRODOC,")
        + QStringLiteral(" SEL_TB_RTN_INS_PARTES.SPIN_CUIT,") + QStringLiteral(" SEL_TB_RTN_INS_PARTES.SPIN_CUIT_EN_TRAMITE,")
        + QStringLiteral(" SEL_TB_RTN_INS_PARTES.SPIN_RSOCIAL,") + QStringLiteral(" SEL_TB_RTN_INS_PARTES.SPIN_PORCEXENTO,")
        + QStringLiteral(" SEL_TB_RTN_INS_PARTES.SPIN_NACIONALIDAD,") + QStringLiteral(" SEL_TB_RTN_INS_PARTES.CPAI_CODIGO,")
        + QStringLiteral(" GLB_TB_AFIP_CODIGOS_PAIS.CPAI_PAIS ,") + QStringLiteral(" GLB_TB_AFIP_CODIGOS_PAIS.CPAI_PERSONA")
        + QStringLiteral(" from SEL_TB_RTN_INS_PARTES inner join GLB_TB_AFIP_TIPOS_DOC")
        + QStringLiteral(" on GLB_TB_AFIP_TIPOS_DOC.GTDC_ID = SEL_TB_RTN_INS_PARTES.GTDC_ID")
        + QStringLiteral(" left join GLB_TB_AFIP_CODIGOS_PAIS")
        + QStringLiteral(" on GLB_TB_AFIP_CODIGOS_PAIS.CPAI_CODIGO = SEL_TB_RTN_INS_PARTES.CPAI_CODIGO")
        + QStringLiteral(" where SEL_TB_RTN_INS_PARTES.SEDJ_NRO='") + r.dj + QStringLiteral("'")
        + QStringLiteral(" and SEL_TB_RTN_INS_PARTES.SEDD_ID=") + r.renglon;
}

void leer_partes(const RenglonDJ& r, const AgregarFila& fila)
{
    for (Recordset rs(cnRtn, consulta_partes(r)); !rs.eof(); rs.siguiente()) {
        QString nacionalidad = QStringLiteral("Argentina");
        QString nro = rs.texto("SPIN_NRODOC");
        // The code is compared with the two words, and not its description: deliberately so,
        // hence a stored CUIT shows from the document number.
        if (const QString tipo = rs.texto("GTDC_ID"); tipo == u"CUIT" || tipo == u"CUIL")
            nro = rs.logico("SPIN_CUIT_EN_TRAMITE") ? QStringLiteral("En trámite") : texto_numero(rs, "SPIN_CUIT");
        else if (rs.texto("SPIN_NACIONALIDAD") == u"E")
            nacionalidad = rs.nulo("CPAI_PAIS") ? QStringLiteral("Extranjero")
                                                : rs.texto("CPAI_PAIS") + QStringLiteral(" - ") + rs.texto("CPAI_PERSONA")
                    + QStringLiteral(" (") + rs.texto("CPAI_CODIGO") + QStringLiteral(")");
        fila({rs.texto("SPIN_ID"), rs.texto("GTDC_DESCRIPCION"), nro, rs.texto("SPIN_RSOCIAL"), nacionalidad});
    }
}

double leer_operaciones(const RenglonDJ& r, const AgregarFila& fila)
{
    double total = 0;
    for (Recordset rs(cnRtn, QStringLiteral("select O.SEDJ_NRO") + QStringLiteral(", O.SEDD_ID") + QStringLiteral(", O.SEDO_ID")
                                 + QStringLiteral(", O.SSUB_ID - (int(O.SSUB_ID / 1000)*1000) as SSUB_ID_SIN_LEY") + QStringLiteral(", O.SSUB_ID ")
                                 + QStringLiteral(", S.SSUB_DESCRIPCION") + QStringLiteral(", O.SINS_BASEIMPONIBLE")
                                 + QStringLiteral(", O.SINS_MONTO_FINAL") + QStringLiteral(" from SEL_TB_RTN_INS_OPERACIONES as O, ")
                                 + QStringLiteral("      SEL_TB_SUBCONCEPTOS as S") + QStringLiteral(" where O.SSUB_ID=S.SSUB_ID")
                                 + QStringLiteral(" and O.SEDJ_NRO='") + r.dj + QStringLiteral("'") + QStringLiteral(" and O.SEDD_ID=") + r.renglon);
         !rs.eof(); rs.siguiente()) {
        fila({rs.texto("SEDO_ID"), rs.texto("SSUB_ID_SIN_LEY"), rs.texto("SSUB_DESCRIPCION"), importe_o_vacio(rs, "SINS_BASEIMPONIBLE"),
              importe_o_vacio(rs, "SINS_MONTO_FINAL")});
        total += rs.real("SINS_MONTO_FINAL");
    }
    return total;
}

void leer_inmuebles(const RenglonDJ& r, const AgregarFila& fila)
{
    for (Recordset rs(cnRtn, QStringLiteral("select * ") + QStringLiteral(" from SEL_VW_RTN_DJ_INMUEBLES ") + QStringLiteral(" where SEDJ_NRO='")
                                 + r.dj + QStringLiteral("'") + QStringLiteral(" and SEDD_ID=") + r.renglon + QStringLiteral(" order by  SEII_ID"));
         !rs.eof(); rs.siguiente())
        fila({rs.texto("SEII_ID"), rs.texto("SEII_PARTIDA"), rs.texto("GTUB_DESCRIPCION"), importe_o_vacio(rs, "SEII_VAL_FISCAL")});
}

void borrar_parte(const RenglonDJ& r, const QString& id)
{
    cnRtn.ejecutar(QStringLiteral("delete from SEL_TB_RTN_INS_PARTES ") + donde_renglon(r.dj, r.renglon) + QStringLiteral(" and SPIN_ID=") + id);
}

void borrar_inmueble(const RenglonDJ& r, const QString& id)
{
    cnRtn.ejecutar(QStringLiteral("delete from SEL_TB_RTN_INS_INMUEBLES ") + donde_renglon(r.dj, r.renglon) + QStringLiteral(" and SEII_ID=") + id);
}

void borrar_operacion(const RenglonDJ& r, const QString& id, const QString& total, Dialogo& dialogo)
{
    const QString donde = donde_renglon(r.dj, r.renglon) + QStringLiteral(" and SEDO_ID=") + id;
    cnRtn.comenzar();
    cnRtn.ejecutar(QStringLiteral("delete from SEL_TB_RTN_INS_ROLES ") + donde);
    if (cnRtn.ejecutar(QStringLiteral("delete from SEL_TB_RTN_INS_OPERACIONES ") + donde) == 0) {
        // The transaction deliberately stays open here, without a commit.
        dialogo.avisar({QStringLiteral("No se pudo borrar la operación"), QStringLiteral("Borrar operación"), Icono::informacion});
        return;
    }
    // What is taken off is the shown total of the whole deed, deliberately, not the one operation's.
    cnRtn.ejecutar(QStringLiteral(" update SEL_TB_RTN_DETDJ set SEDD_TOTAL_IMPUESTO=SEDD_TOTAL_IMPUESTO-") + total + QStringLiteral(" ")
                   + QStringLiteral(" where SEDD_ID=") + r.renglon + QStringLiteral(" and SEDJ_NRO='") + r.dj + QStringLiteral("'"));
    cnRtn.ejecutar(QStringLiteral(" update SEL_TB_RTN_CABDJ set SEDJ_TOTAL_RETENIDO=SEDJ_TOTAL_RETENIDO-") + total + QStringLiteral(" ")
                   + QStringLiteral(" where SEDJ_NRO='") + r.dj + QStringLiteral("'"));
    cnRtn.confirmar();
}
