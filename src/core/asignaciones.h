// SPDX-License-Identifier: GPL-3.0-or-later
// The columns of a row and their values, for an update or an insert of many columns.
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

/// "A=1, B=2", for an update.
[[nodiscard]] QString asignar_sql(const Asignaciones& fila);
/// "A, B", for an insert; some statements part them by more blanks.
[[nodiscard]] QString columnas_sql(const Asignaciones& fila, const char* separador = ", ");
/// "1, 2", for an insert.
[[nodiscard]] QString valores_sql(const Asignaciones& fila);
