// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/asignaciones.h"

#include <QStringList>

using namespace Qt::StringLiterals;

QString asignar_sql(const Asignaciones& fila)
{
    QStringList textos;
    for (const Asignacion& a : fila)
        textos << QLatin1StringView(a.columna) + u'=' + a.valor;
    return textos.join(u", "_s);
}
