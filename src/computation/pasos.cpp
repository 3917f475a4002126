// SPDX-License-Identifier: GPL-3.0-or-later

#include "computation/pasos.h"

#include <algorithm>
#include <new>

namespace {

using P = ClasePaso;
using K = Cuenta;
using C = Cifra;

constexpr int LIBRE = SIN_REDONDEO;
constexpr C NADA = C::ninguna;

// In the order of the kinds. An amount is rounded by the field that it is written to, the rate and the modules to 4.
constexpr std::array FORMAS{
    FormaPaso{P::valorSumado, K::suma, LIBRE, C::sumaVC, NADA, {C::sumaVC, C::valorContractual}},
    FormaPaso{P::totalVC, K::copia, 2, C::totalVC, NADA, {C::sumaVC}},
    FormaPaso{P::subconcepto, K::nota, LIBRE, NADA, NADA, {C::codigo}},
    FormaPaso{P::leyArticulo, K::nota, LIBRE, NADA, NADA, {}},
    FormaPaso{P::tipoCalculo, K::nota, LIBRE, NADA, NADA, {}},
    FormaPaso{P::leyPorFecha, K::nota, LIBRE, NADA, NADA, {C::ley, C::valorModulo}},
    FormaPaso{P::sinSubconcepto, K::nota, LIBRE, NADA, NADA, {}},
    FormaPaso{P::parteObligada, K::siguiente, LIBRE, C::partes, NADA, {C::partes}},
    FormaPaso{P::parteAjena, K::nota, LIBRE, NADA, NADA, {}},
    FormaPaso{P::sinPartes, K::nota, LIBRE, NADA, NADA, {C::partes}},
    FormaPaso{P::porcion, K::porcion, LIBRE, C::porcion, NADA, {C::partes}},
    FormaPaso{P::exentoDeParte, K::acumula, LIBRE, C::sumaExenta, NADA, {C::sumaExenta, C::porcExento, C::porcion}},
    FormaPaso{P::exencionDePartes, K::en_cien, 2, C::exencion, NADA, {C::sumaExenta}},
    FormaPaso{P::exencionTotal, K::cien, 2, C::exencion, NADA, {C::sumaExenta}},
    FormaPaso{P::exencionDelSubconcepto, K::copia, 2, C::exencion, NADA, {C::exencionItem, C::sumaExenta}},
    FormaPaso{P::exencionProporcional, K::proporcion, 2, C::exencion, NADA, {C::exencionItem, C::sumaExenta}},
    FormaPaso{P::sinBase, K::cero, 2, C::base, NADA, {}},
    FormaPaso{P::valuacionAjustada, K::producto, LIBRE, C::valuacionAjustada, NADA, {C::valuacion, C::factorValuacion}},
    FormaPaso{P::baseMayor, K::mayor, LIBRE, C::baseSola, NADA, {C::totalVC, C::valuacionAjustada}},
    FormaPaso{P::baseContractual, K::copia, LIBRE, C::baseSola, NADA, {C::totalVC}},
    FormaPaso{P::baseValuacion, K::copia, LIBRE, C::baseSola, NADA, {C::valuacionAjustada}},
    FormaPaso{P::valuacionMenosPrestamo, K::resta, LIBRE, C::baseSola, NADA, {C::valuacion, C::prestamo, C::totalVC}},
    FormaPaso{P::precioMenosPrestamo, K::resta, LIBRE, C::baseSola, NADA, {C::totalVC, C::prestamo, C::valuacion}},
    FormaPaso{P::prestamoMayor, K::cero, LIBRE, C::baseSola, NADA, {C::totalVC, C::prestamo, C::valuacion}},
    FormaPaso{P::baseNula, K::cero, LIBRE, C::baseSola, NADA, {}},
    FormaPaso{P::sinObligacion, K::nota, LIBRE, NADA, NADA, {}},
    FormaPaso{P::obligacionFija, K::copia, LIBRE, C::sumaObligacion, NADA, {C::obligacion}},
    FormaPaso{P::obligacionPorcentual, K::porcentaje, LIBRE, C::sumaObligacion, NADA, {C::obligacion, C::baseSola}},
    FormaPaso{P::base, K::copia, 2, C::base, NADA, {C::baseSola}},
    FormaPaso{P::baseConObligacion, K::suma, 2, C::base, NADA, {C::sumaObligacion, C::baseSola}},
    FormaPaso{P::comparado, K::producto, 2, C::comparado, NADA, {C::base, C::valorModulo}},
    FormaPaso{P::tramoModulos, K::tramoModulos, 4, C::moa, NADA, {C::comparado, C::desde, C::hasta, C::modulosTramo}},
    FormaPaso{P::sinTramoModulos, K::conserva, LIBRE, C::moa, NADA, {C::anterior, C::comparado}},
    FormaPaso{P::tramoAlicuota, K::tramoAlicuota, 4, C::moa, NADA, {C::base, C::desde, C::hasta, C::alicuotaTramo}},
    FormaPaso{P::sinTramoAlicuota, K::cero, 4, C::moa, NADA, {C::base}},
    FormaPaso{P::modulosPuestos, K::conserva, LIBRE, C::moa, NADA, {C::anterior}},
    FormaPaso{P::exentoDelTodo, K::cero, 2, C::calculado, C::impuesto, {C::exencion}},
    FormaPaso{P::calculado, K::producto, 2, C::calculado, NADA, {C::moa, C::base}},
    FormaPaso{P::sinMinimo, K::nota, LIBRE, NADA, NADA, {C::modo}},
    FormaPaso{P::minimo, K::producto, LIBRE, C::minimo, NADA, {C::modulosMinimo, C::valorModulo}},
    FormaPaso{P::minimoPrimero, K::mayor, 2, C::impuesto, NADA, {C::calculado, C::minimo}},
    FormaPaso{P::minimoDespues, K::mayor, 2, C::impuesto, NADA, {C::calculado, C::minimo}},
    FormaPaso{P::exencionAnulada, K::cero, 2, C::exento, NADA, {C::calculado, C::minimo}},
    FormaPaso{P::modoDesconocido, K::nota, LIBRE, NADA, NADA, {C::modo}},
    FormaPaso{P::exentoDelCalculado, K::porcentaje, 2, C::exento, NADA, {C::exencion, C::calculado}},
    FormaPaso{P::exentoDelImpuesto, K::porcentaje, 2, C::exento, NADA, {C::exencion, C::impuesto}},
    FormaPaso{P::calculadoNeto, K::neto, 2, C::calculado, NADA, {C::calculado, C::exencion}},
    FormaPaso{P::calculadoMenosExento, K::resta, 2, C::calculado, NADA, {C::calculado, C::exento}},
    FormaPaso{P::impuestoNetoDelCalculado, K::neto, 2, C::impuesto, NADA, {C::calculado, C::exencion}},
    FormaPaso{P::impuestoNeto, K::neto, 2, C::impuesto, NADA, {C::impuesto, C::exencion}},
    FormaPaso{P::impuestoMenosExento, K::resta, 2, C::impuesto, NADA, {C::impuesto, C::exento}},
    FormaPaso{P::impuestoEsCalculado, K::copia, 2, C::impuesto, NADA, {C::calculado}},
    FormaPaso{P::sinModulos, K::cero, 2, C::calculado, NADA, {}},
    FormaPaso{P::fijoProporcional, K::producto, 2, C::calculado, C::impuesto, {C::moa, C::base, C::valorModulo}},
    FormaPaso{P::fijoSinBase, K::cero, 2, C::calculado, C::impuesto, {C::base}},
    FormaPaso{P::fijoModulos, K::producto, 2, C::calculado, C::impuesto, {C::moa, C::valorModulo}},
    FormaPaso{P::tipoSinCuenta, K::nota, LIBRE, NADA, NADA, {}},
    FormaPaso{P::sinExencionFija, K::nota, LIBRE, NADA, NADA, {C::modo}},
    FormaPaso{P::conservaCalculado, K::conserva, LIBRE, C::calculado, NADA, {C::anterior}},
    FormaPaso{P::conservaImpuesto, K::conserva, LIBRE, C::impuesto, NADA, {C::anterior}},
    FormaPaso{P::conservaExento, K::conserva, LIBRE, C::exento, NADA, {C::anterior}},
    FormaPaso{P::impuestoFinal, K::final, 2, C::impuesto, NADA, {C::impuesto, C::pagoACuenta, C::adicionales}},
};

static_assert(una_por_clase(FORMAS));

}  // namespace

