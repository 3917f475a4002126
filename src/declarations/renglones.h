// SPDX-License-Identifier: GPL-3.0-or-later
// The list of the deeds of a DJ, and the deletion of one.
#pragma once

#include "core/dialogo.h"

#include <QString>

#include <array>
#include <functional>
#include <string_view>

struct FilaRenglon
{
    std::array<std::string_view, 7> celdas;  ///< in the columns of the list, in UTF-8, good for one call
    bool incompleto = false;                 ///< something of the deed is missing
};

/// The statement of the list.
[[nodiscard]] QString consulta_renglones(const QString& nro);
/// Reads the deeds in the order of their numbers. Throws ErrorAlmacen.
void leer_renglones(const QString& nro, const std::function<void(const FilaRenglon&)>& fila);

/// One line on stored totals, of the DJ or of its deeds, that are not the sum of their operations, with both figures in
/// pesos; empty when all agree. Throws ErrorAlmacen.
[[nodiscard]] QString diferencia_de_totales(const QString& nro);

/// Deletes a deed with what hangs from it and takes its amount (pesos) off the total of the DJ.
/// False after an error, which is told and leaves the deed.
bool borrar_renglon(const QString& nro, int id, double monto, Dialogo& dialogo);
