// SPDX-License-Identifier: GPL-3.0-or-later
// Whether the brackets of each item of the catalogue cover all amounts once.
#pragma once

#include "tabla_texto.h"

/// Adds what is wrong in the brackets of rates and modules: one that overlaps another, a hole between two, a last one
/// with a limit, values of more decimals than the calculation takes, items that ask for brackets and have none.
void revisar_tramos(const TablasTexto& tablas, QList<FallaTexto>& fallas);
