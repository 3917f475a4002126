// SPDX-License-Identifier: GPL-3.0-or-later
// The value of a control of the item's editor, whatever the kind of control.
#pragma once

#include <QVariant>

class QWidget;

/// What the control holds: a number and a text as text, a box as bool, a date as date, a list as the identifier
/// chosen, which its first entry has not.
[[nodiscard]] QVariant leer_control(const QWidget* w);
/// Shows a value; an invalid one empties the control.
void poner_control(QWidget* w, const QVariant& valor);
/// A text that only shows stays as it is.
void habilitar_control(QWidget* w, bool si);
