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

/// Makes the store aside and renames it into its place. Throws std::runtime_error with file and
/// line on rows that do not fit: unknown references, keys twice, texts over their width, brackets
/// that overlap or leave a hole, and on a store that a program has open. An earlier store is then left as it was.
void construir_almacen(const Construccion& c);
