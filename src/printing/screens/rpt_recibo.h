// SPDX-License-Identifier: GPL-3.0-or-later
// The withholding receipt.
#pragma once

#include "printing/datos_recibo.h"
#include "printing/screens/rptInforme.h"

/// An annulled receipt has no data and prints the empty form.
class rpt_recibo : public Informe
{
public:
    explicit rpt_recibo(const std::optional<ReciboImpreso>& recibo) : r_(recibo) {}

protected:
    Banda cabecera(int pagina) const override;
    bool siguientes(std::vector<Banda>& bandas) override;

private:
    std::optional<ReciboImpreso> r_;
};
