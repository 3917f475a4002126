// SPDX-License-Identifier: GPL-3.0-or-later
// What hangs from a deed: the rows of its three lists, their deletion, and the totals that
// deletion lowers. All of it throws ErrorAlmacen.
#pragma once

#include "core/dialogo.h"
#include "core/filas.h"
#include "tree/renglon.h"

/// The parties of a deed: identifier, type and number of document, name, nationality.
void leer_partes(const RenglonDJ& r, const AgregarFila& fila);
/// The operations of a deed: number, code, description, base, tax. Gives the sum of their taxes, in pesos.
double leer_operaciones(const RenglonDJ& r, const AgregarFila& fila);
/// The real estate of a deed: number, partida, location, fiscal value.
void leer_inmuebles(const RenglonDJ& r, const AgregarFila& fila);

void borrar_parte(const RenglonDJ& r, const QString& id);
void borrar_inmueble(const RenglonDJ& r, const QString& id);
/// Deletes an operation and takes `total`, the tax of the whole deed as it is shown (SQL form),
/// off the deed and the DJ.
void borrar_operacion(const RenglonDJ& r, const QString& id, const QString& total, Dialogo& dialogo);
