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
/// The titles of the columns, in the order of the row's members.
[[nodiscard]] QStringList titulos_de_pasos();
/// Titles and rows with tabs between their columns, for the clipboard.
[[nodiscard]] QString pasos_con_tabuladores(const QList<FilaPaso>& filas);
