#include "printing/datos_impresos.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "core/numero.h"
#include "printing/importes.h"

#include <map>

namespace {

QString cuit_impreso(const Recordset& rs, const char* columna)
{
    return rs.nulo(columna) ? QString() : formato_decimal(rs.real(columna), 0).rightJustified(11, u'0');
}

QString rectificativa(qint64 secuencia)
{
    return secuencia == 0 ? QStringLiteral("Original") : QStringLiteral("Rectif. ") + QString::number(secuencia);
}

std::optional<double> real_o_nada(const Recordset& rs, const char* columna)
{
    return rs.nulo(columna) ? std::optional<double>() : rs.real(columna);
}

QString estado_impreso(const QString& letra)
{
    return letra == u"P" ? QStringLiteral("PASO") : letra == u"N" ? QStringLiteral("ANULADA/NO PASO") : QStringLiteral("ANULADA/ERROSE");
}

// One text a deed, out of the rows of a query.
template <class Texto>
std::map<QString, QString> textos_por_escritura(const QString& sql, Texto texto)
{
    std::map<QString, QString> textos;
    for (Recordset rs(cnRtn, sql); !rs.eof(); rs.siguiente())
        textos[rs.texto("SEDD_ID")] += texto(rs);
    return textos;
}

void guardar_textos(const char* columna, const QString& nro, const std::map<QString, QString>& textos)
{
    for (const auto& [id, texto] : textos)
        cnRtn.ejecutar(QStringLiteral("update SEL_TMP_DJ_OPER set ") + QLatin1String(columna) + QStringLiteral("='") + toSQL(texto) + QStringLiteral("'")
                       + QStringLiteral(" where SEDJ_NRO='") + nro + QStringLiteral("' and SEDD_ID=") + id);
}

QString texto_parte(const Recordset& rs)
{
    QString t = rs.texto("SPIN_RSOCIAL");
    t += rs.texto("SPIN_NACIONALIDAD") == u"A" ? QStringLiteral(" ") + rs.texto("GTDC_DESCRIPCION") + u' ' + rs.texto("SPIN_NRODOC")
                                                : QStringLiteral(" ") + rs.texto("CPAI_CODIGO") + u' ' + rs.texto("SPIN_NRODOC");
    if (const QString cuit = cuit_impreso(rs, "SPIN_CUIT"); !cuit.isEmpty() && cuit != rs.texto("SPIN_NRODOC"))
        t += u' ' + cuit;
    if (rs.logico("SPIN_CUIT_EN_TRAMITE"))
        t += QStringLiteral(" (CUIT en trámite)");
    return t.simplified() + QStringLiteral("; ");
}

}  // namespace

QString codigo_legible_boleta(const QString& codigo)
{
    QString t;
    for (int i = 0; i < 80; i += 10)
        t += codigo.mid(i, 5) + u' ' + codigo.mid(i + 5, 5) + QStringLiteral("  ");
    return t;
}

QString codigo_legible_dj(const QString& codigo)
{
    QString t;
    for (int i = 0; i < 32; i += 4)
        t += codigo.mid(i, 4) + u' ';
    return t;
}

