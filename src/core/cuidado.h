// SPDX-License-Identifier: GPL-3.0-or-later
// The care of the store that nobody has to think of: the first start of each day checks and copies it, and a copy is
// made before what can't be undone.
#pragma once

#include "core/dialogo.h"

/// On the first start of the day copies the open store when it has changed since the last copy, and checks it; on the
/// others nothing. What goes wrong is told: a copy that can't be made and rows without their parent let the program go
/// on; false for a damaged store, with which the program ends. Nothing is written to the store.
[[nodiscard]] bool cuidar_base(Dialogo& dialogo);

/// Copies the open store before an action that can't be undone. When that fails the user is asked; false for No.
[[nodiscard]] bool respaldar_antes(Dialogo& dialogo);

/// Which copy of the store is the newest sound one, as a sentence, and how to get back to it.
struct UltimoSano
{
    QString frase;
    QString receta = {};
};
[[nodiscard]] UltimoSano ultimo_respaldo_sano(const QString& almacen, Dialogo& dialogo);
