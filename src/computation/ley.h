// SPDX-License-Identifier: GPL-3.0-or-later
// The law that applies on a date.
#pragma once

#include "core/dialogo.h"

#include <optional>

/// The law of a day of a posición, yyyy/mm; nothing without one, which is told. The value of the module of that
/// law replaces the process-wide one.
std::optional<int> DeterminarLey(const QString& dia, const QString& posicion, Dialogo& dialogo);
