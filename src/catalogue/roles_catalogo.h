// SPDX-License-Identifier: GPL-3.0-or-later
// The roles of an item as the catalogue keeps them.
#pragma once

#include "catalogue/clsRol.h"
#include "core/dialogo.h"

/// The roles of an item, those without tax first, each group by its name. Throws ErrorAlmacen.
[[nodiscard]] QList<clsRol> roles_de(qint32 subconcepto);
/// The names of the columns of an item, on one of which a role may depend. Throws ErrorAlmacen.
[[nodiscard]] QStringList atributos_subconcepto();
/// The identifier that the item's next role gets. Throws ErrorAlmacen.
[[nodiscard]] qint64 proximo_rol(qint32 subconcepto);

/// Trims the texts; gives the first thing wrong. `depende` is whether the role hangs on an attribute.
[[nodiscard]] std::optional<Falla> validar_rol(clsRol& rol, bool depende);
/// Throws ErrorAlmacen.
void alta_rol(const clsRol& rol, qint32 subconcepto);
void modificar_rol(const clsRol& rol, qint32 subconcepto);
void borrar_rol(qint64 id);
