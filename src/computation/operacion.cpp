// SPDX-License-Identifier: GPL-3.0-or-later

#include "computation/operacion.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "core/numero.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int USO_ESCRIBANOS = 2;

QString fijar(const char* columna, const QString& valor)
{
    return u", "_s + QLatin1StringView(columna) + u"="_s + valor;
}

// Only these two types write the columns of the modules and the rate; the others leave them.
QString modulos_y_alicuota(const clsSubconcepto& s, const Numero& nroMoA)
{
    if (s.TipoCalculo == u"FIJO")
        return fijar("SINS_MODULOS", sql_o_cero(nroMoA)) + fijar("SINS_ALICUOTA", u"null"_s);
    if (s.TipoCalculo == u"VARIABLE")
        return fijar("SINS_MODULOS", u"null"_s) + fijar("SINS_ALICUOTA", sql_o_cero(nroMoA));
    return {};
}

}  // namespace

QString ClaveOperacion::donde() const
{
    return deRenglon().donde() + u" and SEDO_ID="_s + operacion;
}

ResultadoSubconcepto buscar_subconcepto(int ley, int codigo, Dialogo& dialogo)
{
    ResultadoSubconcepto r;
    const QString id = QString::number(identificador_subconcepto(ley, codigo));
    const Recordset rs(cnRtn, u"select * from SEL_VW_SUBCONCEPTOS  where SSUB_ID_CONLEY="_s + id);
    const auto rechazar = [&](const QString& motivo) {
        dialogo.avisar({u"El subconcepto "_s + QString::number(codigo) + motivo, {}, Icono::ninguno});
        return r;
    };
    if (rs.eof())
        return rechazar(u" no se encuentra en la ley "_s + QString::number(ley));
    r.hallado = true;
    if (rs.nulo("SSUB_USOS") || (rs.entero("SSUB_USOS") & USO_ESCRIBANOS) == 0)
        return rechazar(u" no se encuentra habilitado para el módulo para escribanos"_s);
    r.subconcepto.emplace().llenar(rs);
    r.subconcepto->setIdSubconcepto(identificador_subconcepto(ley, codigo));
    r.conMinimo = !rs.nulo("SSUB_MODULOSMIN");
    r.nombreValorContractual = rs.nulo("SSUB_DENOM_VCONTRACTUAL") ? u"Valor contractual"_s
                                                                  : rs.texto("SSUB_DENOM_VCONTRACTUAL");
    return r;
}

QList<ModoObligacion> modos_obligacion(int mascara)
{
    QList<ModoObligacion> modos;
    for (Recordset rs(cnRtn, u"select GTOA_ID, GTOA_DESCRIPCION from GLB_TB_TIPOS_OBLIG_ACCESORIAS"_s); !rs.eof();
         rs.siguiente())
        modos << ModoObligacion{rs.texto("GTOA_DESCRIPCION"), (rs.entero("GTOA_ID") & mascara) != 0 ? 1 : 0};
    return modos;
}

