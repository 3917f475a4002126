// How printed forms write amounts and dates.
#pragma once

#include "core/numero.h"

#include <QDate>

/// With two decimals, grouped, in the separators of the user's locale.
[[nodiscard]] inline QString importe_impreso(double importe, int decimales = 2)
{
    Numero n(decimales);
    n.setValue(importe);
    return n.toString();
}

/// dd/mm/aaaa, empty without a date.
[[nodiscard]] inline QString fecha_impresa(const QDate& fecha)
{
    return fecha.toString(QStringLiteral("dd/MM/yyyy"));
}