std::optional<BoletaImpresa> leer_boleta(const QString& nro)
{
    const Recordset rs(cnRtn, QStringLiteral("SELECT SEL_TB_RTN_BOLDEP.*, iif(coalesce(SBDI_ANULADA,0),'Anulada','') AS Estado, C.SEDJ_TITULAR_NOMBRE, "
                                             "C.SEDJ_TITULAR_CUIT, C.SEDJ_MES, C.SEDJ_ANIO, C.SEDJ_SECUENCIA "
                                             " from SEL_TB_RTN_BOLDEP inner join SEL_TB_RTN_CABDJ C on C.SEDJ_NRO=SEL_TB_RTN_BOLDEP.SEDJ_NRO ")
                                  + QStringLiteral(" where SBDI_NROBOLETA='") + nro + QStringLiteral("'")
                                  + QStringLiteral(" order by SEL_TB_RTN_BOLDEP.SBDI_ID, SEL_TB_RTN_BOLDEP.SBDI_FECHA_EMISION"));
    if (rs.eof())
        return {};
    BoletaImpresa b;
    b.nro = rs.texto("SBDI_NROBOLETA");
    b.titular = rs.texto("SEDJ_TITULAR_NOMBRE");
    b.cuit = cuit_impreso(rs, "SEDJ_TITULAR_CUIT");
    b.agenteNro = rs.texto("SBDI_RTN_NRO");
    b.posicion = con_ceros(rs.entero("SEDJ_MES"), 2) + u'/' + con_ceros(rs.entero("SEDJ_ANIO"), 4) + QStringLiteral(" (")
        + rectificativa(rs.entero("SEDJ_SECUENCIA")) + QStringLiteral(")");
    b.banco = rs.texto("GBAN_DESCRIPCION");
    b.cuenta = rs.texto("SBDI_CUENTA");
    b.filial = rs.texto("SSUB_FILIAL_BANCO");
    b.estado = rs.texto("Estado");
    b.vencimiento = rs.fecha("SBDI_FECHA_VENC");
    b.emision = rs.fecha("SBDI_FECHA_EMISION");
    b.importe = rs.real("SBDI_IMPORTE");
    b.interes = rs.real("SBDI_INTERES");
    b.multa = rs.real("SBDI_MULTA");
    b.total = rs.real("SBDI_TOTAL");
    b.efectivo = rs.real("SBDI_EFECTIVO");
    b.cheques[0] = {rs.texto("SBDI_CHEQUE1_NRO"), rs.texto("SBDI_CHEQUE1_BANCO"), rs.real("SBDI_CHEQUE1_MONTO")};
    b.cheques[1] = {rs.texto("SBDI_CHEQUE2_NRO"), rs.texto("SBDI_CHEQUE2_BANCO"), rs.real("SBDI_CHEQUE2_MONTO")};
    b.codigo = rs.texto("SBDI_CODIGO_BARRAS");
    return b;
}

void cargar_tmp_dj_oper(const QString& nro)
{
    Transaccion t(cnRtn);
    cnRtn.ejecutar(QStringLiteral("delete from sel_tmp_dj_oper"));
    cnRtn.ejecutar(QStringLiteral(" insert into SEL_TMP_DJ_OPER (SEDJ_NRO, SEDD_ID, PARTES, INMUEBLES) ")
                   + QStringLiteral(" select SEDJ_NRO, SEDD_ID, NULL as PARTES, NULL as INMUEBLES ")
                   + QStringLiteral(" from SEL_TB_RTN_DETDJ where SEDJ_NRO='") + nro + QStringLiteral("'"));
    const QString inmuebles = QStringLiteral("select SEDJ_NRO, SEDD_ID, SEII_ID, SEII_PARTIDA, GTUB_DESCRIPCION, SEII_VAL_FISCAL ")
        + QStringLiteral(" from SEL_TB_RTN_INS_INMUEBLES I ") + QStringLiteral(" inner join GLB_TB_TIPOS_UBICACION  TU ON I.GTUB_ID = TU.GTUB_ID")
        + QStringLiteral(" where SEDJ_NRO='") + nro + QStringLiteral("'") + QStringLiteral(" order by SEDJ_NRO, SEDD_ID");
    guardar_textos("INMUEBLES", nro, textos_por_escritura(inmuebles, [](const Recordset& rs) {
        return QStringLiteral("Partida: ") + rs.texto("SEII_PARTIDA") + QStringLiteral(" - ") + rs.texto("GTUB_DESCRIPCION")
            + QStringLiteral(" - Val.Fiscal: $") + importe_impreso(rs.real("SEII_VAL_FISCAL")) + QStringLiteral("; ");
    }));
    const QString partes = QStringLiteral("select P.*, T.GTDC_DESCRIPCION from SEL_TB_RTN_INS_PARTES P left join GLB_TB_AFIP_TIPOS_DOC T on T.GTDC_ID=P.GTDC_ID "
                                          "left join GLB_TB_AFIP_CODIGOS_PAIS C on C.CPAI_CODIGO=P.CPAI_CODIGO")
        + QStringLiteral(" where P.SEDJ_NRO='") + nro + QStringLiteral("'") + QStringLiteral(" order by P.SEDJ_NRO, P.SEDD_ID, P.SPIN_ID");
    guardar_textos("PARTES", nro, textos_por_escritura(partes, texto_parte));
    t.confirmar();
}

