// SPDX-License-Identifier: GPL-3.0-or-later
// A piece of real estate of a deed.
#pragma once

#include "core/dialogo.h"
#include "core/listas.h"
#include "tree/arbol_dj.h"

/// Where a property may lie. Throws ErrorAlmacen.
[[nodiscard]] Entradas caracteres_ubicacion();

/// Trims the partida and the remark; gives the first thing missing.
[[nodiscard]] std::optional<Falla> validar_inmueble(Inmueble& i);
/// Writes the row of `i.id`. Throws ErrorAlmacen: the texts go as they stand, and an apostrophe
/// in one breaks the statement.
void modificar_inmueble(const Inmueble& i, const QString& valFiscalSQL);
/// The property with this identifier, or nothing. Throws ErrorAlmacen.
[[nodiscard]] std::optional<Inmueble> cargar_inmueble(const QString& dj, const QString& renglon, int id);
