// SPDX-License-Identifier: GPL-3.0-or-later
// The modes of the ancillary obligation of an operation.
#pragma once

#include "core/listas.h"

/// The mode, by its name, that has a policy.
extern const QString SEGURO_DE_CAUCION;

/// The modes; the item data is 1 when the mode's bit is in the mask, which then adds to the base, else 0.
/// Throws ErrorAlmacen.
[[nodiscard]] Entradas modos_obligacion(int mascara);
