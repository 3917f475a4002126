// SPDX-License-Identifier: GPL-3.0-or-later
// Amounts of money in Spanish words.
#pragma once

#include <QString>

/// The amount in words with its cents as "con 00/100", or "( 00/100)" between parentheses; the sign
/// is dropped. `modo` 1 is upper case, 2 lower case, 3 a capital for each word, else as composed.
[[nodiscard]] QString nro_a_letras(double importe, int modo, bool entre_parentesis);
