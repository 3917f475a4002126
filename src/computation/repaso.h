// SPDX-License-Identifier: GPL-3.0-or-later
// Works the recorded steps out again, from their own figures alone.
#pragma once

#include "computation/pasos.h"

#include <optional>

struct Repaso
{
    /// The number of the first step that does not follow: its result is another one, a figure is not what an
    /// earlier step left, or a step is missing before it. Nothing when all is well.
    std::optional<int> falla;
    std::array<std::optional<double>, size_t(Cifra::cuantas)> valores{};  ///< what the steps left

    [[nodiscard]] std::optional<double> valor(Cifra cifra) const { return valores[size_t(cifra)]; }
};

/// Goes through the steps of a whole calculation; steps that do not end in the tax of the operation fail behind the
/// last one.
[[nodiscard]] Repaso repasar(std::span<const Paso> pasos);
