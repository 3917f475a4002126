// SPDX-License-Identifier: GPL-3.0-or-later
// An older store is brought to the present schema.
#pragma once

#include <QDateTime>
#include <QString>

struct Actualizacion
{
    int desde = 0;        ///< the version that the store had
    QString respaldo;     ///< the copy that was made before; empty when there was nothing to do
    qint64 sinPadre = 0;  ///< rows that point at a row which is not there
};

/// Runs `pasos/N.sql` of the texts for each version above the store's, and makes the views anew, in one transaction,
/// after a copy that was found sound. Throws ErrorAlmacen and ErrorTarea with the store as it was: when a program has it
/// open, when it is of a newer program, when the copy fails, when a step does.
[[nodiscard]] Actualizacion actualizar_almacen(const QString& textos, const QString& almacen, const QString& clave,
                                               const QDateTime& momento);
