// SPDX-License-Identifier: GPL-3.0-or-later
// Colours that mean something, made readable on the desktop's own: nothing else in the program names one but paper.
#pragma once

#include <QColor>
#include <QPalette>

#include <functional>

class QWidget;

/// How much two colours differ in light, from 1 to 21 (WCAG 2.1, "contrast ratio").
[[nodiscard]] double contraste(const QColor& a, const QColor& b);
/// The colour, darkened or lightened in steps until it differs from the ground by `razon` at least.
[[nodiscard]] QColor legible(QColor color, const QColor& fondo, double razon = 4.5);
/// Whether the desktop writes light on dark.
[[nodiscard]] bool es_oscura(const QPalette& paleta);

/// What a row or a label says by its colour.
enum class Tono { normal, alerta, destacado, apagado };

struct Colores
{
    QColor texto;  ///< invalid: as elsewhere
    QColor fondo;  ///< invalid: as elsewhere
};

/// The colours of a tone in a palette, readable on its fields.
[[nodiscard]] const Colores& colores_de(Tono tono, const QPalette& paleta);

/// The palette with the texts of what is disabled readable: a form that is only read shows most of its fields so.
/// What is chosen looks in a window behind a question as it does in the active one: it is what the question is about.
[[nodiscard]] QPalette con_estados_legibles(QPalette paleta);

/// Light letters on dark ground, for desktops that ask for it and bring no palette of their own.
[[nodiscard]] QPalette paleta_oscura();
/// White on black, or black on white.
[[nodiscard]] QPalette paleta_contraste(bool oscura);

/// Changes the palette of one widget, from that of the program, now and whenever the desktop's changes. A later call takes the place of this one.
void con_paleta(QWidget* w, const std::function<void(QPalette& propia)>& cambio);
/// A field's ground: that of fields, or of the window's face where nothing can be typed.
void pintar_fondo(QWidget* campo, bool se_escribe);
/// The text of a label in a tone other than the normal one.
void pintar_texto(QWidget* rotulo, Tono tono);
