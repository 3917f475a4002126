// SPDX-License-Identifier: GPL-3.0-or-later
// Builds the store from its schema, views and rows as text.
#pragma once

#include <QString>
#include <QStringList>

struct Construccion
{
    QString textos;        ///< folder of `esquema.sql`, `vistas.sql` and the folders of rows
    QStringList carpetas;  ///< folders of rows, in the order in which they load
    QString destino;       ///< the store to make; an earlier one is replaced at the end
    QString clave;
};

/// Makes the store aside and renames it into its place. Throws ErrorTextos with all that is wrong in the rows,
/// std::runtime_error, also on a store that a program has open. An earlier store is then left as it was.
void construir_almacen(const Construccion& c);
