// SPDX-License-Identifier: GPL-3.0-or-later
// A CUIT as a text and as the number that the store holds. What makes one valid is `cuit_valido`.
#pragma once

#include <QString>

#include <optional>

/// The number of the text's digits; hyphens and all else are passed over. Nothing without a digit.
[[nodiscard]] std::optional<qint64> cuit_numero(const QString& texto);
/// The text of a stored number, empty for none.
[[nodiscard]] QString cuit_texto(const std::optional<qint64>& numero);
/// The text's digits as a statement takes them, "null" without one.
[[nodiscard]] QString cuit_sql(const QString& texto);
/// Whether both texts have the same digits; an empty first one is no CUIT.
[[nodiscard]] bool mismo_cuit(const QString& a, const QString& b);
