// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/motivos.h"

#include "core/almacen.h"

using namespace Qt::StringLiterals;

QString motivo_de_escritura(const ErrorAlmacen& e)
{
    return e.ocupado() ? u"Otro usuario está utilizando en modo exclusivo los mismos datos que ud. Intente más tarde."_s
                       : e.descripcion;
}

QString detalles_de(const ErrorAlmacen& e)
{
    return QStringList{motivo_de_escritura(e), e.motor}.join(u'\n').trimmed();
}
