// SPDX-License-Identifier: GPL-3.0-or-later
// The steps of a calculation in words.
#pragma once

#include "computation/pasos.h"

#include <QStringList>

/// A step as the panel and the paper show it.
struct FilaPaso
{
    QString numero, titulo, cuenta, redondeo, resultado;
};
[[nodiscard]] QList<FilaPaso> filas_de_pasos(std::span<const Paso> pasos);
/// What the steps on the panel are of.
enum class OrigenPasos {
    ultimo,        ///< the last calculation, which the fields still stand for
    anterior,      ///< the last calculation; one of now would go another way
    interrumpido,  ///< the last calculation, which did not come to its end
    sinCalculo,    ///< none: the operation shows as it was stored
    aparte         ///< one made beside the fields, which it leaves alone
};
/// What is to be said above the steps.
[[nodiscard]] QString aviso_de_pasos(OrigenPasos origen);

/// The titles of the columns, in the order of the row's members.
[[nodiscard]] QStringList titulos_de_pasos();
/// Titles and rows with tabs between their columns, for the clipboard.
[[nodiscard]] QString pasos_con_tabuladores(const QList<FilaPaso>& filas);
