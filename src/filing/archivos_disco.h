// SPDX-License-Identifier: GPL-3.0-or-later
// Deleting and copying single files.
#pragma once

#include <QString>

/// Deletes a file, a write-protected one too; false when it could not be.
[[nodiscard]] bool borrar_archivo(const QString& archivo);

/// Copies aside and renames, so that what stands there is replaced whole; false when the source
/// can't be copied.
[[nodiscard]] bool copiar_archivo(const QString& de, const QString& a);
