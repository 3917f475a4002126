// SPDX-License-Identifier: GPL-3.0-or-later
// The guard of all that a user sets going: what fails is rolled back and told, and the program goes on.
#pragma once

#include <functional>

class QWidget;

/// Runs an action. What it fails with is rolled back to where it began and told over the window, under its caption;
/// `ilegible` runs behind the box of a number that can't be read. Only a store that is gone or damaged throws on
/// (ErrorAlmacen), to the program's end. What the user himself ended is not told. False after a failure.
bool con_guardia(QWidget* ventana, const std::function<void()>& accion, const std::function<void()>& ilegible = {});
