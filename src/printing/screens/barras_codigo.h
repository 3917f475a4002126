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

/// The bars of Interleaved 2 of 5 or Code 128, with the narrow bar `modulo` millimetres wide.
[[nodiscard]] Barras barras_de(const QString& texto, Simbologia s, double modulo, double alto);
/// Adds the bars in the middle of the paper, from `y` on.
void agregar_centradas(Pagina& pagina, const Barras& barras, double y);
