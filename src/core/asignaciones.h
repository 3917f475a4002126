// SPDX-License-Identifier: GPL-3.0-or-later
// The columns of a row and their values, for an update of many columns.
#pragma once

#include <QList>
#include <QString>

/// A column and its value as the statement takes it.
struct Asignacion
{
    const char* columna;
    QString valor;
};
using Asignaciones = QList<Asignacion>;

/// "A=1, B=2".
[[nodiscard]] QString asignar_sql(const Asignaciones& fila);
