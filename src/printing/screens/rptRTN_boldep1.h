// SPDX-License-Identifier: GPL-3.0-or-later
// The deposit slip: four copies on one page.
#pragma once

#include "printing/datos_boleta.h"
#include "printing/screens/rptInforme.h"

class rptRTN_boldep1 : public Informe
{
public:
    explicit rptRTN_boldep1(const BoletaImpresa& boleta) : b_(boleta) {}

protected:
    Banda cabecera(int) const override { return {}; }
    bool siguientes(std::vector<Banda>& bandas) override;

private:
    [[nodiscard]] Banda copia(const QString& para, bool ultima) const;

    BoletaImpresa b_;
};
