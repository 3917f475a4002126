// SPDX-License-Identifier: GPL-3.0-or-later

#include "computation/calculo.h"

#include "core/modComunes.h"
#include "core/modGlobales.h"
#include "core/modUtiles.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int MODULOS_O_ALICUOTA = 7;

// Price less loan; the loan is compared with the price only when the price is above the valuation.
double base_precio_menos_prestamo(const CamposImpuesto& c, Dialogo& dialogo)
{
    const double vf = c.nroValuacionFiscal.Value();
    const double vc = c.nroTotalVC.Value();
    const double h = c.nroHipoteca.Value();
    if (vf >= vc)
        return vf - h;
    if (vc < h) {
        dialogo.avisar({u"El préstamo no puede ser mayor que el precio de venta"_s, u"Atención"_s, Icono::ninguno});
        return 0;
    }
    return vc - h;
}

double base_por_tipo(const CamposImpuesto& c, const clsSubconcepto& s, Dialogo& dialogo)
{
    const auto valuacion = [&] { return c.nroValuacionFiscal.Value() * s.PorcentajeValuacionFiscal; };
    switch (s.IdTipoCalculoBI) {
    case 1: return std::max(c.nroTotalVC.Value(), valuacion());
    case 3:
    case 12: return c.nroTotalVC.Value();
    case 6: return valuacion();
    case 11: return base_precio_menos_prestamo(c, dialogo);
    default: return 0;
    }
}

double obligacion_accesoria(const CamposImpuesto& c, const EstadoOperacion& e, double base)
{
    if (!e.subconcepto->ObligAccesoria || !e.obligAccesoria || e.obligAccesoriaDato != 1)
        return 0;
    if (e.obligAccesoriaFijo)
        return c.nroObligAccesoria.Value();
    return e.obligAccesoriaPorc ? c.nroObligAccesoria.Value() / 100 * base : 0;
}

void buscar_modulos(CamposImpuesto& c, EstadoOperacion& e, Dialogo& dialogo)
{
    e.lblMoA = u"Módulos"_s;
    c.nroAux.cantidadDecimales = 2;
    // The bounds are compared with base times module value; the product is deliberate.
    c.nroAux.setValue(c.ctlBaseImponiblePesos.Value() * ValorModulo);
    const QString x = c.nroAux.toSQL();
    const Recordset rs(
        cnRtn, u"select SMOD_ID, SMOD_DESDEVALOR, SMOD_HASTAVALOR, SMOD_MODULOS  from SEL_TB_MODULOS  where SSUB_ID="_s
                   + QString::number(e.subconcepto->IdSubconcepto()) + u" and SMOD_DESDEVALOR<="_s + x
                   + u" and (SMOD_HASTAVALOR=-1 or SMOD_HASTAVALOR>="_s + x + u")"_s);
    if (rs.eof())
        dialogo.avisar(
            {u"Error en la tabla de módulos: No se encuentran los modulos correspondientes para este subconcepto"_s,
             e.titulo, Icono::critico});
    else
        c.nroMoA.setValue(rs.real("SMOD_MODULOS"));
}

void buscar_alicuota(CamposImpuesto& c, EstadoOperacion& e, Dialogo& dialogo)
{
    e.lblMoA = u"Alícuota"_s;
    const QString x = c.ctlBaseImponiblePesos.toSQL();
    const QString desde = c.ctlBaseImponiblePesos.Value() == 0 ? u" and (SALI_DESDEVALOR<="_s
                                                               : u" and (SALI_DESDEVALOR<"_s;
    const Recordset rs(cnRtn, u"select SALI_ID, SALI_DESDEVALOR, SALI_HASTAVALOR, SALI_ALICUOTA  from SEL_TB_ALICUOTAS "
                              u" where SSUB_ID="_s
                                  + QString::number(e.subconcepto->IdSubconcepto()) + desde + x
                                  + u" and (SALI_HASTAVALOR=-1 or SALI_HASTAVALOR>="_s + x + u"))"_s);
    if (!rs.eof()) {
        c.nroMoA.setValue(rs.real("SALI_ALICUOTA"));
        return;
    }
    dialogo.avisar(
        {u"Error: No se encuentra la alícuota correspondiente para este subconcepto"_s, e.titulo, Icono::critico});
    c.nroMoA.setValue(0);
    e.enfocarMoA = true;
}

