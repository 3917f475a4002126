// SPDX-License-Identifier: GPL-3.0-or-later
// What all that build or change stores share: the texts, and a store that is open for a change of its own.
#pragma once

#include "core/almacen.h"
#include "core/candado.h"

#include <QDateTime>

/// Throws std::runtime_error with a text in Spanish.
[[noreturn]] void fallar(const QString& texto);

/// A file in UTF-8; throws std::runtime_error when it can't be read.
[[nodiscard]] QString leer_texto(const QString& ruta);

/// A store that nobody else has open, locked until the object goes.
class AlmacenParaCambiar
{
public:
    /// Throws ErrorAlmacen, also when a program has the store open.
    AlmacenParaCambiar(const QString& almacen, const QString& clave);

    /// Copies the store as before anything that can't be undone; gives the copy's file. Throws ErrorAlmacen and
    /// ErrorTarea, also when the copy is not sound.
    [[nodiscard]] QString respaldar(const QDateTime& momento);

private:
    Candado candado_;  // let go of last

public:
    Conexion cn;
};
