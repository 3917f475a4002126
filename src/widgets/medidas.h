// SPDX-License-Identifier: GPL-3.0-or-later
// The forms were drawn for letters of one size; the desktop's may be larger.
#pragma once

class QWidget;

/// How much larger the letters of a widget are than those that the forms were drawn for; never less than 1.
[[nodiscard]] double escala_letra(const QWidget* w);
/// Enlarges a form that has not been shown, and the least and greatest sizes of all that is on it, and the pictures
/// of its bars, with the letters.
void ajustar_a_letra(QWidget* form);
