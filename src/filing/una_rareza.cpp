// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/una_rareza.h"

#include "filing/costo_campo.h"

#include <algorithm>

MedidasRegistro::MedidasRegistro(const Registro& registro)
{
    lugares[0] = 1;
    for (size_t i = 0; i < registro.campos.size(); ++i)
        lugares[i + 1] = lugares[i] + size_t(registro.campos[i].ancho);
}

bool partir_con_una(RegistroLeido& r, const MedidasRegistro& medidas, int falla)
{
    const auto campos = r.registro->campos;
    const auto n = int(campos.size());
    const auto& lugares = medidas.lugares;
    const auto de_mas = std::ptrdiff_t(r.bytes.size()) - std::ptrdiff_t(r.previsto);
    if (de_mas == 0)
        return false;
    const auto llano = [&](int i, std::ptrdiff_t corrido) {
        const auto desde = std::ptrdiff_t(lugares[size_t(i)]) + corrido;
        const auto ancho = size_t(campos[size_t(i)].ancho);
        return desde >= 1 && size_t(desde) + ancho <= r.bytes.size()
               && cabe(campos[size_t(i)], r.bytes.substr(size_t(desde), ancho));
    };
    int antes = falla;  // fields from the start that stand at their places
    while (antes < n && llano(antes, 0))
        ++antes;
    int despues = n;  // first of those that stand at their places counted from the end
    while (despues > 0 && llano(despues - 1, de_mas))
        --despues;
    int elegido = -1;
    int mejor = IMPOSIBLE;
    bool empate = false;
    for (int j = std::max(0, despues - 1); j <= std::min(antes, n - 1); ++j) {
        const auto largo = campos[size_t(j)].ancho + de_mas;
        if (largo < 0 || lugares[size_t(j)] + size_t(largo) > r.bytes.size())
            continue;
        const int c = costo(campos[size_t(j)], r.bytes.substr(lugares[size_t(j)], size_t(largo)));
        empate = c < IMPOSIBLE && (c == mejor || (empate && c >= mejor));
        if (c < mejor) {
            mejor = c;
            elegido = j;
        }
    }
    if (elegido < 0)
        return false;
    r.dudoso = empate;
    for (int i = elegido; i < n; ++i) {
        const auto corrido = i > elegido ? de_mas : 0;
        const auto largo = campos[size_t(i)].ancho + (i == elegido ? de_mas : 0);
        r.campos[size_t(i)] = r.bytes.substr(size_t(std::ptrdiff_t(lugares[size_t(i)]) + corrido), size_t(largo));
    }
    return true;
}

bool UltimaRareza::partir(RegistroLeido& r) const
{
    if (r.bytes.size() != largo_ || r.registro != registro_)
        return false;
    size_t p = 1;
    int total = 0;
    for (size_t i = 0; i < r.registro->campos.size(); p += tomados_[i], ++i) {
        r.campos[i] = r.bytes.substr(p, tomados_[i]);
        total += costo(r.registro->campos[i], r.campos[i]);
    }
    if (total != costo_)
        return false;
    r.dudoso = dudoso_;
    return true;
}

void UltimaRareza::recordar(const RegistroLeido& r)
{
    registro_ = nullptr;
    costo_ = 0;
    for (size_t i = 0; i < r.registro->campos.size(); ++i) {
        tomados_[i] = r.campos[i].size();
        costo_ += costo(r.registro->campos[i], r.campos[i]);
        // A text with blanks at its ends is that record's own.
        if (tomados_[i] != size_t(r.registro->campos[i].ancho) && r.registro->campos[i].forma.clase != Clase::cifras)
            return;
    }
    registro_ = r.registro;
    largo_ = r.bytes.size();
    dudoso_ = r.dudoso;
}
