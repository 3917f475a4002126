// SPDX-License-Identifier: GPL-3.0-or-later
// The printed DJ without movements, and what it shares with the one of a DJ with deeds.
#pragma once

#include "printing/datos_dj.h"
#include "printing/screens/rptInforme.h"

/// What both forms of the DJ share: header of each page, the agent, the code at the end.
class rpt_dj_sin_mov : public Informe
{
public:
    rpt_dj_sin_mov(const DJImpresa& dj, const QString& codigo, const QString& version)
        : dj_(dj), codigo_(codigo), version_(version)
    {
    }

protected:
    Banda cabecera(int pagina) const override;
    bool siguientes(std::vector<Banda>& bandas) override;

    /// Totals, signatures, and the code as bars and as text.
    void cierre(std::vector<Banda>& bandas) const;

    DJImpresa dj_;

private:
    [[nodiscard]] Banda totales() const;
    [[nodiscard]] Banda firmas() const;
    [[nodiscard]] Banda codigo() const;

    QString codigo_;
    QString version_;
};