void actualizar_operacion(const ClaveOperacion& clave, CamposImpuesto c, const DatosOperacion& d)
{
    const clsSubconcepto& s = *d.subconcepto;
    for (Numero* n : {&c.nroPagoACuenta, &c.nroAdicionales})
        if (n->vacio())
            n->setValue(0);
    const QString nulo = u"null"_s;
    const bool con_hipoteca = s.RequiereBaseImponible && s.RequiereHipoteca;
    cnRtn.ejecutar(
        u"update SEL_TB_RTN_INS_OPERACIONES set  SSUB_ID="_s
        + QString::number(identificador_subconcepto(d.ley, d.codigo))
        + fijar("SINS_BASEIMPONIBLE", sql_o_cero(c.nroBaseImponible))
        + fijar("SINS_VALUACION_FISCAL", c.nroValuacionFiscal.Value() == 0 ? nulo : c.nroValuacionFiscal.toSQL())
        + modulos_y_alicuota(s, c.nroMoA) + fijar("SINS_IMPUESTO_CALCULADO", sql_o_cero(c.ctlImpuestoCalculado))
        + fijar("SINS_PORC_EXENTO", sql_o_cero(c.nroExencionPorc))
        + fijar("SINS_MONTO_EXENTO", sql_o_cero(c.nroMontoExento))
        + fijar("SINS_MONTO_INICIAL", sql_o_cero(c.nroImpuesto)) + fijar("SINS_MONTO_FINAL", sql_o_cero(c.nroImpuesto))
        + fijar("SINS_NRO", entre_comillas(clave.renglon)) + fijar("SINS_ADICIONALES", c.nroAdicionales.toSQL())
        + fijar("SINS_PAGO_CTA_MONTO", c.nroPagoACuenta.toSQL())
        + fijar("SINS_OBLIG_ACCESORIA_FOP", !d.obligAccesoria ? nulo
                                            : d.obligFijo     ? u"'F'"_s
                                                              : u"'P'"_s)
        + fijar("SINS_OBLIG_ACCESORIA_VALOR", d.obligAccesoria ? sql_o_cero(c.nroObligAccesoria) : nulo)
        + fijar("SINS_OBLIG_ACCESORIA_MODO", d.obligAccesoria ? QString::number(d.obligModo) : nulo)
        + fijar("SINS_OBLIG_ACCESORIA_POLIZA",
                d.obligModoTexto == u"Seguro de Caución" ? texto_o_null(toSQL(d.obligPoliza)) : nulo)
        + fijar("SINS_HIPOTECA", con_hipoteca ? sql_o_cero(c.nroHipoteca) : nulo) + fijar("SLEX_ID", nulo)
        + fijar("SINS_LEY_APLIC_IMPUESTO", entre_comillas(QString::number(d.ley)))
        + fijar("SINS_OBS", texto_o_null(toSQL(d.observaciones))) + clave.donde());
}

std::optional<Operacion> cargar_operacion(const ClaveOperacion& clave)
{
    return leer_fila<Operacion>(cnRtn, u" select *  from SEL_TB_RTN_INS_OPERACIONES "_s + clave.donde(),
                                columnas_operacion());
}

void vincular_inmueble(const ClaveOperacion& clave, int inmueble)
{
    cnRtn.ejecutar(u"update SEL_TB_RTN_INS_INMUEBLES set  SEDO_ID="_s + clave.operacion + clave.deRenglon().donde()
                   + u" and SEII_ID="_s + QString::number(inmueble));
}

std::optional<Totales> guardar_totales(const ClaveOperacion& clave, Dialogo& dialogo)
{
    try {
        Transaccion t(cnRtn);
        Totales totales;
        {
            const Recordset suma(
                cnRtn, u"SELECT SUM(SINS_MONTO_FINAL) AS Suma_SINS_MONTO_FINAL from SEL_TB_RTN_INS_OPERACIONES "_s
                           + clave.deRenglon().donde() + u" group by SEDJ_NRO"_s);
            totales.renglon = suma.eof() ? 0 : suma.real(0);
        }
        if (cnRtn.ejecutar(u"update SEL_TB_RTN_DETDJ set SEDD_TOTAL_IMPUESTO="_s + numero_sql(totales.renglon)
                           + clave.deRenglon().donde())
            == 0)
            throw ErrorAlmacen(0, {});
        {
            const Recordset suma(cnRtn, u"SELECT SUM(SINS_MONTO_FINAL) AS Suma_SEDJ_TOTAL_RETENIDO"
                                        u" from SEL_TB_RTN_INS_OPERACIONES where SEDJ_NRO='"_s
                                            + clave.dj + u"' group by SEDJ_NRO"_s);
            totales.dj = suma.eof() ? 0 : suma.real(0);
        }
        cnRtn.ejecutar(u"update SEL_TB_RTN_CABDJ set SEDJ_TOTAL_RETENIDO="_s + numero_sql(totales.dj)
                       + u" where SEDJ_NRO='"_s + clave.dj + u"'"_s);
        t.confirmar();
        return totales;
    } catch (const ErrorAlmacen&) {
        dialogo.avisar({u"Atención: No se pudo modificar el monto del renglón de la DJ"_s, {}, Icono::ninguno});
        return {};
    }
}
