// SPDX-License-Identifier: GPL-3.0-or-later
// How a rate or a number of modules shows in a list.
#pragma once

#include <QString>

/// A number in the separators of the user's locale, not grouped, with the decimals that it has and never an
/// exponent: "50", "7,5", "0,0001".
[[nodiscard]] QString cantidad_llana(double valor);
