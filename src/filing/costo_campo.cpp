// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/costo_campo.h"

#include "filing/codificacion.h"

#include <cstring>

namespace {

constexpr size_t CIFRAS_DE_MAS = 6;
constexpr size_t BLANCOS_DE_MAS = 60;

bool es_clave(const char* nombre)
{
    for (const char* clave : {"SEDD_ID", "SEDO_ID", "SEII_ID", "SPIN_ID", "SVCI_ID", "SROL_ID", "SSUB_ID"})
        if (std::strcmp(nombre, clave) == 0)
            return true;
    return false;
}

}  // namespace

int costo(const CampoRegistro& c, std::string_view t)
{
    const auto ancho = size_t(c.ancho);
    if (t.size() == ancho && cabe(c, t))
        return 0;
    switch (c.forma.clase) {
    case Clase::cifras:
        if (!t.empty() && t.size() < ancho)
            return IMPOSIBLE;
        if (t.empty())
            return c.forma.nulo || es_clave(c.nombre) ? IMPOSIBLE : 2;
        if (t.front() == '-')
            return t.size() > ancho && son_cifras(t.substr(1)) ? 1 + int(t.size() - ancho - 1) : IMPOSIBLE;
        return t.size() > ancho && t.front() != '0' && son_cifras(t) ? 2 + int(t.size() - ancho) : IMPOSIBLE;
    case Clase::talCual: return t.empty() ? 2 : t.size() > ancho && t.size() <= ancho + 2 ? 3 : IMPOSIBLE;
    case Clase::recortado:
        // The blanks of the stored text make the field longer by as many.
        return t.size() > ancho && recortar(t).size() <= ancho && (t.front() == ' ' || t.back() == ' ')
                   ? 4 + int(t.size() - ancho)
                   : IMPOSIBLE;
    case Clase::hastaElAncho: return t.size() > ancho ? 1 : IMPOSIBLE;
    default: return IMPOSIBLE;
    }
}

std::pair<size_t, size_t> largos(const CampoRegistro& c)
{
    const auto ancho = size_t(c.ancho);
    switch (c.forma.clase) {
    case Clase::cifras: return {0, ancho + 1 + CIFRAS_DE_MAS};
    case Clase::talCual: return {0, ancho + 2};
    case Clase::recortado: return {ancho, ancho + BLANCOS_DE_MAS};
    case Clase::hastaElAncho: return {ancho, ancho + BLANCOS_DE_MAS};
    default: return {ancho, ancho};
    }
}
