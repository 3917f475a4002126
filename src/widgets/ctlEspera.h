// SPDX-License-Identifier: GPL-3.0-or-later
// The mouse pointer of the whole program: the hourglass while something is prepared.
#pragma once

void puntero_de_espera();
void puntero_normal();
