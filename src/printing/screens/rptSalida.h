// SPDX-License-Identifier: GPL-3.0-or-later
// A report on paper or in a file.
#pragma once

#include <QString>

#include <functional>

class Informe;
class QPagedPaintDevice;

/// Told of each page that is done, and of how many there are, 0 while that is not known; false ends the work.
using AvancePaginas = std::function<bool(int hechas, int total)>;

/// How many pages the report has; lays them out. 0 when it was ended.
[[nodiscard]] int contar_paginas(Informe& informe, const AvancePaginas& avance);
/// Paints the pages from `desde` (0 is the first) up to `hasta`, which is not painted any more; false when it was ended.
[[nodiscard]] bool pintar_informe(Informe& informe, QPagedPaintDevice& papel, int desde, int hasta,
                                  const AvancePaginas& avance);

enum class SalidaPDF { escrito, fallido, cancelado };
/// Writes all pages as a PDF, aside and renamed: unless it is written, what stood there stays.
[[nodiscard]] SalidaPDF guardar_pdf(Informe& informe, const QString& archivo, const QString& titulo,
                                    const AvancePaginas& avance = [](int, int) { return true; });
