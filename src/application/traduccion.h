// SPDX-License-Identifier: GPL-3.0-or-later
// What the toolkit says by itself, in Spanish: its dialogs, its boxes' buttons, its context menus.
#pragma once

class QObject;

/// Installs the toolkit's own Spanish catalogue, and over it the texts that the catalogue lacks. They
/// hold as long as the owner lives.
void instalar_espanol(QObject* duenio);
