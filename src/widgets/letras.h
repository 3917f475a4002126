// SPDX-License-Identifier: GPL-3.0-or-later
// The letters that come with the program where the system has none of them.
#pragma once

#include <QStringView>

/// The family of the printed forms, which has the same measures everywhere.
constexpr QStringView LETRA_PROPIA = u"DejaVu Sans";

/// Makes the fonts of the program's own resources known, once.
void iniciar_letras();
