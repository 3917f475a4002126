// SPDX-License-Identifier: GPL-3.0-or-later
// Decimal rounding and the texts of numbers. There is no other place that rounds.
#pragma once

#include <QString>

#include <optional>
#include <stdexcept>
#include <string>

/// A text that is no number was read as one.
class ErrorConversion : public std::runtime_error
{
public:
    ErrorConversion() : std::runtime_error("No coinciden los tipos") {}
};

/// The number's text of 15 significant digits, rounded half away from zero to `decimales`, with
/// "." as separator and no grouping. What rounds to zero has no sign. Throws ErrorConversion for what is
/// no finite number, and so do all others here that round.
[[nodiscard]] QString formato_decimal(double valor, int decimales);
/// The same rounding, as a number.
[[nodiscard]] double redondear(double valor, int decimales);
/// The same under a mask: these separators, an empty `miles` being no grouping.
[[nodiscard]] QString con_mascara(double valor, int decimales, const QString& coma, const QString& miles);
/// Rounded to a whole number, in plain digits.
[[nodiscard]] std::string cifras_enteras(double valor);
/// The number scaled to its last decimal and rounded, where that needs no text: far from a half, and
/// well below 15 digits. Nothing elsewhere.
[[nodiscard]] std::optional<qint64> escalado(double valor, int decimales);

/// An amount with two decimals in the separators of the user's locale, not grouped.
[[nodiscard]] QString importe_llano(double importe);
/// An amount or a rate in the separators of the user's locale, grouped.
[[nodiscard]] QString importe_agrupado(double importe, int decimales = 2);
/// The number at the start of a text under a mask of zeros, with at least as many whole digits as the mask
/// has: "7" under "000" is "007", "2.5" under "0.00" is "2.50".
[[nodiscard]] QString con_formato(const QString& texto, const QString& mascara);
/// A whole number with leading zeros up to `ancho`.
[[nodiscard]] QString con_ceros(qint64 valor, int ancho);
/// Up to 15 significant digits with ".", as a statement takes a number.
[[nodiscard]] QString numero_sql(double valor);

/// The finite number that a text with "." stands for, nothing for any other text.
[[nodiscard]] std::optional<double> leer_numero(const QString& texto);
/// The number that a stored text with "." stands for; throws ErrorConversion.
[[nodiscard]] double numero_de_texto_sql(const QString& texto);
/// The number at the start of the text, 0 when there is none; never fails.
[[nodiscard]] double numero_inicial(const QString& texto);
