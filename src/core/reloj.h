// SPDX-License-Identifier: GPL-3.0-or-later
// Today's date, which a test can set.
#pragma once

#include <QDate>

[[nodiscard]] QDate hoy();
/// Makes another day today's; an invalid date gives the clock back.
void fijar_hoy(const QDate& fecha);
