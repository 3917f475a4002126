// SPDX-License-Identifier: GPL-3.0-or-later
// What the printed withholding receipt shows, read from the store.
#pragma once

#include <QString>

#include <optional>

struct ReciboImpreso
{
    QString nro, dj, escritura, folio, fechaRetencion, fechaEscritura, titular, adscripto1, adscripto2, partes,
        inmuebles;
    double monto = 0;
};
/// Nothing for an annulled receipt or one of a deed that did not pass; the texts of its DJ are filled
/// before. Throws ErrorAlmacen.
[[nodiscard]] std::optional<ReciboImpreso> leer_recibo(const QString& nro);
