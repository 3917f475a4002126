// SPDX-License-Identifier: GPL-3.0-or-later
// Entries of the combos that several forms fill alike.
#pragma once

#include <QString>
#include <QVariant>

#include <optional>
#include <vector>

/// One entry: its text and its item data.
struct Entrada
{
    QString texto;
    QVariant dato;
};

using Entradas = std::vector<Entrada>;

/// Entries of a query: the text of one column and the item data of another. Throws ErrorAlmacen.
[[nodiscard]] Entradas leer_entradas(const QString& sql, const char* texto, const char* dato);

/// The entries behind a first one, "(sin filtro)", whose item data is 0.
[[nodiscard]] Entradas con_sin_filtro(const Entradas& leidas);

[[nodiscard]] Entradas provincias();
/// The localities of a province, none without one.
[[nodiscard]] Entradas localidades(std::optional<int> provincia);
/// The localities of the home province.
[[nodiscard]] Entradas localidades_propias();
/// The concepts of the catalogue, each as its number, " - " and its name.
[[nodiscard]] Entradas conceptos_sellos();
