// SPDX-License-Identifier: GPL-3.0-or-later
// What the program asks of the rows of the catalogue, beyond types and relations, as tables of checks.
#pragma once

#include "tabla_texto.h"

/// Adds the rows that break a rule: values that the program does not know, a box that is ticked without what it asks for,
/// identifiers that are not their owner's, laws without an end or a module, and rows that are looked for by name.
void revisar_reglas(Conexion& cn, const TablasTexto& tablas, QList<FallaTexto>& fallas);
