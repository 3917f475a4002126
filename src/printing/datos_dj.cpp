// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/datos_dj.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "core/redondeo.h"
#include "printing/consulta_escrituras.h"
#include "printing/cuit_impreso.h"
#include "printing/textos_escrituras.h"
#include "tree/totales.h"

using namespace Qt::StringLiterals;

namespace {

std::optional<double> real_o_nada(const Recordset& rs, const char* columna)
{
    return rs.nulo(columna) ? std::optional<double>() : rs.real(columna);
}

QString estado_impreso(const QString& letra)
{
    return letra == u"P" ? u"PASO"_s : letra == u"N" ? u"ANULADA/NO PASO"_s : u"ANULADA/ERROSE"_s;
}

std::optional<CabeceraImpresa> leer_cabecera_impresa(const QString& nro)
{
    const Recordset rs(cnRtn, u" select c.SEDJ_NRO, c.SEDJ_MES, c.SEDJ_ANIO, c.SEDJ_SECUENCIA, "
                              u" c.SEDJ_OBSERVACIONES, c.SEDJ_TOTAL_RETENIDO, c.SRTN_NRO, "
                              u" c.SEDJ_TITULAR_NOMBRE, c.SEDJ_TITULAR_CUIT, L.GLOC_DESCRIPCION, "
                              u" c.SEDJ_CODPOSTAL, c.SEDJ_DOMICILIO, c.SEDJ_TELEFONO, c.SEDJ_EMAIL, "
                              u" c.SEDJ_ADSCRIPTO1_NOMBRE, c.SEDJ_ADSCRIPTO1_CUIT, c.SEDJ_ADSCRIPTO2_NOMBRE, "
                              u" c.SEDJ_ADSCRIPTO2_CUIT, c.SEDJ_ACRED_MONTO, c.SEDJ_ACRED_RESOLUCION "
                              u" FROM SEL_TB_RTN_CABDJ AS C, GLB_TB_LOCALIDADES AS L "
                              u" where C.GLOC_ID = L.GLOC_ID and C.SEDJ_NRO='%1'"_s.arg(nro));
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

QString codigo_legible_dj(const QString& codigo)
{
    QString t;
    for (int i = 0; i < 32; i += 4)
        t += codigo.mid(i, 4) + u' ';
    return t;
}

DJImpresa leer_dj_impresa(const QString& nro)
{
    DJImpresa dj;
    dj.sinMovimientos = cantidad_renglones(nro) == 0;
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