namespace {

std::optional<CabeceraImpresa> leer_cabecera_impresa(const QString& nro)
{
    const Recordset rs(cnRtn, QStringLiteral(" select c.SEDJ_NRO, c.SEDJ_MES, c.SEDJ_ANIO, c.SEDJ_SECUENCIA, ")
                                  + QStringLiteral(" c.SEDJ_OBSERVACIONES, c.SEDJ_TOTAL_RETENIDO, c.SRTN_NRO, ")
                                  + QStringLiteral(" c.SEDJ_TITULAR_NOMBRE, c.SEDJ_TITULAR_CUIT, L.GLOC_DESCRIPCION, ")
                                  + QStringLiteral(" c.SEDJ_CODPOSTAL, c.SEDJ_DOMICILIO, c.SEDJ_TELEFONO, c.SEDJ_EMAIL, ")
                                  + QStringLiteral(" c.SEDJ_ADSCRIPTO1_NOMBRE, c.SEDJ_ADSCRIPTO1_CUIT, c.SEDJ_ADSCRIPTO2_NOMBRE, ")
                                  + QStringLiteral(" c.SEDJ_ADSCRIPTO2_CUIT, c.SEDJ_ACRED_MONTO, c.SEDJ_ACRED_RESOLUCION ")
                                  + QStringLiteral(" FROM SEL_TB_RTN_CABDJ AS C, GLB_TB_LOCALIDADES AS L ")
                                  + QStringLiteral(" where C.GLOC_ID = L.GLOC_ID and C.SEDJ_NRO='") + nro + QStringLiteral("'"));
    if (rs.eof())
        return {};
    CabeceraImpresa c;
    c.nro = rs.texto("SEDJ_NRO");
    c.posicion = con_ceros(rs.entero("SEDJ_MES"), 2) + u'/' + rs.texto("SEDJ_ANIO");
    c.rectificativa = rs.entero("SEDJ_SECUENCIA") == 0 ? QStringLiteral("Original") : QStringLiteral("Rectificativa ") + rs.texto("SEDJ_SECUENCIA");
    c.agenteNro = rs.texto("SRTN_NRO");
    c.titular = rs.texto("SEDJ_TITULAR_NOMBRE");
    c.cuit = cuit_impreso(rs, "SEDJ_TITULAR_CUIT");
    c.localidad = rs.texto("GLOC_DESCRIPCION");
    c.codPostal = rs.texto("SEDJ_CODPOSTAL");
    c.domicilio = rs.texto("SEDJ_DOMICILIO");
    c.telefono = rs.texto("SEDJ_TELEFONO");
    c.email = rs.texto("SEDJ_EMAIL");
    c.adscripto1 = rs.texto("SEDJ_ADSCRIPTO1_NOMBRE");
    c.adscripto1Cuit = cuit_impreso(rs, "SEDJ_ADSCRIPTO1_CUIT");
    c.adscripto2 = rs.texto("SEDJ_ADSCRIPTO2_NOMBRE");
    c.adscripto2Cuit = cuit_impreso(rs, "SEDJ_ADSCRIPTO2_CUIT");
    c.observaciones = rs.texto("SEDJ_OBSERVACIONES");
    c.resolucion = rs.texto("SEDJ_ACRED_RESOLUCION");
    c.totalRetenido = rs.real("SEDJ_TOTAL_RETENIDO");
    c.acreditado = rs.real("SEDJ_ACRED_MONTO");
    return c;
}

// The deeds with their operations, whatever their reach, in the order of their numbers.
QString consulta_escrituras(const QString& nro)
{
    const QString deed = QStringLiteral("D.SEDD_ID, D.SEDD_DIA, D.SEDD_ESCRITURA_NRO, D.SEDD_FOLIO, D.SEDD_TOTAL_IMPUESTO, D.SEDD_ESTADO, D.SEDD_ALCANZADO, "
                                        "D.SNAD_DESC_OTRO, D.SEDD_OBSERVACIONES, T.PARTES, T.INMUEBLES");
    const QString nulos = QStringLiteral(", null as SEDO_ID, null as SSUB_DESCRIPCION, null as SSUB_LEYVIGENCIA, null as SINS_BASEIMPONIBLE, null as SINS_MODULOS, "
                                         "null as SINS_ALICUOTA, null as SINS_PORC_EXENTO, null as SINS_MONTO_EXENTO, null as SINS_MONTO_FINAL, null as SINS_PAGO_CTA_MONTO, "
                                         "null as SINS_OBS, null as SINS_ADICIONALES, null as SINS_VALUACION_FISCAL, null as SINS_HIPOTECA, null as SINS_IMPUESTO_CALCULADO");
    const QString de = QStringLiteral(" from SEL_TB_RTN_DETDJ D left join sel_tmp_dj_oper T on T.SEDJ_NRO=D.SEDJ_NRO and T.SEDD_ID=D.SEDD_ID ");
    const QString donde = QStringLiteral(" where D.SEDJ_NRO='") + nro + QStringLiteral("'");
    const QString sin_operacion = QStringLiteral(" and not exists (select sedd_id from sel_tb_rtn_ins_operaciones O ")
        + QStringLiteral("         where o.sedd_id= d.sedd_id AND O.SEDJ_NRO=D.SEDJ_NRO)");
    return QStringLiteral("select * from (select ") + deed
        + QStringLiteral(", null as SNAD_DESCRIPCION, O.SEDO_ID, S.SSUB_DESCRIPCION, S.SSUB_LEYVIGENCIA, O.SINS_BASEIMPONIBLE, O.SINS_MODULOS, O.SINS_ALICUOTA, "
                         "O.SINS_PORC_EXENTO, O.SINS_MONTO_EXENTO, O.SINS_MONTO_FINAL, O.SINS_PAGO_CTA_MONTO, O.SINS_OBS, O.SINS_ADICIONALES, O.SINS_VALUACION_FISCAL, "
                         "O.SINS_HIPOTECA, O.SINS_IMPUESTO_CALCULADO")
        + de + QStringLiteral(" inner join SEL_TB_RTN_INS_OPERACIONES O on O.SEDJ_NRO=D.SEDJ_NRO and O.SEDD_ID=D.SEDD_ID "
                              " left join SEL_TB_SUBCONCEPTOS S on O.SSUB_ID=S.SSUB_ID ")
        + donde + QStringLiteral(" and D.SEDD_ALCANZADO='S'") + QStringLiteral(" Union All select ") + deed + QStringLiteral(", null") + nulos + de + donde
        + QStringLiteral(" and D.SEDD_ALCANZADO='S'") + sin_operacion + QStringLiteral(" union All select ") + deed + QStringLiteral(", NOA.SNAD_DESCRIPCION") + nulos
        + de + QStringLiteral(" left join SEL_TB_NO_ALCANZADOS_DESC NOA on D.SNAD_ID=NOA.SNAD_ID") + donde + QStringLiteral(" and D.SEDD_ALCANZADO='N'")
        + QStringLiteral(")  ORDER BY SEDD_ESCRITURA_NRO, SEDD_ID, SEDO_ID");
}

EscrituraImpresa leer_escritura(const Recordset& rs)
{
    EscrituraImpresa e;
    e.nro = rs.texto("SEDD_ESCRITURA_NRO");
    e.folio = rs.texto("SEDD_FOLIO");
    e.dia = rs.texto("SEDD_DIA");
    e.estado = estado_impreso(rs.texto("SEDD_ESTADO"));
    e.alcanzada = rs.texto("SEDD_ALCANZADO") == u"S";
    e.motivo = rs.texto("SNAD_DESCRIPCION") == u"Otro" ? rs.texto("SNAD_DESC_OTRO") : rs.texto("SNAD_DESCRIPCION");
    e.partes = fromSQL(rs.texto("PARTES"));
    e.inmuebles = rs.texto("INMUEBLES");
    e.observaciones = rs.texto("SEDD_OBSERVACIONES");
    e.impuesto = rs.real("SEDD_TOTAL_IMPUESTO");
    return e;
}

OperacionImpresa leer_operacion(const Recordset& rs)
{
    OperacionImpresa o;
    o.descripcion = rs.texto("SSUB_DESCRIPCION");
    o.ley = rs.texto("SSUB_LEYVIGENCIA");
    o.observaciones = rs.texto("SINS_OBS");
    o.base = real_o_nada(rs, "SINS_BASEIMPONIBLE");
    o.modulos = real_o_nada(rs, "SINS_MODULOS");
    o.alicuota = real_o_nada(rs, "SINS_ALICUOTA");
    o.porcExento = real_o_nada(rs, "SINS_PORC_EXENTO");
    o.montoExento = real_o_nada(rs, "SINS_MONTO_EXENTO");
    o.pagoACuenta = real_o_nada(rs, "SINS_PAGO_CTA_MONTO");
    o.adicionales = real_o_nada(rs, "SINS_ADICIONALES");
    o.calculado = real_o_nada(rs, "SINS_IMPUESTO_CALCULADO");
    o.valuacion = real_o_nada(rs, "SINS_VALUACION_FISCAL");
    o.hipoteca = real_o_nada(rs, "SINS_HIPOTECA");
    o.final = real_o_nada(rs, "SINS_MONTO_FINAL");
    return o;
}

}  // namespace

