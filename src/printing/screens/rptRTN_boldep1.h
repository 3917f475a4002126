// SPDX-License-Identifier: GPL-3.0-or-later
// The deposit slip: a page for each, with four copies.
#pragma once

#include "printing/datos_boleta.h"
#include "printing/screens/rptInforme.h"

class rptRTN_boldep1 : public Informe
{
public:
    explicit rptRTN_boldep1(const QList<BoletaImpresa>& boletas) : boletas_(boletas) {}

protected:
    Banda cabecera(int) const override { return {}; }
    /// A page is a slip; there is no row of pages to number.
    double altoPie() const override { return 0; }
    bool siguientes(std::vector<Banda>& bandas) override;

private:
    QList<BoletaImpresa> boletas_;
    qsizetype siguiente_ = 0;
};
