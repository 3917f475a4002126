#include "computation/operacion.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "core/numero.h"
#include "declarations/escritura.h"

namespace {

constexpr int USO_ESCRIBANOS = 2;

QString sql_o_cero(const Numero& n)
{
    return n.vacio() ? QStringLiteral("0") : n.toSQL();
}

QString fijar(const char* columna, const QString& valor)
{
    return QStringLiteral(", ") + QLatin1StringView(columna) + QStringLiteral("=") + valor;
}

// Only these two types write the columns of the modules and the rate; the others leave them.
QString modulos_y_alicuota(const clsSubconcepto& s, const Numero& nroMoA)
{
    if (s.TipoCalculo == u"FIJO")
        return fijar("SINS_MODULOS", sql_o_cero(nroMoA)) + fijar("SINS_ALICUOTA", QStringLiteral("null"));
    if (s.TipoCalculo == u"VARIABLE")
        return fijar("SINS_MODULOS", QStringLiteral("null")) + fijar("SINS_ALICUOTA", sql_o_cero(nroMoA));
    return {};
}

}  // namespace

QString ClaveOperacion::donde() const
{
    return donde_renglon(dj, renglon) + QStringLiteral(" and SEDO_ID=") + operacion;
}

ResultadoSubconcepto buscar_subconcepto(int ley, int codigo, Dialogo& dialogo)
{
    ResultadoSubconcepto r;
    const QString id = QString::number(identificador_subconcepto(ley, codigo));
    const Recordset rs(cnRtn, QStringLiteral("select * from SEL_VW_SUBCONCEPTOS ") + QStringLiteral(" where SSUB_ID_CONLEY=") + id);
    const auto rechazar = [&](const QString& motivo) {
        dialogo.avisar({QStringLiteral("El subconcepto ") + QString::number(codigo) + motivo, {}, Icono::ninguno});
        return r;
    };
    if (rs.eof())
        return rechazar(QStringLiteral(" no se encuentra en la ley ") + QString::number(ley));
    r.hallado = true;
    if (rs.nulo("SSUB_USOS") || (rs.entero("SSUB_USOS") & USO_ESCRIBANOS) == 0)
        return rechazar(QStringLiteral(" no se encuentra habilitado para el módulo para escribanos"));
    r.subconcepto.emplace().llenar(rs);
    r.subconcepto->setIdSubconcepto(identificador_subconcepto(ley, codigo));
    r.conMinimo = !rs.nulo("SSUB_MODULOSMIN");
    r.nombreValorContractual = rs.nulo("SSUB_DENOM_VCONTRACTUAL") ? QStringLiteral("Valor contractual") : rs.texto("SSUB_DENOM_VCONTRACTUAL");
    return r;
}

QList<ModoObligacion> modos_obligacion(int mascara)
{
    QList<ModoObligacion> modos;
    for (Recordset rs(cnRtn, QStringLiteral("select GTOA_ID, GTOA_DESCRIPCION from GLB_TB_TIPOS_OBLIG_ACCESORIAS")); !rs.eof(); rs.siguiente())
        modos << ModoObligacion{rs.texto("GTOA_DESCRIPCION"), (rs.entero("GTOA_ID") & mascara) != 0 ? 1 : 0};
    return modos;
}

