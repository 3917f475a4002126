// SPDX-License-Identifier: GPL-3.0-or-later
// The manual as the program shows it.
#pragma once

#include <QString>

/// A page of Markdown as HTML that names neither fonts nor colours: those are the desktop's.
[[nodiscard]] QString html_de(const QString& markdown);

/// Writes each page as HTML below the folder `salida`, and there manual.qrc, which names them, and contenido.tsv, their
/// files and titles in order. Throws std::runtime_error.
void escribir_html(const QString& carpeta, const QString& salida);
