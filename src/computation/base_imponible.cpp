// SPDX-License-Identifier: GPL-3.0-or-later
// The taxable base of an operation and of one contract value.

#include "computation/calculo.h"

#include "computation/moneda.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

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

}  // namespace

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
