// SPDX-License-Identifier: GPL-3.0-or-later
// The folders of what is made for a DJ.
#pragma once

#include "core/archivos_disco.h"

#include <QString>

#include <optional>

/// Folder of what is made for a DJ, below the program's folder.
[[nodiscard]] QString carpeta_dj(const QString& nro);
/// Where the copies of its testimonios stand under their export names.
[[nodiscard]] QString carpeta_testimonios(const QString& nro);

/// Makes the folder of a DJ and the one that holds those of all, readable by the user alone; narrows those that
/// stand there. Throws ErrorDisco.
void hacer_carpeta_dj(const QString& nro);
/// The same, with the folder of testimonios.
void hacer_carpeta_testimonios(const QString& nro);

/// Deletes all files of the folder of testimonios, hidden ones too, and tries each one; gives the failure of the
/// first that could not be deleted.
std::optional<ErrorDisco> vaciar_testimonios(const QString& nro);
