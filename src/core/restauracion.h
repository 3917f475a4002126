// SPDX-License-Identifier: GPL-3.0-or-later
// A copy takes the store's place.
#pragma once

#include "core/respaldos.h"

/// Puts the copy in the place of a store that no program has open, and keeps the replaced one beside it as
/// `NAME-reemplazado-AAAA-MM-DD-HHMMSS.db`. Gives that path, empty when there was no store. Whenever it is cut short
/// the old store stands in its place or the new one does, whole, and the old one is there. Throws ErrorAlmacen: when a
/// program has the store open, when the copy is not sound, when something can't be written.
[[nodiscard]] QString restaurar(const QString& almacen, const Respaldo& respaldo, const QDateTime& momento,
                                const Progreso& progreso = {});
