// SPDX-License-Identifier: GPL-3.0-or-later
// Whether a piece of a record may be a field, and what it costs to take it for one.
#pragma once

#include "tree/registros.h"

#include <string_view>
#include <utility>

/// The cost of a reading that can't be.
constexpr int IMPOSIBLE = 1 << 20;

[[nodiscard]] inline bool son_cifras(std::string_view t)
{
    for (const char c : t)
        if (static_cast<unsigned char>(c - '0') > 9)
            return false;
    return true;
}

/// Whether the signs of a pattern stand in the text at their places ("0000/00").
[[nodiscard]] inline bool misma_puntuacion(std::string_view patron, std::string_view t)
{
    for (size_t i = 0; i < patron.size(); ++i)
        if (static_cast<unsigned char>(patron[i] - '0') > 9 && (i >= t.size() || t[i] != patron[i]))
            return false;
    return true;
}

/// Whether a piece of the field's own width may be the field. Every field of a file asks it.
[[nodiscard]] inline bool cabe(const CampoRegistro& c, std::string_view t)
{
    switch (c.forma.clase) {
    case Clase::cifras: return son_cifras(t);
    case Clase::siNo: return t == "S" || t == "N";
    case Clase::literal: return t == c.nombre;
    case Clase::primeraLetra: return t == "F" || t == "P" || t == " ";
    case Clase::talCual: return !c.forma.nulo || misma_puntuacion(c.forma.nulo, t);
    default: return true;
    }
}

/// What a reading of the field with these characters costs: 0 when it is as it should be, IMPOSIBLE when
/// it can't be the field.
[[nodiscard]] int costo(const CampoRegistro& c, std::string_view t);
/// The fewest and the most characters that a reading of the field may take.
[[nodiscard]] std::pair<size_t, size_t> largos(const CampoRegistro& c);
