// SPDX-License-Identifier: GPL-3.0-or-later
// How the calculation takes its steps down. Without a recorder nothing is built.
#pragma once

#include "computation/pasos.h"
#include "core/numero.h"

#include <limits>

/// What the field holds; what can't be read is no number here, and fails where the calculation itself reads it.
[[nodiscard]] inline double leido(const Numero& campo) noexcept
{
    try {
        return campo.Value();
    } catch (const ErrorConversion&) {
        return std::numeric_limits<double>::quiet_NaN();
    }
}

/// Writes the field, and notes of which figures that came.
inline void tomar(Pasos* pasos, ClasePaso clase, Numero& campo, double valor, std::initializer_list<double> de)
{
    campo.setValue(valor);
    if (pasos)
        pasos->anotar(clase, de, leido(campo));
}

/// A step that keeps what the field holds.
inline void conservar(Pasos* pasos, ClasePaso clase, const Numero& campo)
{
    if (pasos)
        pasos->anotar(clase, {leido(campo)}, leido(campo));
}

/// A step that writes no field; gives its result back.
inline double notar(Pasos* pasos, ClasePaso clase, std::initializer_list<double> de = {}, double resultado = 0)
{
    if (pasos)
        pasos->anotar(clase, de, resultado);
    return resultado;
}
