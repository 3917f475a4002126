// SPDX-License-Identifier: GPL-3.0-or-later
// What the texts of a list's cells stand for: lists sort by it, and spreadsheets get it.
#pragma once

#include <QDate>
#include <QStringList>

#include <optional>

/// Whether the text is written like a number or an amount: what stands at the right of its column.
[[nodiscard]] bool parece_numero(const QString& texto);
/// The number of a cell under the user's locale. One with zeros in front is a name, and so is one of more than 15
/// digits, which no double holds.
[[nodiscard]] std::optional<double> numero_de_celda(const QString& texto);
/// The day of a cell that says dd/mm/yyyy.
[[nodiscard]] std::optional<QDate> fecha_de_celda(const QString& texto);

/// What all cells of a column are, empty ones apart.
enum class ClaseColumna { texto, numero, fecha };
[[nodiscard]] ClaseColumna clase_de_columna(const QStringList& celdas);

/// The places of the cells in ascending order: numbers and days by their values, texts as in the alphabet, empty cells
/// first; equal ones stay as they were.
[[nodiscard]] std::vector<int> orden_de_celdas(const QStringList& celdas);
