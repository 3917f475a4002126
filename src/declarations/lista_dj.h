// SPDX-License-Identifier: GPL-3.0-or-later
// The list of DJs: its query, deletion, and the start of a rectificativa.
#pragma once

#include "core/dialogo.h"
#include "core/filas.h"

#include <QString>

#include <optional>

struct FiltroDJ
{
    std::optional<int> agente;  ///< nothing for any
    std::optional<int> anio;
    std::optional<int> mes;
};

/// The statement of the list under a filter.
[[nodiscard]] QString consulta_dj(const FiltroDJ& filtro);
/// Reads the list, one call a row with the cells of the grid, in UTF-8, good for that call alone.
/// Throws ErrorAlmacen.
void leer_lista_dj(const FiltroDJ& filtro, const AgregarFilaUtf8& fila);

/// Deletes a DJ with what hangs from it, and the files of its folder of testimonios. An error is
/// told and leaves the DJ.
void borrar_dj(const QString& nro, Dialogo& dialogo);

/// The last link of the chain of a DJ that is to be rectified, empty when the user says no to
/// rectifying one that already was. Throws ErrorAlmacen on a number of unknown length.
[[nodiscard]] QString dj_a_rectificar(const QString& nro, Dialogo& dialogo);
