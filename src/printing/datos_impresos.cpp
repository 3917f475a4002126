// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/datos_impresos.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "core/redondeo.h"

#include <map>

using namespace Qt::StringLiterals;

namespace {

QString cuit_impreso(const Recordset& rs, const char* columna)
{
    return rs.nulo(columna) ? QString() : formato_decimal(rs.real(columna), 0).rightJustified(11, u'0');
}

QString rectificativa(qint64 secuencia)
{
    return secuencia == 0 ? u"Original"_s : u"Rectif. "_s + QString::number(secuencia);
}

std::optional<double> real_o_nada(const Recordset& rs, const char* columna)
{
    return rs.nulo(columna) ? std::optional<double>() : rs.real(columna);
}

QString estado_impreso(const QString& letra)
{
    return letra == u"P" ? u"PASO"_s : letra == u"N" ? u"ANULADA/NO PASO"_s : u"ANULADA/ERROSE"_s;
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
        cnRtn.ejecutar(u"update SEL_TMP_DJ_OPER set "_s + QLatin1String(columna) + u"='"_s + toSQL(texto)
                       + u"' where SEDJ_NRO='"_s + nro + u"' and SEDD_ID="_s + id);
}

QString texto_parte(const Recordset& rs)
{
    QString t = rs.texto("SPIN_RSOCIAL");
    t += rs.texto("SPIN_NACIONALIDAD") == u"A" ? u" "_s + rs.texto("GTDC_DESCRIPCION") + u' ' + rs.texto("SPIN_NRODOC")
                                               : u" "_s + rs.texto("CPAI_CODIGO") + u' ' + rs.texto("SPIN_NRODOC");
    if (const QString cuit = cuit_impreso(rs, "SPIN_CUIT"); !cuit.isEmpty() && cuit != rs.texto("SPIN_NRODOC"))
        t += u' ' + cuit;
    if (rs.logico("SPIN_CUIT_EN_TRAMITE"))
        t += u" (CUIT en trámite)"_s;
    return t.simplified() + u"; "_s;
}

}  // namespace

QString codigo_legible_boleta(const QString& codigo)
{
    QString t;
    for (int i = 0; i < 80; i += 10)
        t += codigo.mid(i, 5) + u' ' + codigo.mid(i + 5, 5) + u"  "_s;
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
    const Recordset rs(
        cnRtn,
        u"SELECT SEL_TB_RTN_BOLDEP.*, iif(coalesce(SBDI_ANULADA,0),'Anulada','') AS Estado, C.SEDJ_TITULAR_NOMBRE, "
        u"C.SEDJ_TITULAR_CUIT, C.SEDJ_MES, C.SEDJ_ANIO, C.SEDJ_SECUENCIA "
        u" from SEL_TB_RTN_BOLDEP inner join SEL_TB_RTN_CABDJ C on C.SEDJ_NRO=SEL_TB_RTN_BOLDEP.SEDJ_NRO "
        u" where SBDI_NROBOLETA='"_s
            + nro + u"' order by SEL_TB_RTN_BOLDEP.SBDI_ID, SEL_TB_RTN_BOLDEP.SBDI_FECHA_EMISION"_s);
    if (rs.eof())
        return {};
    BoletaImpresa b;
    b.nro = rs.texto("SBDI_NROBOLETA");
    b.titular = rs.texto("SEDJ_TITULAR_NOMBRE");
    b.cuit = cuit_impreso(rs, "SEDJ_TITULAR_CUIT");
    b.agenteNro = rs.texto("SBDI_RTN_NRO");
    b.posicion = con_ceros(rs.entero("SEDJ_MES"), 2) + u'/' + con_ceros(rs.entero("SEDJ_ANIO"), 4) + u" ("_s
                 + rectificativa(rs.entero("SEDJ_SECUENCIA")) + u")"_s;
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
    cnRtn.ejecutar(u"delete from sel_tmp_dj_oper"_s);
    cnRtn.ejecutar(
        u" insert into SEL_TMP_DJ_OPER (SEDJ_NRO, SEDD_ID, PARTES, INMUEBLES) "
        u" select SEDJ_NRO, SEDD_ID, NULL as PARTES, NULL as INMUEBLES  from SEL_TB_RTN_DETDJ where SEDJ_NRO='"_s
        + nro + u"'"_s);
    const QString inmuebles =
        u"select SEDJ_NRO, SEDD_ID, SEII_ID, SEII_PARTIDA, GTUB_DESCRIPCION, SEII_VAL_FISCAL "
        u" from SEL_TB_RTN_INS_INMUEBLES I  inner join GLB_TB_TIPOS_UBICACION  TU ON I.GTUB_ID = TU.GTUB_ID"
        u" where SEDJ_NRO='"_s
        + nro + u"' order by SEDJ_NRO, SEDD_ID"_s;
    guardar_textos("INMUEBLES", nro, textos_por_escritura(inmuebles, [](const Recordset& rs) {
                       return u"Partida: "_s + rs.texto("SEII_PARTIDA") + u" - "_s + rs.texto("GTUB_DESCRIPCION")
                              + u" - Val.Fiscal: $"_s + importe_agrupado(rs.real("SEII_VAL_FISCAL")) + u"; "_s;
                   }));
    const QString partes =
        u"select P.*, T.GTDC_DESCRIPCION from SEL_TB_RTN_INS_PARTES P left join GLB_TB_AFIP_TIPOS_DOC T on T.GTDC_ID=P.GTDC_ID "
        u"left join GLB_TB_AFIP_CODIGOS_PAIS C on C.CPAI_CODIGO=P.CPAI_CODIGO where P.SEDJ_NRO='"_s
        + nro + u"' order by P.SEDJ_NRO, P.SEDD_ID, P.SPIN_ID"_s;
    guardar_textos("PARTES", nro, textos_por_escritura(partes, texto_parte));
    t.confirmar();
}

