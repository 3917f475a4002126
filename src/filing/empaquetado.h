// SPDX-License-Identifier: GPL-3.0-or-later
// The return and its testimonios in one archive, by the packer beside the program.
#pragma once

#include "core/dialogo.h"

#include <QString>

#include <chrono>
#include <functional>

/// Asks where to save: takes the archive's name, gives the full name chosen, empty on cancel.
using PedirDestino = std::function<QString(const QString& nombre)>;

/// Copies the testimonios under their export names, has the packer called once for each file by a
/// generated batch file, and saves the archive in the folder that the user chooses: its name is
/// not the user's to choose. False after a missing testimonio, a cancel or a missing archive, which
/// are told. While files are copied and packed the user sees how far it is, and may end it; a packer that shows no
/// progress for `sin_noticias` is told of. Throws ErrorDisco and ErrorAlmacen on what fails before the user is asked.
[[nodiscard]] bool comprimir_dj(const QString& nro, Dialogo& dialogo, const PedirDestino& pedir,
                                std::chrono::milliseconds sin_noticias = std::chrono::seconds(30));
