// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/motivos.h"

#include "core/almacen.h"

using namespace Qt::StringLiterals;

Cancelado::Cancelado() : ErrorTarea(u"Se canceló."_s) {}

QString motivo_de_escritura(const ErrorAlmacen& e)
{
    return e.ocupado() ? u"Otro usuario está utilizando en modo exclusivo los mismos datos que ud. Intente más tarde."_s
                       : e.descripcion;
}

Motivo motivo_de(const std::exception& e)
{
    if (const auto* almacen = dynamic_cast<const ErrorAlmacen*>(&e))
        return {almacen->motor.isEmpty() ? almacen->descripcion : motivo_de_escritura(*almacen), almacen->motor};
    if (const auto* tarea = dynamic_cast<const ErrorTarea*>(&e))
        return {tarea->texto, tarea->detalles};
    return {u"No se pudo completar la acción."_s, QString::fromUtf8(e.what())};
}

QString detalles_de(const ErrorAlmacen& e)
{
    return QStringList{motivo_de_escritura(e), e.motor}.join(u'\n').trimmed();
}
