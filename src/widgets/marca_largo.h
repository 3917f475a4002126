// SPDX-License-Identifier: GPL-3.0-or-later
// A mark on texts that are longer than what is emitted of them.
#pragma once

#include <span>

class QLineEdit;
class QWidget;

/// From here on the field says, by a mark and a tip, when it holds more than so many characters. It stops nobody.
void marcar_largo(QLineEdit* campo, int ancho);

/// A field of a form by its name, and how many characters of it are emitted.
struct LargoEmitido
{
    const char* campo;
    int ancho;
};
void marcar_largos(const QWidget* form, std::span<const LargoEmitido> campos);
