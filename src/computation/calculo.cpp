// SPDX-License-Identifier: GPL-3.0-or-later

#include "computation/calculo.h"

#include "computation/anotador.h"
#include "core/modGlobales.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int MODULOS_O_ALICUOTA = 7;

void variable_sin_minimo(CamposImpuesto& c, Pasos* p)
{
    Numero& C = c.ctlImpuestoCalculado;
    const double E = c.nroExencionPorc.Value();
    const double antes = C.Value();
    notar(p, ClasePaso::sinMinimo, {double(ModoImporteMinimo)});
    if (ModoImporteMinimo == 0) {
        tomar(p, ClasePaso::impuestoNetoDelCalculado, c.nroImpuesto, antes - antes * (E / 100), {antes, E});
        tomar(p, ClasePaso::exentoDelCalculado, c.nroMontoExento, E / 100 * antes, {E, antes});
    } else {
        tomar(p, ClasePaso::exentoDelCalculado, c.nroMontoExento, E / 100 * antes, {E, antes});
        tomar(p, ClasePaso::calculadoNeto, C, antes - antes * (E / 100), {antes, E});
        tomar(p, ClasePaso::impuestoEsCalculado, c.nroImpuesto, C.Value(), {C.Value()});
    }
}

void minimo_y_exencion(CamposImpuesto& c, double minimo, Pasos* p)
{
    Numero& I = c.nroImpuesto;
    Numero& X = c.nroMontoExento;
    const double E = c.nroExencionPorc.Value();
    const double C = c.ctlImpuestoCalculado.Value();
    tomar(p, ClasePaso::minimoPrimero, I, minimo < C ? C : minimo, {C, minimo});
    const double impuesto = I.Value();
    tomar(p, ClasePaso::exentoDelImpuesto, X, E / 100 * impuesto, {E, impuesto});
    const double exento = X.Value();
    tomar(p, ClasePaso::impuestoMenosExento, I, impuesto - exento, {impuesto, exento});
}

void exencion_y_minimo(CamposImpuesto& c, double minimo, Pasos* p)
{
    Numero& C = c.ctlImpuestoCalculado;
    Numero& X = c.nroMontoExento;
    const double E = c.nroExencionPorc.Value();
    const double antes = C.Value();
    tomar(p, ClasePaso::exentoDelCalculado, X, E / 100 * antes, {E, antes});
    const double exento = X.Value();
    tomar(p, ClasePaso::calculadoMenosExento, C, antes - exento, {antes, exento});
    const double neto = C.Value();
    tomar(p, ClasePaso::minimoDespues, c.nroImpuesto, minimo > neto ? minimo : neto, {neto, minimo});
    // In this mode a minimum can undo the exemption altogether.
    if (minimo > neto)
        tomar(p, ClasePaso::exencionAnulada, X, 0, {neto, minimo});
}

// Rate on the base, with the minimum before or after the exemption.
void impuesto_variable(CamposImpuesto& c, const clsSubconcepto& s, Pasos* p)
{
    const double M = c.nroMoA.Value();
    const double B = c.ctlBaseImponiblePesos.Value();
    tomar(p, ClasePaso::calculado, c.ctlImpuestoCalculado, M * B, {M, B});
    if (ModoImporteMinimo != 0 && ModoImporteMinimo != 1) {
        notar(p, ClasePaso::modoDesconocido, {double(ModoImporteMinimo)});
        conservar(p, ClasePaso::conservaImpuesto, c.nroImpuesto);
        conservar(p, ClasePaso::conservaExento, c.nroMontoExento);
        return;
    }
    if (s.ModulosMinimo == -1) {
        variable_sin_minimo(c, p);
        return;
    }
    const double minimo = notar(p, ClasePaso::minimo, {double(s.ModulosMinimo), ValorModulo},
                                s.ModulosMinimo * ValorModulo);
    if (ModoImporteMinimo == 0)
        minimo_y_exencion(c, minimo, p);
    else
        exencion_y_minimo(c, minimo, p);
}

void ambos(CamposImpuesto& c, double importe, Pasos* p, ClasePaso clase, std::initializer_list<double> de)
{
    c.ctlImpuestoCalculado.setValue(importe);
    tomar(p, clase, c.nroImpuesto, importe, de);
}

// A kind that this program does not know, or that lacks what it needs: the amounts stay.
void sin_cuenta(const CamposImpuesto& c, Pasos* p)
{
    notar(p, ClasePaso::tipoSinCuenta);
    conservar(p, ClasePaso::conservaCalculado, c.ctlImpuestoCalculado);
    conservar(p, ClasePaso::conservaImpuesto, c.nroImpuesto);
}

void modulos_del_fijo(CamposImpuesto& c, const clsSubconcepto& s, Pasos* p)
{
    const double B = c.ctlBaseImponiblePesos.Value();
    if (c.nroMoA.vacio()) {
        tomar(p, ClasePaso::sinModulos, c.ctlImpuestoCalculado, 0, {});
        conservar(p, ClasePaso::conservaImpuesto, c.nroImpuesto);
    } else if (s.TipoCalculo == u"FIJO PROPORCIONAL" && s.RequiereBaseImponible && s.RequiereValorContractual) {
        const double M = c.nroMoA.Value();
        ambos(c, M * (B * ValorModulo), p, ClasePaso::fijoProporcional, {M, B, ValorModulo});
    } else if (s.TipoCalculo == u"FIJO" && B == 0 && s.RequiereBaseImponible) {
        ambos(c, 0, p, ClasePaso::fijoSinBase, {B});
    } else if (s.TipoCalculo == u"FIJO" || s.TipoCalculo == u"FIJO ESCALA") {
        const double M = c.nroMoA.Value();
        ambos(c, M * ValorModulo, p, ClasePaso::fijoModulos, {M, ValorModulo});
    } else {
        sin_cuenta(c, p);
    }
}

