// SPDX-License-Identifier: GPL-3.0-or-later

#include "computation/repaso.h"

#include "core/redondeo.h"

#include <cmath>

namespace {

// Figures that only their own step knows.
constexpr bool suelta(Cifra cifra)
{
    return cifra >= Cifra::codigo;
}

// Figures that come from outside of the calculation; all others an earlier step has left.
constexpr bool dada(Cifra cifra)
{
    switch (cifra) {
    case Cifra::totalVC:
    case Cifra::valuacion:
    case Cifra::prestamo:
    case Cifra::obligacion:
    case Cifra::pagoACuenta:
    case Cifra::adicionales:
    case Cifra::valorModulo:
    case Cifra::exencionItem:
    case Cifra::factorValuacion:
    case Cifra::modulosMinimo: return true;
    default: return false;
    }
}

bool en_tramo(const std::array<double, CIFRAS_POR_PASO>& x, bool desde_incluido)
{
    const bool desde = desde_incluido ? x[1] <= x[0] : x[1] < x[0];
    return desde && (x[2] == -1 || x[2] >= x[0]);
}

// Nothing where the figures can't give a result.
std::optional<double> cuenta(const Paso& p, const FormaPaso& forma)
{
    const auto& [a, b, c, d] = p.cifras;
    switch (forma.cuenta) {
    case Cuenta::copia:
    case Cuenta::conserva: return a;
    case Cuenta::nota:
    case Cuenta::cero: return 0;
    case Cuenta::cien: return 100;
    case Cuenta::suma: return a + b;
    case Cuenta::resta: return a - b;
    case Cuenta::final: return a - b + c;
    case Cuenta::siguiente: return a + 1;
    case Cuenta::producto: return forma.cifras[2] == Cifra::ninguna ? a * b : a * (b * c);
    case Cuenta::mayor: return std::max(a, b);
    case Cuenta::porcion: return 100.0 / a / 100;
    case Cuenta::acumula: return a + b / 100 * c;
    case Cuenta::en_cien: return a * 100;
    case Cuenta::proporcion: return a / 100 * b * 100;
    case Cuenta::porcentaje: return a / 100 * b;
    case Cuenta::neto: return a - a * (b / 100);
    case Cuenta::tramoModulos: return en_tramo(p.cifras, true) ? std::optional(d) : std::nullopt;
    case Cuenta::tramoAlicuota: return en_tramo(p.cifras, a == 0) ? std::optional(d) : std::nullopt;
    }
    return {};
}

bool igual(double obtenido, double anotado, int decimales)
{
    if (!std::isfinite(obtenido))
        return false;
    return (decimales == SIN_REDONDEO ? obtenido : redondear(obtenido, decimales)) == anotado;
}

// Each figure is what the steps before it left; one that comes from outside is taken as it comes first.
bool encadena(const Paso& p, const FormaPaso& forma, Repaso& r)
{
    for (size_t i = 0; i < p.cifras.size(); ++i) {
        const Cifra cifra = forma.cifras[i];
        if (cifra == Cifra::ninguna || suelta(cifra))
            continue;
        auto& valor = r.valores[size_t(cifra)];
        if (!valor && dada(cifra))
            valor = p.cifras[i];
        if (valor != p.cifras[i])
            return false;
    }
    return true;
}

}  // namespace

Repaso repasar(std::span<const Paso> pasos)
{
    Repaso r;
    for (const Cifra desde_cero : {Cifra::sumaVC, Cifra::partes, Cifra::sumaExenta})
        r.valores[size_t(desde_cero)] = 0;
    int numero = 0;
    for (const Paso& p : pasos) {
        const FormaPaso& forma = forma_de(p.clase);
        const auto resultado = cuenta(p, forma);
        if (p.numero != ++numero || !encadena(p, forma, r) || !resultado
            || !igual(*resultado, p.resultado, forma.decimales)) {
            r.falla = numero;
            return r;
        }
        for (const Cifra destino : {forma.destino, forma.otro})
            if (destino != Cifra::ninguna)
                r.valores[size_t(destino)] = p.resultado;
    }
    if (pasos.empty() || pasos.back().clase != ClasePaso::impuestoFinal)
        r.falla = numero + 1;
    return r;
}