// Rate on the base, with the minimum before or after the exemption.
void impuesto_variable(CamposImpuesto& c, const clsSubconcepto& s)
{
    Numero& C = c.ctlImpuestoCalculado;
    Numero& I = c.nroImpuesto;
    Numero& X = c.nroMontoExento;
    const double E = c.nroExencionPorc.Value();
    C.setValue(c.nroMoA.Value() * c.ctlBaseImponiblePesos.Value());
    const double minimo = s.ModulosMinimo * ValorModulo;
    const bool sin_minimo = s.ModulosMinimo == -1;
    if (ModoImporteMinimo == 0 && sin_minimo) {
        I.setValue(C.Value() - C.Value() * (E / 100));
        X.setValue(E / 100 * C.Value());
    } else if (ModoImporteMinimo == 1 && sin_minimo) {
        X.setValue(E / 100 * C.Value());
        C.setValue(C.Value() - C.Value() * (E / 100));
        I.setValue(C.Value());
    } else if (ModoImporteMinimo == 0) {
        I.setValue(minimo < C.Value() ? C.Value() : minimo);
        X.setValue(E / 100 * I.Value());
        I.setValue(I.Value() - X.Value());
    } else if (ModoImporteMinimo == 1) {
        X.setValue(E / 100 * C.Value());
        C.setValue(C.Value() - X.Value());
        // In this mode a minimum can undo the exemption altogether.
        if (minimo > C.Value()) {
            I.setValue(minimo);
            X.setValue(0);
        } else {
            I.setValue(C.Value());
        }
    }
}

void ambos(CamposImpuesto& c, double importe)
{
    c.ctlImpuestoCalculado.setValue(importe);
    c.nroImpuesto.setValue(importe);
}

void impuesto_fijo(CamposImpuesto& c, const clsSubconcepto& s)
{
    const double B = c.ctlBaseImponiblePesos.Value();
    if (c.nroMoA.vacio())
        c.ctlImpuestoCalculado.setValue(0);
    else if (s.TipoCalculo == u"FIJO PROPORCIONAL") {
        if (s.RequiereBaseImponible && s.RequiereValorContractual)
            ambos(c, c.nroMoA.Value() * (B * ValorModulo));
    } else if (s.TipoCalculo == u"FIJO")
        ambos(c, B == 0 && s.RequiereBaseImponible ? 0 : c.nroMoA.Value() * ValorModulo);
    else if (s.TipoCalculo == u"FIJO ESCALA")
        ambos(c, c.nroMoA.Value() * ValorModulo);

    // Both values of the setting do the same; they are kept as two on purpose.
    if (ModoImporteFijo == 0 || ModoImporteFijo == 1) {
        const double E = c.nroExencionPorc.Value();
        const double I = c.nroImpuesto.Value();
        c.nroMontoExento.setValue(E / 100 * I);
        c.nroImpuesto.setValue(I - I * (E / 100));
    }
}

void impuesto_por_tipo(CamposImpuesto& c, EstadoOperacion& e, Dialogo& dialogo)
{
    const clsSubconcepto& s = *e.subconcepto;
    if (s.RequiereBaseImponible) {
        CalcularBaseImponible(c, e, dialogo);
        c.ctlBaseImponiblePesos.setValue(c.nroBaseImponible.Value());
    }
    BuscarModulosOAlicuota(c, e, dialogo);
    if (c.nroExencionPorc.Value() == 100)
        ambos(c, 0);
    else if (s.TipoCalculo == u"VARIABLE")
        impuesto_variable(c, s);
    else if (s.TipoCalculo.startsWith(u"FIJO"))
        impuesto_fijo(c, s);
}

}  // namespace

CamposSueltos::CamposSueltos()
{
    for (Numero& campo : n)
        campo.cantidadDecimales = 2;
    n[MODULOS_O_ALICUOTA].cantidadDecimales = 4;
}

CamposImpuesto CamposSueltos::campos()
{
    return {n[0], n[1], n[2], n[3], n[4], n[5], n[6], n[7], n[8], n[9], n[10], n[11], n[12], n[13], n[14], n[15]};
}

QString id_pesos()
{
    return u"PES"_s;
}

