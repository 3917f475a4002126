// SPDX-License-Identifier: GPL-3.0-or-later

#include "tree/totales.h"

#include "core/modGlobales.h"

using namespace Qt::StringLiterals;

int cantidad_renglones(const QString& nro)
{
    const Recordset rs(cnRtn, u"select count(*) as CANT_MOV from SEL_TB_RTN_DETDJ where SEDJ_NRO='%1'"_s.arg(nro));
    return int(rs.entero(0));
}
