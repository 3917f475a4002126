// SPDX-License-Identifier: GPL-3.0-or-later
// Whether a DJ may be emitted.
#pragma once

#include "core/dialogo.h"

#include <QString>

/// Three checks in their order, the first failure told: gaps in the deeds' numbers, reached deeds
/// without an operation, missing testimonios. An error of the store is told and lets the DJ pass.
[[nodiscard]] bool verificar_dj_completa(const QString& nro, const QString& tituloVentana, Dialogo& dialogo);
