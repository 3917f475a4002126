// SPDX-License-Identifier: GPL-3.0-or-later
// The taxable base of an operation and of one contract value.

#include "computation/calculo.h"

#include "computation/anotador.h"
#include "computation/moneda.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Price less loan; the loan is compared with the price only when the price is above the valuation.
double base_precio_menos_prestamo(const CamposImpuesto& c, Pasos* p, Dialogo& dialogo)
{
    const double vf = c.nroValuacionFiscal.Value();
    const double vc = c.nroTotalVC.Value();
    const double h = c.nroHipoteca.Value();
    if (vf >= vc)
        return notar(p, ClasePaso::valuacionMenosPrestamo, {vf, h, vc}, vf - h);
    if (vc < h) {
        dialogo.avisar({u"El préstamo no puede ser mayor que el precio de venta"_s, u"Atención"_s, Icono::ninguno});
        return notar(p, ClasePaso::prestamoMayor, {vc, h, vf});
    }
    return notar(p, ClasePaso::precioMenosPrestamo, {vc, h, vf}, vc - h);
}

double valuacion_ajustada(const CamposImpuesto& c, const clsSubconcepto& s, Pasos* p)
{
    const double vf = c.nroValuacionFiscal.Value();
    return notar(p, ClasePaso::valuacionAjustada, {vf, s.PorcentajeValuacionFiscal}, vf * s.PorcentajeValuacionFiscal);
}

double base_por_tipo(const CamposImpuesto& c, const clsSubconcepto& s, Pasos* p, Dialogo& dialogo)
{
    switch (s.IdTipoCalculoBI) {
    case 1: {
        const double vf = valuacion_ajustada(c, s, p);
        const double vc = c.nroTotalVC.Value();
        return notar(p, ClasePaso::baseMayor, {vc, vf}, std::max(vc, vf));
    }
    case 3:
    case 12: {
        const double vc = c.nroTotalVC.Value();
        return notar(p, ClasePaso::baseContractual, {vc}, vc);
    }
    case 6: {
        const double vf = valuacion_ajustada(c, s, p);
        return notar(p, ClasePaso::baseValuacion, {vf}, vf);
    }
    case 11: return base_precio_menos_prestamo(c, p, dialogo);
    default: return notar(p, ClasePaso::baseNula);
    }
}

// What the ancillary obligation adds to the base, or nothing.
std::optional<double> obligacion_accesoria(const CamposImpuesto& c, const EstadoOperacion& e, double base)
{
    if (!e.subconcepto->ObligAccesoria)
        return {};
    if (e.obligAccesoria && e.obligAccesoriaDato == 1) {
        if (e.obligAccesoriaFijo) {
            const double fija = c.nroObligAccesoria.Value();
            return notar(e.pasos, ClasePaso::obligacionFija, {fija}, fija);
        }
        if (e.obligAccesoriaPorc) {
            const double porc = c.nroObligAccesoria.Value();
            return notar(e.pasos, ClasePaso::obligacionPorcentual, {porc, base}, porc / 100 * base);
        }
    }
    notar(e.pasos, ClasePaso::sinObligacion);
    return {};
}

}  // namespace

void CalcularBaseImponible(CamposImpuesto c, const EstadoOperacion& e, Dialogo& dialogo)
{
    if (e.idMoneda == id_pesos())
        c.ctlValorCambio.setValue(1);
    if (!e.subconcepto)
        return;
    const double base = base_por_tipo(c, *e.subconcepto, e.pasos, dialogo);
    if (const auto obligacion = obligacion_accesoria(c, e, base))
        tomar(e.pasos, ClasePaso::baseConObligacion, c.nroBaseImponible, *obligacion + base, {*obligacion, base});
    else
        tomar(e.pasos, ClasePaso::base, c.nroBaseImponible, base, {base});
    c.ctlBaseImponiblePesos.setValue(c.nroBaseImponible.Value());
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