void impuesto_fijo(CamposImpuesto& c, const clsSubconcepto& s, Pasos* p)
{
    modulos_del_fijo(c, s, p);
    // Both values of the setting do the same; they are kept as two on purpose.
    if (ModoImporteFijo == 0 || ModoImporteFijo == 1) {
        const double E = c.nroExencionPorc.Value();
        const double I = c.nroImpuesto.Value();
        tomar(p, ClasePaso::exentoDelImpuesto, c.nroMontoExento, E / 100 * I, {E, I});
        tomar(p, ClasePaso::impuestoNeto, c.nroImpuesto, I - I * (E / 100), {I, E});
    } else {
        notar(p, ClasePaso::sinExencionFija, {double(ModoImporteFijo)});
        conservar(p, ClasePaso::conservaExento, c.nroMontoExento);
    }
}

void impuesto_por_tipo(CamposImpuesto& c, EstadoOperacion& e, Dialogo& dialogo)
{
    const clsSubconcepto& s = *e.subconcepto;
    Pasos* p = e.pasos;
    if (s.RequiereBaseImponible) {
        CalcularBaseImponible(c, e, dialogo);
        c.ctlBaseImponiblePesos.setValue(c.nroBaseImponible.Value());
    } else {
        notar(p, ClasePaso::sinBase);
    }
    BuscarModulosOAlicuota(c, e, dialogo);
    const double E = c.nroExencionPorc.Value();
    if (E == 100) {
        ambos(c, 0, p, ClasePaso::exentoDelTodo, {E});
        conservar(p, ClasePaso::conservaExento, c.nroMontoExento);
    } else if (s.TipoCalculo == u"VARIABLE") {
        impuesto_variable(c, s, p);
    } else if (s.TipoCalculo.startsWith(u"FIJO")) {
        impuesto_fijo(c, s, p);
    } else {
        sin_cuenta(c, p);
        conservar(p, ClasePaso::conservaExento, c.nroMontoExento);
    }
}

// What is calculated, and under which law.
void encabezar(const EstadoOperacion& e)
{
    Pasos& p = *e.pasos;
    p.vaciar();
    if (const clsSubconcepto* s = e.subconcepto) {
        p.anotar(ClasePaso::subconcepto, {double(s->IdSubconcepto())}, 0, s->Descripcion);
        p.anotar(ClasePaso::leyArticulo, {}, 0, s->LeyVigencia);
        p.anotar(ClasePaso::tipoCalculo, {}, 0, s->TipoCalculo);
    }
    p.anotar(ClasePaso::leyPorFecha, {double(e.ley), ValorModulo});
}

}  // namespace

CamposSueltos::CamposSueltos()
{
    for (Numero& campo : n)
        campo.cantidadDecimales = 2;
    n[MODULOS_O_ALICUOTA].cantidadDecimales = 4;
}

CamposSueltos::CamposSueltos(const CamposImpuesto& otros)
{
    const CamposImpuesto& o = otros;
    const Numero* const origen[] = {&o.nroTotalVC,
                                    &o.nroValuacionFiscal,
                                    &o.nroHipoteca,
                                    &o.nroObligAccesoria,
                                    &o.nroBaseImponible,
                                    &o.ctlBaseImponiblePesos,
                                    &o.nroAux,
                                    &o.nroMoA,
                                    &o.nroExencionPorc,
                                    &o.nroMontoExento,
                                    &o.ctlImpuestoCalculado,
                                    &o.ctlImporteMinimo,
                                    &o.nroPagoACuenta,
                                    &o.nroAdicionales,
                                    &o.nroImpuesto,
                                    &o.ctlValorCambio};
    static_assert(std::size(origen) == std::extent_v<decltype(n)>);
    for (size_t i = 0; i < std::size(origen); ++i) {
        n[i] = *origen[i];
        n[i].alCambiar = nullptr;
    }
}

CamposImpuesto CamposSueltos::campos()
{
    return {n[0], n[1], n[2], n[3], n[4], n[5], n[6], n[7], n[8], n[9], n[10], n[11], n[12], n[13], n[14], n[15]};
}

void CalcularImpuesto(CamposImpuesto c, EstadoOperacion& e, Dialogo& dialogo)
{
    if (e.pasos)
        encabezar(e);
    c.ctlBaseImponiblePesos.setValue(0);
    CalcularExencionPartes(c, e);
    if (e.subconcepto) {
        impuesto_por_tipo(c, e, dialogo);
    } else {
        notar(e.pasos, ClasePaso::sinSubconcepto);
        conservar(e.pasos, ClasePaso::conservaImpuesto, c.nroImpuesto);
    }
    const double I = c.nroImpuesto.Value();
    const double pago = c.nroPagoACuenta.Value();
    const double adicionales = c.nroAdicionales.Value();
    tomar(e.pasos, ClasePaso::impuestoFinal, c.nroImpuesto, I - pago + adicionales, {I, pago, adicionales});
}
