// SPDX-License-Identifier: GPL-3.0-or-later
// The emblem of the printed DJ.
#pragma once

#include <QRectF>

class QPainter;

/// The emblem drawn for this program, a shield with a ship under a sun, in the rectangle.
void pintar_emblema(QPainter& p, const QRectF& r);
