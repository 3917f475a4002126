// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of parties and real estate that the printed DJ and receipt show of each deed.
#pragma once

#include <QString>

/// Fills SEL_TMP_DJ_OPER with the texts of the parties and the real estate of each deed of a DJ, and of
/// no other. Throws ErrorAlmacen.
void cargar_tmp_dj_oper(const QString& nro);
