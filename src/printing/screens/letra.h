// SPDX-License-Identifier: GPL-3.0-or-later
// The letter of the printed forms and its measures.
#pragma once

#include <QFont>
#include <QHash>

/// Texts are laid out in hundredths of a millimetre, so that a font measures the same everywhere.
constexpr double UNIDADES = 100;

/// A font with the widths of the letters that were measured, in those units: without kerning a text is
/// as wide as its letters, and adding them up is far cheaper than shaping the text.
struct Letra
{
    QFont fuente;
    double subida = 0;
    QHash<char16_t, double> anchos;

    double ancho(QChar c);
    double ancho(QStringView texto);
};

/// The one of this size, which lives as long as the program.
[[nodiscard]] Letra& letra(double puntos, bool negrita);

/// Height of a line of text, in millimetres.
[[nodiscard]] double alto_linea(double puntos);
/// In millimetres.
[[nodiscard]] double ancho_texto(const QString& texto, double puntos, bool negrita = false);
