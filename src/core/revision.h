// SPDX-License-Identifier: GPL-3.0-or-later
// Whether a store is whole.
#pragma once

#include "core/imagen.h"

#include <QStringList>

/// What a check of a store found.
struct Revision
{
    QStringList fallas;      ///< what is damaged, in the engine's words; empty for a sound store
    qint64 sinPadre = 0;     ///< rows that point at a row which is not there
    QStringList relaciones;  ///< those rows counted by relation, a line each

    [[nodiscard]] bool sana() const { return fallas.isEmpty(); }
};

/// Reads every page of the store from the disk and checks it and its relations; nothing is written. Throws ErrorAlmacen
/// when somebody else holds the store, Cancelado when the progress ended it.
[[nodiscard]] Revision revisar(Conexion& cn, const Progreso& progreso = {});

/// The same for a file that is not open, which is opened for reading alone; one that does not open is damaged.
[[nodiscard]] Revision revisar_archivo(const QString& ruta, const Progreso& progreso = {});
