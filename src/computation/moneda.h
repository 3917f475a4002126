// SPDX-License-Identifier: GPL-3.0-or-later
// The currencies of the contract values, as the combo of the operation's screen holds them.
#pragma once

#include "core/listas.h"

/// The currency that needs no exchange value.
[[nodiscard]] QString id_pesos();
/// An entry a currency: its name padded to a fixed width, and behind it its identifier, which is its item data
/// too. Throws ErrorAlmacen.
[[nodiscard]] Entradas monedas();
/// The identifier of an entry, by its text.
[[nodiscard]] QString id_de_moneda(const QString& entrada);
/// Whether an entry is that of the pesos, by its name.
[[nodiscard]] bool es_pesos(const QString& entrada);
