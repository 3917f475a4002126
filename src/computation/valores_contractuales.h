// SPDX-License-Identifier: GPL-3.0-or-later
// The contract values of an operation in the store. All throw ErrorAlmacen.
#pragma once

#include "computation/operacion.h"
#include "computation/pasos.h"
#include "core/filas.h"

/// The contract values, one call a row; gives their sum in pesos. A row without currency comes
/// once for each currency, and is summed as often: the join is deliberately so. `pasos` takes the sums down.
double leer_valores(const ClaveOperacion& clave, const AgregarFila& fila, Pasos* pasos = nullptr);
/// The contract value of an identifier, or nothing.
[[nodiscard]] std::optional<ValorContractual> cargar_valor(const ClaveOperacion& clave, const QString& id);
void modificar_valor(const ValorContractual& v);
void borrar_valor(const ClaveOperacion& clave, const QString& id);
