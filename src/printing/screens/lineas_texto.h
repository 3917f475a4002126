// SPDX-License-Identifier: GPL-3.0-or-later
// Texts that take more than one line.
#pragma once

#include "printing/screens/rptPagina.h"

#include <QStringList>

/// The text in lines no wider than `ancho`; a word that is wider is parted.
[[nodiscard]] QStringList en_lineas(const QString& texto, double ancho, double puntos, bool negrita = false);

/// How a text with a title in front of it stands: the lines behind the first begin where the text does.
struct Titulado
{
    double x = 0;
    double ancho = 0;
    double puntos = 9;
    double sangria = -1;  ///< from the title's left edge; negative is right behind the title
    bool tituloNegrita = false;
    bool textoNegrita = false;
};
/// The lines of such a text, each from its own top; an empty text has one, with the title alone.
[[nodiscard]] std::vector<Pagina> lineas_tituladas(const QString& titulo, const QString& texto, const Titulado& como);
