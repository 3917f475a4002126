// SPDX-License-Identifier: GPL-3.0-or-later
// The manual on paper.
#pragma once

#include <QString>

/// Writes the manual as a PDF of A4 pages: a cover, the contents with page numbers, and each page of the manual from a
/// page of its own. Links say the number of their page. Throws std::runtime_error.
void escribir_pdf(const QString& carpeta, const QString& archivo, const QString& version);
