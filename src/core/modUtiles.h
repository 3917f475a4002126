// SPDX-License-Identifier: GPL-3.0-or-later
// Texts, statements and checks that every form shares.
#pragma once

#include <QDate>
#include <QString>

/// Doubles each apostrophe for a literal; a run of any length comes out as exactly one doubled
/// apostrophe, so that a value quoted twice does not grow.
[[nodiscard]] QString toSQL(const QString& texto);
/// One apostrophe for each run of them.
[[nodiscard]] QString fromSQL(const QString& texto);

/// Trims the argument itself and gives it with each run of blanks as one.
QString compactar_espacios(QString& texto);

/// Whether the text holds a CUIT with a right check digit; hyphens and all else but digits are
/// passed over. The argument is left trimmed.
[[nodiscard]] bool cuit_valido(QString& texto);
/// Only the digits of the text.
[[nodiscard]] QString solo_digitos(const QString& texto);

/// dd/mm/aaaa, empty without a date.
[[nodiscard]] QString fecha_corta(const QDate& fecha);
/// 'YYYY-MM-DD' between apostrophes.
[[nodiscard]] QString fecha_sql(const QDate& fecha);
/// 1 or 0, as the store holds booleans.
[[nodiscard]] QString logico_sql(bool si);
/// The text between apostrophes, as it stands.
[[nodiscard]] QString entre_comillas(const QString& texto);
/// "null" for an empty text, else the text between apostrophes, as it stands.
[[nodiscard]] QString texto_o_null(const QString& texto);
