// SPDX-License-Identifier: GPL-3.0-or-later
// A rectificativa: a whole DJ copied under the next sequence.
#pragma once

#include "core/dialogo.h"

#include <QString>

/// Copies the DJ `nro` with what hangs from it; renglones and their children keep their numbers.
/// The code, slips and receipts are not copied. Gives the new number, empty after a failure. What
/// was copied before a failure stays.
[[nodiscard]] QString copiar_dj(const QString& nro, Dialogo& dialogo);
