// SPDX-License-Identifier: GPL-3.0-or-later
// Counts over the declaration tree that several rooms need.
#pragma once

#include <QString>

/// How many deeds a DJ holds. Throws ErrorAlmacen.
[[nodiscard]] int cantidad_renglones(const QString& nro);
