// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/partir_registro.h"

#include "filing/todas_rarezas.h"
#include "filing/una_rareza.h"

#include <optional>

namespace {

constexpr size_t LARGO_DE_MAS = 400;  // longer than any quirk makes a record

// The plain case: every field has its width.
int partir_llano(RegistroLeido& r)
{
    size_t lugar = 1;
    size_t i = 0;
    for (const CampoRegistro& c : r.registro->campos) {
        if (lugar + size_t(c.ancho) > r.bytes.size())
            return int(i);
        r.campos[i] = r.bytes.substr(lugar, size_t(c.ancho));
        if (!cabe(c, r.campos[i]))
            return int(i);
        lugar += size_t(c.ancho);
        ++i;
    }
    return lugar == r.bytes.size() ? -1 : int(i) - 1;
}

// Record 8: the deed, and a text of any length between its marks.
int partir_testimonio(RegistroLeido& r)
{
    const std::string_view inicio = MARCA_INICIO;
    const std::string_view fin = MARCA_FIN;
    if (r.bytes.size() < 4 || !son_cifras(r.bytes.substr(1, 3)))
        return 0;
    if (r.bytes.substr(4, inicio.size()) != inicio)
        return 1;
    if (r.bytes.size() < 4 + inicio.size() + fin.size() || r.bytes.substr(r.bytes.size() - fin.size()) != fin)
        return 3;
    r.campos[0] = r.bytes.substr(1, 3);
    r.campos[1] = inicio;
    r.campos[2] = r.bytes.substr(4 + inicio.size(), r.bytes.size() - 4 - inicio.size() - fin.size());
    r.campos[3] = fin;
    return -1;
}

}  // namespace

struct PartidorRegistros::Estado
{
    // Made when the first record of the kind comes.
    const MedidasRegistro& medidas(const Registro& registro)
    {
        auto& suya = medidas_[size_t(registro.tipo - '0')];
        if (!suya)
            suya.emplace(registro);
        return *suya;
    }
    std::array<std::optional<MedidasRegistro>, 10> medidas_;
    Rarezas rarezas;
    UltimaRareza ultima;
};

PartidorRegistros::PartidorRegistros() : estado_(std::make_unique<Estado>()) {}

PartidorRegistros::~PartidorRegistros() = default;

int PartidorRegistros::partir(RegistroLeido& r)
{
    r.dudoso = false;
    const MedidasRegistro& medidas = estado_->medidas(*r.registro);
    r.previsto = medidas.lugares[r.registro->campos.size()];
    const int falla = r.registro->tipo == '8' ? partir_testimonio(r) : partir_llano(r);
    r.entero = falla < 0;
    if (r.entero || r.registro->tipo == '8')
        return falla;
    if (r.bytes.size() > r.previsto + LARGO_DE_MAS)
        return falla;
    r.entero = partir_con_una(r, medidas, falla) || estado_->ultima.partir(r);
    if (!r.entero && estado_->rarezas.partir(r)) {
        r.entero = true;
        estado_->ultima.recordar(r);
    }
    return r.entero ? -1 : falla;
}