namespace {

std::optional<CabeceraImpresa> leer_cabecera_impresa(const QString& nro)
{
    const Recordset rs(
        cnRtn, u" select c.SEDJ_NRO, c.SEDJ_MES, c.SEDJ_ANIO, c.SEDJ_SECUENCIA, "
               u" c.SEDJ_OBSERVACIONES, c.SEDJ_TOTAL_RETENIDO, c.SRTN_NRO, "
               u" c.SEDJ_TITULAR_NOMBRE, c.SEDJ_TITULAR_CUIT, L.GLOC_DESCRIPCION, "
               u" c.SEDJ_CODPOSTAL, c.SEDJ_DOMICILIO, c.SEDJ_TELEFONO, c.SEDJ_EMAIL, "
               u" c.SEDJ_ADSCRIPTO1_NOMBRE, c.SEDJ_ADSCRIPTO1_CUIT, c.SEDJ_ADSCRIPTO2_NOMBRE, "
               u" c.SEDJ_ADSCRIPTO2_CUIT, c.SEDJ_ACRED_MONTO, c.SEDJ_ACRED_RESOLUCION "
               u" FROM SEL_TB_RTN_CABDJ AS C, GLB_TB_LOCALIDADES AS L  where C.GLOC_ID = L.GLOC_ID and C.SEDJ_NRO='"_s
                   + nro + u"'"_s);
    if (rs.eof())
        return {};
    CabeceraImpresa c;
    c.nro = rs.texto("SEDJ_NRO");
    c.posicion = con_ceros(rs.entero("SEDJ_MES"), 2) + u'/' + rs.texto("SEDJ_ANIO");
    c.rectificativa = rs.entero("SEDJ_SECUENCIA") == 0 ? u"Original"_s
                                                       : u"Rectificativa "_s + rs.texto("SEDJ_SECUENCIA");
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
    const QString deed =
        u"D.SEDD_ID, D.SEDD_DIA, D.SEDD_ESCRITURA_NRO, D.SEDD_FOLIO, D.SEDD_TOTAL_IMPUESTO, D.SEDD_ESTADO, D.SEDD_ALCANZADO, "
        u"D.SNAD_DESC_OTRO, D.SEDD_OBSERVACIONES, T.PARTES, T.INMUEBLES"_s;
    const QString nulos =
        u", null as SEDO_ID, null as SSUB_DESCRIPCION, null as SSUB_LEYVIGENCIA, null as SINS_BASEIMPONIBLE, null as SINS_MODULOS, "
        u"null as SINS_ALICUOTA, null as SINS_PORC_EXENTO, null as SINS_MONTO_EXENTO, null as SINS_MONTO_FINAL, null as SINS_PAGO_CTA_MONTO, "
        u"null as SINS_OBS, null as SINS_ADICIONALES, null as SINS_VALUACION_FISCAL, null as SINS_HIPOTECA, null as SINS_IMPUESTO_CALCULADO"_s;
    const QString de =
        u" from SEL_TB_RTN_DETDJ D left join sel_tmp_dj_oper T on T.SEDJ_NRO=D.SEDJ_NRO and T.SEDD_ID=D.SEDD_ID "_s;
    const QString donde = u" where D.SEDJ_NRO='"_s + nro + u"'"_s;
    const QString sin_operacion = u" and not exists (select sedd_id from sel_tb_rtn_ins_operaciones O "
                                  u"         where o.sedd_id= d.sedd_id AND O.SEDJ_NRO=D.SEDJ_NRO)"_s;
    return u"select * from (select "_s + deed
           + u", null as SNAD_DESCRIPCION, O.SEDO_ID, S.SSUB_DESCRIPCION, S.SSUB_LEYVIGENCIA, O.SINS_BASEIMPONIBLE, O.SINS_MODULOS, O.SINS_ALICUOTA, "
             u"O.SINS_PORC_EXENTO, O.SINS_MONTO_EXENTO, O.SINS_MONTO_FINAL, O.SINS_PAGO_CTA_MONTO, O.SINS_OBS, O.SINS_ADICIONALES, O.SINS_VALUACION_FISCAL, "
             u"O.SINS_HIPOTECA, O.SINS_IMPUESTO_CALCULADO"_s
           + de
           + u" inner join SEL_TB_RTN_INS_OPERACIONES O on O.SEDJ_NRO=D.SEDJ_NRO and O.SEDD_ID=D.SEDD_ID "
             u" left join SEL_TB_SUBCONCEPTOS S on O.SSUB_ID=S.SSUB_ID "_s
           + donde + u" and D.SEDD_ALCANZADO='S' Union All select "_s + deed + u", null"_s + nulos + de + donde
           + u" and D.SEDD_ALCANZADO='S'"_s + sin_operacion + u" union All select "_s + deed
           + u", NOA.SNAD_DESCRIPCION"_s + nulos + de
           + u" left join SEL_TB_NO_ALCANZADOS_DESC NOA on D.SNAD_ID=NOA.SNAD_ID"_s + donde
           + u" and D.SEDD_ALCANZADO='N')  ORDER BY SEDD_ESCRITURA_NRO, SEDD_ID, SEDO_ID"_s;
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
        const Recordset rs(cnRtn,
                           u"select count(*) as CANT_MOV from SEL_TB_RTN_DETDJ where SEDJ_NRO='"_s + nro + u"'"_s);
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
    const Recordset rs(
        cnRtn,
        u"select SEL_TB_RTN_DETDJ.SEDJ_NRO, SEL_TB_RTN_DETDJ.SEDD_ESCRITURA_NRO, SEL_TB_RTN_DETDJ.SEDD_FOLIO, SEL_TB_RTN_COMP_RET.*, "
        u"C.SEDJ_ADSCRIPTO1_NOMBRE, C.SEDJ_ADSCRIPTO2_NOMBRE, T.PARTES, T.INMUEBLES "
        u" from SEL_TB_RTN_DETDJ inner join SEL_TB_RTN_COMP_RET on SEL_TB_RTN_COMP_RET.SEDJ_NRO=SEL_TB_RTN_DETDJ.SEDJ_NRO "
        u" and SEL_TB_RTN_COMP_RET.SEDD_ID=SEL_TB_RTN_DETDJ.SEDD_ID inner join SEL_TB_RTN_CABDJ C on C.SEDJ_NRO=SEL_TB_RTN_DETDJ.SEDJ_NRO "
        u" left join SEL_TMP_DJ_OPER T on T.SEDJ_NRO=SEL_TB_RTN_DETDJ.SEDJ_NRO and T.SEDD_ID=SEL_TB_RTN_DETDJ.SEDD_ID "
        u" where (((SEL_TB_RTN_DETDJ.SEDD_ESTADO) = 'P') And ((SEL_TB_RTN_COMP_RET.SCRT_ANULADO) = 'N'))"
        u" and SEL_TB_RTN_COMP_RET.SCRT_NRO='"_s
            + nro + u"'"_s);
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
