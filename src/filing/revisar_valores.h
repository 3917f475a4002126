// SPDX-License-Identifier: GPL-3.0-or-later
// Checks of one record of a return file by itself.
#pragma once

#include "filing/anotar_fallas.h"

/// Notes another length than the widths give, control characters, and letters that a field does not admit.
void revisar_valores(const RegistroLeido& r, AnotadorFallas& fallas);
