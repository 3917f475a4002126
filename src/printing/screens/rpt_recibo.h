// SPDX-License-Identifier: GPL-3.0-or-later
// The withholding receipt.
#pragma once

#include "printing/datos_recibo.h"
#include "printing/screens/rptInforme.h"

/// Without data, of an annulled receipt or of a deed that did not pass, the page says so.
class rpt_recibo : public Informe
{
public:
    /// The receipt of this number as the store gives it.
    rpt_recibo(const QString& nro, const std::optional<ReciboImpreso>& recibo) : nro_(nro), r_(recibo) {}

protected:
    Banda cabecera(int pagina) const override;
    bool siguientes(std::vector<Banda>& bandas) override;

private:
    QString nro_;
    std::optional<ReciboImpreso> r_;
};
