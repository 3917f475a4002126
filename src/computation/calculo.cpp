// SPDX-License-Identifier: GPL-3.0-or-later

#include "computation/calculo.h"

#include "core/modGlobales.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int MODULOS_O_ALICUOTA = 7;

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

void CalcularImpuesto(CamposImpuesto c, EstadoOperacion& e, Dialogo& dialogo)
{
    c.ctlBaseImponiblePesos.setValue(0);
    CalcularExencionPartes(c, e);
    if (e.subconcepto)
        impuesto_por_tipo(c, e, dialogo);
    c.nroImpuesto.setValue(c.nroImpuesto.Value() - c.nroPagoACuenta.Value() + c.nroAdicionales.Value());
}
