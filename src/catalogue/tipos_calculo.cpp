// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogue/tipos_calculo.h"

#include "core/modGlobales.h"

using namespace Qt::StringLiterals;

Recordset tipos_calculo()
{
    return Recordset(cnRtn, u"select STIC_ID, STIC_DESCRIPCION, STIC_OBSERVACIONES from SEL_TB_TIPOS_CALCULOS"_s);
}

colTiposCalculoBI tipos_calculo_bi()
{
    colTiposCalculoBI lista;
    for (Recordset rs(cnRtn, u"select * from SEL_TB_TIPOS_CALCULO_BI"_s); !rs.eof(); rs.siguiente())
        lista << clsTipoCalculoBI{.Observaciones = rs.texto("SCBI_OBSERVACIONES"),
                                  .Descripcion = rs.texto("SCBI_DESCRIPCION"),
                                  .id = qint32(rs.entero("SCBI_ID"))};
    return lista;
}

Entradas elementos_mascara(const TablaMascara& t)
{
    return leer_entradas(u"select %1, %2 from %3 order by %1"_s.arg(
                             QLatin1StringView(t.id), QLatin1StringView(t.descripcion), QLatin1StringView(t.tabla)),
                         t.descripcion, t.id);
}
