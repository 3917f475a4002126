// SPDX-License-Identifier: GPL-3.0-or-later
// What a user chose last, kept per user and apart from the store.
#pragma once

#include <QString>
#include <QVariant>

/// Keeps them in another file than that of the user.
void fijar_preferencias(const QString& archivo);
/// What was kept under a key ("columnas/…"); invalid when nothing was.
[[nodiscard]] QVariant preferencia(const QString& clave);
void recordar(const QString& clave, const QVariant& valor);

/// The folder in which the user last saved or looked for that ("emision", "pdf"), while it is there; the first time that
/// of his documents.
[[nodiscard]] QString ultima_carpeta(const QString& de);
/// Keeps the folder of a file that the user chose.
void recordar_carpeta(const QString& de, const QString& archivo);