const FormaPaso& forma_de(ClasePaso clase)
{
    return FORMAS.at(size_t(clase));
}

void Pasos::anotar(ClasePaso clase, std::initializer_list<double> cifras, double resultado, const QString& texto,
                   const QString& detalle) noexcept
{
    try {
        Paso& paso = lista_.emplace_back();
        paso.clase = clase;
        paso.numero = int(lista_.size());
        std::copy(cifras.begin(), cifras.end(), paso.cifras.begin());
        paso.resultado = resultado;
        paso.texto = texto;
        paso.detalle = detalle;
    } catch (const std::bad_alloc&) {
        roto_ = true;
    }
}

bool Pasos::completo() const
{
    return !roto_ && !lista_.empty() && lista_.back().clase == ClasePaso::impuestoFinal;
}

std::vector<Paso> juntar_pasos(std::span<const Paso> valores, std::span<const Paso> calculo)
{
    const bool toma_valores = std::ranges::any_of(calculo, [](const Paso& p) {
        return std::ranges::find(forma_de(p.clase).cifras, Cifra::totalVC) != forma_de(p.clase).cifras.end();
    });
    std::vector<Paso> todos;
    if (toma_valores)
        todos.assign(valores.begin(), valores.end());
    const auto antes = int(todos.size());
    for (Paso p : calculo) {
        p.numero += antes;
        todos.push_back(p);
    }
    return todos;
}
