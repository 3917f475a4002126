// SPDX-License-Identifier: GPL-3.0-or-later
// What to tell of an error of the store.
#pragma once

#include <QString>

class ErrorAlmacen;

/// What to tell of an error on a write: a store that somebody holds has words of its own, any other
/// error the engine's.
[[nodiscard]] QString motivo_de_escritura(const ErrorAlmacen& e);
