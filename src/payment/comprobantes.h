// SPDX-License-Identifier: GPL-3.0-or-later
// Withholding receipts: numbering and issue.
#pragma once

#include <QDate>
#include <QString>

/// The deed that a receipt is issued for.
struct DatosComprobante
{
    QString dj;
    QString renglon;
    QString montoSQL;  ///< the tax of the deed as it is shown, in SQL form
    QDate fechaEscritura;
    QString agente;
};

/// The next number over the whole store. A new year starts its sequence again with the prefix of
/// this DJ; otherwise the prefix of the highest number stays, deliberately. A number that is taken is followed by the
/// next free one of its series.
[[nodiscard]] QString proximo_comprobante(const QString& dj);

/// Annuls the earlier receipts of the deed and stores a new one under the number. Throws ErrorAlmacen; then the
/// earlier ones are valid as before.
void emitir_comprobante(const QString& nro, const DatosComprobante& d);
