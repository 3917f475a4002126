// SPDX-License-Identifier: GPL-3.0-or-later
// A report on paper or in a file.
#pragma once

#include <QString>

class Informe;
class QPagedPaintDevice;

/// Paints the pages from `desde` (0 is the first) up to `hasta`, which is not painted any more.
void pintar_informe(Informe& informe, QPagedPaintDevice& papel, int desde, int hasta);
/// Writes all pages as a PDF, aside and renamed; false when the file can't be written.
[[nodiscard]] bool guardar_pdf(Informe& informe, const QString& archivo, const QString& titulo);
