// SPDX-License-Identifier: GPL-3.0-or-later
// The steps of the guided month.
#pragma once

class Guia;
class MDIPrincipal;

/// Carries one month from an empty register to the return file; throws Inesperado when a window
/// shows anything but what it should.
void recorrer(MDIPrincipal& principal, Guia& guia);
