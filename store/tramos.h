// SPDX-License-Identifier: GPL-3.0-or-later
// Whether the brackets of each item of the catalogue cover all amounts once.
#pragma once

#include <QHash>
#include <QString>

class Conexion;

/// The first fault in the brackets of rates and modules, with its place; empty without one.
/// `lugares` gives the file and line of each bracket, by table and identifier.
[[nodiscard]] QString revisar_tramos(Conexion& cn, const QHash<QString, QString>& lugares);
