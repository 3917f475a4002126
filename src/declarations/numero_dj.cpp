// SPDX-License-Identifier: GPL-3.0-or-later

#include "declarations/numero_dj.h"

#include "core/numero.h"

int NumeroDJ::largoPrefijo() const
{
    return nro_.size() == 17 ? 15 : nro_.size() == 13 ? 11 : 0;
}

QString NumeroDJ::mes() const
{
    return nro_.mid(largoPrefijo() - 2, 2);
}

QString NumeroDJ::anio() const
{
    return nro_.size() == 17 ? nro_.mid(11, 2) : nro_.mid(5, 4);
}

QString NumeroDJ::siguiente() const
{
    return prefijo() + con_ceros(secuencia().toInt() + 1, 2);
}
