// SPDX-License-Identifier: GPL-3.0-or-later
// The bar codes of the printed forms.
#pragma once

#include "printing/screens/rptPagina.h"

enum class Simbologia { intercalado2de5, code128 };

/// Bars from the left edge of their code, in millimetres.
struct Barras
{
    std::vector<QRectF> negras;  ///< none when the text can't be encoded
    double ancho = 0;            ///< of the whole code
};

/// Width of a narrow bar, in millimetres: a hundredth of an inch, whole dots of a printer of 200, 300 and 600 dpi. It is
/// the widest that leaves the 80 digits of a slip within the margins.
constexpr double MODULO = MM_POR_PULGADA / 100;

/// The bars of Interleaved 2 of 5 or Code 128, `alto` millimetres high.
[[nodiscard]] Barras barras_de(const QString& texto, Simbologia s, double alto);
/// Adds the bars in the middle of the paper, from `y` on, where whole dots begin.
void agregar_centradas(Pagina& pagina, const Barras& barras, double y);
