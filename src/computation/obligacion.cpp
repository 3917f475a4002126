// SPDX-License-Identifier: GPL-3.0-or-later

#include "computation/obligacion.h"

#include "core/modGlobales.h"

using namespace Qt::StringLiterals;

const QString SEGURO_DE_CAUCION = u"Seguro de Caución"_s;

Entradas modos_obligacion(int mascara)
{
    Entradas modos = leer_entradas(u"select GTOA_ID, GTOA_DESCRIPCION from GLB_TB_TIPOS_OBLIG_ACCESORIAS"_s,
                                   "GTOA_DESCRIPCION", "GTOA_ID");
    for (Entrada& modo : modos)
        modo.dato = (modo.dato.toInt() & mascara) != 0 ? 1 : 0;
    return modos;
}
