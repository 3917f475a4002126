// SPDX-License-Identifier: GPL-3.0-or-later
// What of a DJ its return can't take, told before the file is made.
#pragma once

#include <QString>
#include <QStringList>

/// A line for each text that is longer than its field of the return and each value that must stand there and does not:
/// deed, party or property, the label of the screen, length and width. Empty when all fit. Throws ErrorAlmacen.
[[nodiscard]] QStringList valores_que_no_entran(const QString& nro);
