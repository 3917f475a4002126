// SPDX-License-Identifier: GPL-3.0-or-later
// What a user chose last, kept per user and apart from the store.
#pragma once

#include <QString>

/// The folder in which the user last saved an emission, while it is there; the first time that of his documents.
[[nodiscard]] QString ultima_carpeta();
void recordar_carpeta(const QString& carpeta);
