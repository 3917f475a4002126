// SPDX-License-Identifier: GPL-3.0-or-later
// The authority's catalogue takes the place of the one in a store.
#pragma once

#include <QDateTime>
#include <QString>

struct Reemplazo
{
    QString respaldo;  ///< the copy that was made before
    qsizetype tablas = 0;
    qsizetype filas = 0;
};

/// Replaces the catalogue and the reference tables by `TABLE.csv` of the folder, which has them all, in one transaction,
/// after a copy that was found sound. Deeds keep what they point at: a row that one uses can't be missing. Throws
/// ErrorTextos with all faults, ErrorAlmacen and ErrorTarea, with the store as it was.
[[nodiscard]] Reemplazo reemplazar_catalogo(const QString& carpeta, const QString& almacen, const QString& clave,
                                            const QDateTime& momento);
