// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

/// A picture of the bars by its name ("aceptar"), as it is drawn for light or for dark desktops; it follows a change of
/// the palette by itself.
[[nodiscard]] QIcon icono(const QString& nombre);
