// SPDX-License-Identifier: GPL-3.0-or-later
// A CUIT as the printed forms show it.
#pragma once

#include "core/almacen.h"

/// The column of the current row in eleven digits; empty for a null.
[[nodiscard]] QString cuit_impreso(const Recordset& rs, const char* columna);
