// SPDX-License-Identifier: GPL-3.0-or-later
// The deed's properties as its operations see them.
#pragma once

#include "computation/operacion.h"
#include "core/filas.h"

/// The properties of the deed, one call each: its number, its partida and its valuation in pesos. Throws
/// ErrorAlmacen.
void leer_valuaciones(const RenglonDJ& renglon, const AgregarFila& fila);
/// Links a property of the deed, by its number, to the operation. Without one the statement runs all the same,
/// and finds none. Throws ErrorAlmacen.
void vincular_inmueble(const ClaveOperacion& clave, std::optional<int> inmueble);
