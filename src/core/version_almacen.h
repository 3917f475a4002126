// SPDX-License-Identifier: GPL-3.0-or-later
// Which schema a store has.
#pragma once

#include "core/conexion.h"

/// The version of the schema that this program works with.
constexpr int VERSION_ALMACEN = 1;

/// The version that the store says in its header (`user_version`); 0 for the first ones, which said none.
[[nodiscard]] int version_almacen(Conexion& cn);

/// Throws ErrorAlmacen for a store that a newer program brought to its schema.
void rechazar_mas_nueva(Conexion& cn);

/// Throws ErrorAlmacen, with what to do, for a store of another version than the program's.
void exigir_version(Conexion& cn);
