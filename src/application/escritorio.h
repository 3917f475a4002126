// SPDX-License-Identifier: GPL-3.0-or-later
// What the program does of its own for one kind of desktop.
#pragma once

class QApplication;

/// Before the application is made.
void preparar_escritorio();
/// Once it is there: letters that can be read, and the desktop's colours where the toolkit does not follow them.
void seguir_escritorio(QApplication* aplicacion);