DJImpresa leer_dj_impresa(const QString& nro)
{
    DJImpresa dj;
    {
        const Recordset rs(cnRtn, QStringLiteral("select count(*) as CANT_MOV from SEL_TB_RTN_DETDJ where SEDJ_NRO='") + nro + QStringLiteral("'"));
        dj.sinMovimientos = rs.entero("cant_mov") == 0;
    }
    const auto cabecera = leer_cabecera_impresa(nro);
    if (!cabecera)
        return dj;
    dj.cabecera = *cabecera;
    if (dj.sinMovimientos)
        return dj;
    cargar_tmp_dj_oper(nro);
    QString anterior;
    for (Recordset rs(cnRtn, consulta_escrituras(nro)); !rs.eof(); rs.siguiente()) {
        if (const QString id = rs.texto("SEDD_ID"); id != anterior) {
            dj.escrituras << leer_escritura(rs);
            anterior = id;
        }
        if (!rs.nulo("SEDO_ID"))
            dj.escrituras.last().operaciones << leer_operacion(rs);
    }
    return dj;
}

std::optional<ReciboImpreso> leer_recibo(const QString& nro)
{
    const Recordset rs(cnRtn, QStringLiteral("select SEL_TB_RTN_DETDJ.SEDJ_NRO, SEL_TB_RTN_DETDJ.SEDD_ESCRITURA_NRO, SEL_TB_RTN_DETDJ.SEDD_FOLIO, SEL_TB_RTN_COMP_RET.*, "
                                             "C.SEDJ_ADSCRIPTO1_NOMBRE, C.SEDJ_ADSCRIPTO2_NOMBRE, T.PARTES, T.INMUEBLES "
                                             " from SEL_TB_RTN_DETDJ inner join SEL_TB_RTN_COMP_RET on SEL_TB_RTN_COMP_RET.SEDJ_NRO=SEL_TB_RTN_DETDJ.SEDJ_NRO "
                                             " and SEL_TB_RTN_COMP_RET.SEDD_ID=SEL_TB_RTN_DETDJ.SEDD_ID inner join SEL_TB_RTN_CABDJ C on C.SEDJ_NRO=SEL_TB_RTN_DETDJ.SEDJ_NRO "
                                             " left join SEL_TMP_DJ_OPER T on T.SEDJ_NRO=SEL_TB_RTN_DETDJ.SEDJ_NRO and T.SEDD_ID=SEL_TB_RTN_DETDJ.SEDD_ID ")
                                  + QStringLiteral(" where (((SEL_TB_RTN_DETDJ.SEDD_ESTADO) = 'P') And ((SEL_TB_RTN_COMP_RET.SCRT_ANULADO) = 'N'))")
                                  + QStringLiteral(" and SEL_TB_RTN_COMP_RET.SCRT_NRO='") + nro + QStringLiteral("'"));
    if (rs.eof())
        return {};
    ReciboImpreso r;
    r.nro = rs.texto("SCRT_NRO");
    r.dj = rs.texto("SEDJ_NRO");
    r.escritura = rs.texto("SEDD_ESCRITURA_NRO");
    r.folio = rs.texto("SEDD_FOLIO");
    r.fechaRetencion = rs.texto("SCRT_FECHA_RETENCION");
    r.fechaEscritura = rs.texto("SCRT_FECHA_ESCRITURA");
    r.titular = rs.texto("SCRT_RTN_NOMBRE");
    r.adscripto1 = rs.texto("SCRT_ADSCRIPTO1_NOMBRE");
    r.adscripto2 = rs.texto("SCRT_ADSCRIPTO2_NOMBRE");
    r.partes = fromSQL(rs.texto("PARTES"));
    r.inmuebles = rs.texto("INMUEBLES");
    r.monto = rs.real("SCRT_MONTO_RETENIDO");
    return r;
}
