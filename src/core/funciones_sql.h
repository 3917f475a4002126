// SPDX-License-Identifier: GPL-3.0-or-later
// Functions and orders that the statements need and the engine lacks.
#pragma once

#include <QString>

struct sqlite3;

/// Registers `int`, `mid`, `str`, `iif`, a `like` that knows Spanish letters, `sin_tildes`, and the
/// collation ESPANOL on an open connection.
void registrar_funciones(sqlite3* base);

/// The text without the accents of its letters; Ñ is a letter of its own and stays.
[[nodiscard]] QString sin_tildes(const QString& texto);

/// Spanish list order: case and accents ignored, Ñ after N; texts that only differ by them
/// are told apart after that. Negative, 0 or positive.
int comparar_espanol(const QString& a, const QString& b);
