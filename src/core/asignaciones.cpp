// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/asignaciones.h"

#include <QStringList>

using namespace Qt::StringLiterals;

QString asignar_sql(const Asignaciones& fila)
{
    QStringList partes;
    for (const Asignacion& a : fila)
        partes << u"%1=%2"_s.arg(QLatin1StringView(a.columna), a.valor);
    return partes.join(u", "_s);
}

QString columnas_sql(const Asignaciones& fila, const char* separador)
{
    QStringList partes;
    for (const Asignacion& a : fila)
        partes << QLatin1StringView(a.columna);
    return partes.join(QLatin1StringView(separador));
}

QString valores_sql(const Asignaciones& fila)
{
    QStringList partes;
    for (const Asignacion& a : fila)
        partes << a.valor;
    return partes.join(u", "_s);
}
