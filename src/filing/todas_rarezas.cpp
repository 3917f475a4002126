// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/todas_rarezas.h"

#include <algorithm>

bool Rarezas::partir(RegistroLeido& r)
{
    r_ = &r;
    campos_ = r.registro->campos;
    ancho_ = r.bytes.size() + 1;
    // A record that is too short has something missing: no text of it is longer than it should be.
    puedeAlargar_ = std::ptrdiff_t(r.bytes.size()) > r.registro->ancho() + 1;
    if (tabla_.size() < (campos_.size() + 1) * ancho_)
        tabla_.resize((campos_.size() + 1) * ancho_);
    ++turno_;
    if (resolver(0, 1).costo >= IMPOSIBLE)
        return false;
    r.dudoso = resolver(0, 1).maneras > 1;
    for (size_t i = 0, p = 1; i < campos_.size(); ++i) {
        const size_t tomados = resolver(i, p).tomados;
        r.campos[i] = r.bytes.substr(p, tomados);
        p += tomados;
    }
    return true;
}

Rarezas::Paso Rarezas::resolver(size_t i, size_t p)
{
    if (i == campos_.size())
        return p == r_->bytes.size() ? Paso{turno_, 0, 1, 0} : Paso{turno_, IMPOSIBLE, 0, 0};
    const size_t lugar = i * ancho_ + p;
    if (tabla_[lugar].turno == turno_)
        return tabla_[lugar];
    Paso mejor{turno_, IMPOSIBLE, 0, 0};
    auto [menor, mayor] = largos(campos_[i]);
    if (!puedeAlargar_ && campos_[i].forma.clase != Clase::cifras)
        mayor = std::min(mayor, size_t(campos_[i].ancho));
    for (size_t k = menor; k <= mayor && p + k <= r_->bytes.size(); ++k) {
        const int c = costo(campos_[i], r_->bytes.substr(p, k));
        if (c >= IMPOSIBLE)
            continue;
        const Paso resto = resolver(i + 1, p + k);
        if (c + resto.costo < mejor.costo) {
            mejor.costo = c + resto.costo;
            mejor.maneras = resto.maneras;
            mejor.tomados = k;
        } else if (resto.costo < IMPOSIBLE && c + resto.costo == mejor.costo) {
            mejor.maneras = std::min(2, mejor.maneras + resto.maneras);
        }
    }
    tabla_[lugar] = mejor;
    return mejor;
}
