// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/cuit_impreso.h"

#include "core/redondeo.h"

QString cuit_impreso(const Recordset& rs, const char* columna)
{
    return rs.nulo(columna) ? QString() : formato_decimal(rs.real(columna), 0).rightJustified(11, u'0');
}
