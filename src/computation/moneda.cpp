// SPDX-License-Identifier: GPL-3.0-or-later

#include "computation/moneda.h"

#include "core/modGlobales.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int POSICION_MONEDA = 50;

}  // namespace

QString id_pesos()
{
    return u"PES"_s;
}

Entradas monedas()
{
    Entradas lista;
    for (Recordset rs(cnRtn, u"select GMON_ID, GMON_DESCRIPCION, GMON_ALIAS from GLB_TB_MONEDAS"_s); !rs.eof();
         rs.siguiente())
        lista.push_back(
            {rs.texto("GMON_DESCRIPCION").leftJustified(POSICION_MONEDA) + rs.texto("GMON_ID"), rs.valor("GMON_ID")});
    return lista;
}

QString id_de_moneda(const QString& entrada)
{
    return entrada.mid(POSICION_MONEDA);
}

bool es_pesos(const QString& entrada)
{
    return entrada.left(POSICION_MONEDA).trimmed() == u"PESOS";
}