int DeterminarLey(const QString& dia, const QString& posicion, Dialogo& dialogo)
{
    const QDate fecha(posicion.left(4).toInt(), posicion.mid(5, 2).toInt(), dia.toInt());
    int ley = 0;
    {
        const Recordset rs(cnRtn, u"select GLEY_NRO, GLEY_VIGENCIA_DESDE from GLB_TB_LEYES where "_s + u' '
                                      + fecha_sql(fecha) + u" >= GLEY_VIGENCIA_DESDE  and ("_s + fecha_sql(fecha)
                                      + u"<=GLEY_VIGENCIA_HASTA  or  GLEY_VIGENCIA_HASTA is null)"_s);
        if (rs.eof())
            dialogo.avisar({u"No se encuentra la ley para la fecha indicada"_s, {}, Icono::ninguno});
        else
            ley = int(rs.entero("GLEY_NRO"));
    }
    obtener_valor_modulo(ley);
    return ley;
}

void CalcularExencionPartes(CamposImpuesto c, const EstadoOperacion& e)
{
    if (!e.subconcepto)
        return;
    QList<double> exentos;
    int n = 0;
    for (const EstadoOperacion::Parte& p : e.partes) {
        const clsRol* rol = p.rol.isEmpty() ? nullptr : e.subconcepto->Roles().FindItem(p.rol);
        if (!rol || !rol->ParicipaImpuesto)
            continue;
        ++n;
        if (p.porcExento)
            exentos << *p.porcExento;
    }
    const double parte = n == 0 ? 0 : 100.0 / n / 100;
    double S = 0;
    for (const double porcentaje : std::as_const(exentos))
        S += porcentaje / 100 * parte;

    const clsSubconcepto& s = *e.subconcepto;
    if (!s.Exencion)
        c.nroExencionPorc.setValue(S * 100);
    else if (S == 1.0)
        c.nroExencionPorc.setValue(100);
    else if (S <= 0)
        c.nroExencionPorc.setValue(s.ExencionPorc);
    else
        c.nroExencionPorc.setValue(s.ExencionPorc / 100 * S * 100);
}

void CalcularBaseImponible(CamposImpuesto c, const EstadoOperacion& e, Dialogo& dialogo)
{
    if (e.idMoneda == id_pesos())
        c.ctlValorCambio.setValue(1);
    if (!e.subconcepto)
        return;
    const double base = base_por_tipo(c, *e.subconcepto, dialogo);
    c.nroBaseImponible.setValue(obligacion_accesoria(c, e, base) + base);
    c.ctlBaseImponiblePesos.setValue(c.nroBaseImponible.Value());
}

void BuscarModulosOAlicuota(CamposImpuesto c, EstadoOperacion& e, Dialogo& dialogo)
{
    if (!e.subconcepto)
        return;
    const QString& tipo = e.subconcepto->TipoCalculo;
    if (tipo == u"FIJO" || tipo == u"FIJO PROPORCIONAL")
        buscar_modulos(c, e, dialogo);
    else if (tipo == u"VARIABLE")
        buscar_alicuota(c, e, dialogo);
}

void CalcularImpuesto(CamposImpuesto c, EstadoOperacion& e, Dialogo& dialogo)
{
    c.ctlBaseImponiblePesos.setValue(0);
    CalcularExencionPartes(c, e);
    if (e.subconcepto)
        impuesto_por_tipo(c, e, dialogo);
    c.nroImpuesto.setValue(c.nroImpuesto.Value() - c.nroPagoACuenta.Value() + c.nroAdicionales.Value());
}

void CalcularValorParcial(const clsSubconcepto* subconcepto, const QString& idMoneda, const Numero& nroValorContractual,
                          const Numero& nroPorcIVA, Numero& ctlValorCambio, Numero& nroBIParcial)
{
    const bool pesos = idMoneda == id_pesos();
    if (pesos)
        ctlValorCambio.setValue(1);
    if (!subconcepto)
        return;
    double p = nroValorContractual.Value() * subconcepto->PorcentajeValorContractual;
    if (!pesos)
        p *= ctlValorCambio.Value();
    if (nroPorcIVA.Value() > 0)
        p = (nroPorcIVA.Value() / 100 + 1) * p;
    nroBIParcial.setValue(p);
}
