// SPDX-License-Identifier: GPL-3.0-or-later
// The value of the module and the check digit of the bar code.
#pragma once

#include <QString>

/// Loads `ValorModulo` with the value of a law's module, in pesos. Without a row it keeps what it
/// had. Throws ErrorAlmacen.
void obtener_valor_modulo(int ley);

/// Sum of the digits by the weights 3, 1, 7, 9 from the right; -1 when a character is no digit.
[[nodiscard]] int suma_ponderada(const QString& digitos);
/// Complement to ten of the last digit of that sum.
[[nodiscard]] int digito_verificador(const QString& digitos);
