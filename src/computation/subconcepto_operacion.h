// SPDX-License-Identifier: GPL-3.0-or-later
// The item of the catalogue that an operation is of.
#pragma once

#include "catalogue/subconcepto_memoria.h"
#include "core/dialogo.h"

#include <optional>

/// The item of a code under a law, filled from the catalogue. Nothing when the law has no such
/// item or it is not enabled for notaries: that is told, and `hallado` says which it was.
struct ResultadoSubconcepto
{
    std::optional<clsSubconcepto> subconcepto;
    bool hallado = false;
    bool conMinimo = false;
    QString nombreValorContractual;
};
[[nodiscard]] ResultadoSubconcepto buscar_subconcepto(int ley, int codigo, Dialogo& dialogo);
