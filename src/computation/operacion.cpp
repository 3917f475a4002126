// SPDX-License-Identifier: GPL-3.0-or-later

#include "computation/operacion.h"

#include "computation/obligacion.h"
#include "core/asignaciones.h"
#include "core/modGlobales.h"
#include "core/motivos.h"
#include "core/modUtiles.h"
#include "core/redondeo.h"

using namespace Qt::StringLiterals;

namespace {

const QString NULO = u"null"_s;

// Only these two types write the columns of the modules and the rate; the others leave them.
Asignaciones modulos_y_alicuota(const clsSubconcepto& s, const Numero& nroMoA)
{
    if (s.TipoCalculo == u"FIJO")
        return {{"SINS_MODULOS", sql_o_cero(nroMoA)}, {"SINS_ALICUOTA", NULO}};
    if (s.TipoCalculo == u"VARIABLE")
        return {{"SINS_MODULOS", NULO}, {"SINS_ALICUOTA", sql_o_cero(nroMoA)}};
    return {};
}

Asignaciones obligacion_accesoria(const Numero& nroObligAccesoria, const DatosOperacion& d)
{
    const QString poliza = d.obligModoTexto == SEGURO_DE_CAUCION ? texto_o_null(toSQL(d.obligPoliza)) : NULO;
    if (!d.obligAccesoria)
        return {{"SINS_OBLIG_ACCESORIA_FOP", NULO},
                {"SINS_OBLIG_ACCESORIA_VALOR", NULO},
                {"SINS_OBLIG_ACCESORIA_MODO", NULO},
                {"SINS_OBLIG_ACCESORIA_POLIZA", poliza}};
    return {{"SINS_OBLIG_ACCESORIA_FOP", d.obligFijo ? u"'F'"_s : u"'P'"_s},
            {"SINS_OBLIG_ACCESORIA_VALOR", sql_o_cero(nroObligAccesoria)},
            {"SINS_OBLIG_ACCESORIA_MODO", QString::number(d.obligModo.value_or(0))},
            {"SINS_OBLIG_ACCESORIA_POLIZA", poliza}};
}

double suma(const QString& consulta)
{
    const Recordset rs(cnRtn, consulta);
    return rs.eof() ? 0 : rs.real(0);
}

}  // namespace

QString ClaveOperacion::donde() const
{
    return u"%1 and SEDO_ID=%2"_s.arg(deRenglon().donde(), operacion);
}

void actualizar_operacion(const ClaveOperacion& clave, CamposImpuesto c, const DatosOperacion& d)
{
    const clsSubconcepto& s = *d.subconcepto;
    for (Numero* n : {&c.nroPagoACuenta, &c.nroAdicionales})
        if (n->vacio())
            n->setValue(0);
    const bool con_hipoteca = s.RequiereBaseImponible && s.RequiereHipoteca;
    const Asignaciones fila = Asignaciones{{"SSUB_ID", QString::number(identificador_subconcepto(d.ley, d.codigo))},
                                           {"SINS_BASEIMPONIBLE", sql_o_cero(c.nroBaseImponible)},
                                           {"SINS_VALUACION_FISCAL",
                                            c.nroValuacionFiscal.Value() == 0 ? NULO : c.nroValuacionFiscal.toSQL()}}
                              + modulos_y_alicuota(s, c.nroMoA)
                              + Asignaciones{{"SINS_IMPUESTO_CALCULADO", sql_o_cero(c.ctlImpuestoCalculado)},
                                             {"SINS_PORC_EXENTO", sql_o_cero(c.nroExencionPorc)},
                                             {"SINS_MONTO_EXENTO", sql_o_cero(c.nroMontoExento)},
                                             {"SINS_MONTO_INICIAL", sql_o_cero(c.nroImpuesto)},
                                             {"SINS_MONTO_FINAL", sql_o_cero(c.nroImpuesto)},
                                             {"SINS_NRO", entre_comillas(clave.renglon)},
                                             {"SINS_ADICIONALES", c.nroAdicionales.toSQL()},
                                             {"SINS_PAGO_CTA_MONTO", c.nroPagoACuenta.toSQL()}}
                              + obligacion_accesoria(c.nroObligAccesoria, d)
                              + Asignaciones{{"SINS_HIPOTECA", con_hipoteca ? sql_o_cero(c.nroHipoteca) : NULO},
                                             {"SLEX_ID", NULO},
                                             {"SINS_LEY_APLIC_IMPUESTO", entre_comillas(QString::number(d.ley))},
                                             {"SINS_OBS", texto_o_null(toSQL(d.observaciones))}};
    cnRtn.ejecutar(u"update SEL_TB_RTN_INS_OPERACIONES set  %1%2"_s.arg(asignar_sql(fila), clave.donde()));
}

std::optional<Operacion> cargar_operacion(const ClaveOperacion& clave)
{
    return leer_fila<Operacion>(cnRtn, u" select *  from SEL_TB_RTN_INS_OPERACIONES %1"_s.arg(clave.donde()),
                                columnas_operacion());
}

std::optional<Totales> guardar_totales(const ClaveOperacion& clave, Dialogo& dialogo)
{
    try {
        Transaccion t(cnRtn);
        Totales totales;
        totales.renglon = suma(
            u"SELECT SUM(SINS_MONTO_FINAL) AS Suma_SINS_MONTO_FINAL"
            u" from SEL_TB_RTN_INS_OPERACIONES %1 group by SEDJ_NRO"_s.arg(clave.deRenglon().donde()));
        if (cnRtn.ejecutar(u"update SEL_TB_RTN_DETDJ set SEDD_TOTAL_IMPUESTO=%1%2"_s.arg(numero_sql(totales.renglon),
                                                                                         clave.deRenglon().donde()))
            == 0)
            throw ErrorAlmacen(0, QString());
        totales.dj = suma(u"SELECT SUM(SINS_MONTO_FINAL) AS Suma_SEDJ_TOTAL_RETENIDO"
                          u" from SEL_TB_RTN_INS_OPERACIONES where SEDJ_NRO='%1' group by SEDJ_NRO"_s.arg(clave.dj));
        cnRtn.ejecutar(u"update SEL_TB_RTN_CABDJ set SEDJ_TOTAL_RETENIDO=%1 where SEDJ_NRO='%2'"_s.arg(
            numero_sql(totales.dj), clave.dj));
        t.confirmar();
        return totales;
    } catch (const ErrorAlmacen& e) {
        dialogo.avisar(
            {u"Atención: No se pudo modificar el monto del renglón de la DJ"_s, {}, Icono::ninguno, detalles_de(e)});
        return {};
    }
}
