// SPDX-License-Identifier: GPL-3.0-or-later
// A page on paper, screen or file.
#pragma once

#include "printing/screens/rptPagina.h"

class QPainter;

/// Paints a page; `escala` is device units a millimetre.
void pintar_pagina(QPainter& p, const Pagina& pagina, double escala);
