// SPDX-License-Identifier: GPL-3.0-or-later
// The rules of an item's editor: what hangs on which box, what a kind of calculation allows, and the
// checks before the item is saved.
#pragma once

#include "catalogue/subconcepto_fila.h"
#include "core/dialogo.h"

/// A control that works only while a box is ticked, and is emptied with it.
struct DependenciaSubconcepto
{
    const char* control;
    const char* casilla;
};
[[nodiscard]] std::span<const DependenciaSubconcepto> dependencias_subconcepto();
/// Whether all boxes on which a control hangs, near or far, are ticked.
[[nodiscard]] bool habilitado_por_casillas(const QString& control, const ControlesSubconcepto& c);

/// What to tell when this type of calculation of the base holds the box ticked, or nothing; `titulo` is the
/// form's caption.
[[nodiscard]] std::optional<Mensaje> casilla_sujeta(const QString& casilla, std::optional<int> tipoCalculoBI,
                                                    const QString& titulo);

/// Boxes that a type of calculation of the base ticks (true) or clears.
[[nodiscard]] QHash<QString, bool> casillas_de_tipo_bi(int tipoCalculoBI);

/// Which brackets a kind of calculation works on.
enum class Rangos { ningunos, alicuotas, modulos };
[[nodiscard]] Rangos rangos_de_tipo(const QString& tipoCalculo);
/// Why an item with such brackets can't go over to this kind of calculation; empty when it can.
[[nodiscard]] QString impedimento_de_tipo(const QString& tipoCalculo, bool conAlicuotas, bool conModulos);

/// Trims the texts and fills the names and masks left empty; gives the first thing wrong.
[[nodiscard]] std::optional<Falla> validar_subconcepto(ControlesSubconcepto& c);
