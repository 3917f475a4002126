// SPDX-License-Identifier: GPL-3.0-or-later

#include "computation/ley.h"

#include "core/modComunes.h"
#include "core/modGlobales.h"
#include "core/modUtiles.h"

using namespace Qt::StringLiterals;

std::optional<int> DeterminarLey(const QString& dia, const QString& posicion, Dialogo& dialogo)
{
    const QDate fecha(posicion.left(4).toInt(), posicion.mid(5, 2).toInt(), dia.toInt());
    std::optional<int> ley;
    {
        const Recordset rs(cnRtn, u"select GLEY_NRO, GLEY_VIGENCIA_DESDE from GLB_TB_LEYES where "
                                  u" %1 >= GLEY_VIGENCIA_DESDE  and (%1<=GLEY_VIGENCIA_HASTA "
                                  u" or  GLEY_VIGENCIA_HASTA is null)"_s.arg(fecha_sql(fecha)));
        if (rs.eof())
            dialogo.avisar({u"No se encuentra la ley para la fecha indicada"_s, {}, Icono::ninguno});
        else
            ley = int(rs.entero("GLEY_NRO"));
    }
    obtener_valor_modulo(ley.value_or(0));
    return ley;
}