void actualizar_operacion(const ClaveOperacion& clave, CamposImpuesto c, const DatosOperacion& d)
{
    const clsSubconcepto& s = *d.subconcepto;
    for (Numero* n : {&c.nroPagoACuenta, &c.nroAdicionales})
        if (n->vacio())
            n->setValue(0);
    const QString nulo = QStringLiteral("null");
    const bool con_hipoteca = s.RequiereBaseImponible && s.RequiereHipoteca;
    cnRtn.ejecutar(QStringLiteral("update SEL_TB_RTN_INS_OPERACIONES set ") + QStringLiteral(" SSUB_ID=")
                   + QString::number(identificador_subconcepto(d.ley, d.codigo)) + fijar("SINS_BASEIMPONIBLE", sql_o_cero(c.nroBaseImponible))
                   + fijar("SINS_VALUACION_FISCAL", c.nroValuacionFiscal.Value() == 0 ? nulo : c.nroValuacionFiscal.toSQL())
                   + modulos_y_alicuota(s, c.nroMoA) + fijar("SINS_IMPUESTO_CALCULADO", sql_o_cero(c.ctlImpuestoCalculado))
                   + fijar("SINS_PORC_EXENTO", sql_o_cero(c.nroExencionPorc)) + fijar("SINS_MONTO_EXENTO", sql_o_cero(c.nroMontoExento))
                   + fijar("SINS_MONTO_INICIAL", sql_o_cero(c.nroImpuesto)) + fijar("SINS_MONTO_FINAL", sql_o_cero(c.nroImpuesto))
                   + fijar("SINS_NRO", entre_comillas(clave.renglon)) + fijar("SINS_ADICIONALES", c.nroAdicionales.toSQL())
                   + fijar("SINS_PAGO_CTA_MONTO", c.nroPagoACuenta.toSQL())
                   + fijar("SINS_OBLIG_ACCESORIA_FOP", !d.obligAccesoria ? nulo : d.obligFijo ? QStringLiteral("'F'") : QStringLiteral("'P'"))
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
    return leer_fila<Operacion>(cnRtn, QStringLiteral(" select * ") + QStringLiteral(" from SEL_TB_RTN_INS_OPERACIONES ") + clave.donde(),
                                columnas_operacion());
}

void vincular_inmueble(const ClaveOperacion& clave, int inmueble)
{
    cnRtn.ejecutar(QStringLiteral("update SEL_TB_RTN_INS_INMUEBLES set ") + QStringLiteral(" SEDO_ID=") + clave.operacion
                   + donde_renglon(clave.dj, clave.renglon) + QStringLiteral(" and SEII_ID=") + QString::number(inmueble));
}

std::optional<Totales> guardar_totales(const ClaveOperacion& clave, Dialogo& dialogo)
{
    try {
        Transaccion t(cnRtn);
        Totales totales;
        {
            const Recordset suma(cnRtn, QStringLiteral("SELECT SUM(SINS_MONTO_FINAL) AS Suma_SINS_MONTO_FINAL")
                                            + QStringLiteral(" from SEL_TB_RTN_INS_OPERACIONES ") + donde_renglon(clave.dj, clave.renglon)
                                            + QStringLiteral(" group by SEDJ_NRO"));
            totales.renglon = suma.eof() ? 0 : suma.real(0);
        }
        if (cnRtn.ejecutar(QStringLiteral("update SEL_TB_RTN_DETDJ set SEDD_TOTAL_IMPUESTO=") + numero_sql(totales.renglon)
                           + donde_renglon(clave.dj, clave.renglon))
            == 0)
            throw ErrorAlmacen(0, {});
        {
            const Recordset suma(cnRtn, QStringLiteral("SELECT SUM(SINS_MONTO_FINAL) AS Suma_SEDJ_TOTAL_RETENIDO")
                                            + QStringLiteral(" from SEL_TB_RTN_INS_OPERACIONES where SEDJ_NRO='") + clave.dj
                                            + QStringLiteral("' group by SEDJ_NRO"));
            totales.dj = suma.eof() ? 0 : suma.real(0);
        }
        cnRtn.ejecutar(QStringLiteral("update SEL_TB_RTN_CABDJ set SEDJ_TOTAL_RETENIDO=") + numero_sql(totales.dj)
                       + QStringLiteral(" where SEDJ_NRO='") + clave.dj + QStringLiteral("'"));
        t.confirmar();
        return totales;
    } catch (const ErrorAlmacen&) {
        dialogo.avisar({QStringLiteral("Atención: No se pudo modificar el monto del renglón de la DJ"), {}, Icono::ninguno});
        return {};
    }
}
