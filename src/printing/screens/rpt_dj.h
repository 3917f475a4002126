// SPDX-License-Identifier: GPL-3.0-or-later
// The printed DJ: with its deeds, and without movements.
#pragma once

#include "printing/datos_impresos.h"
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

    [[nodiscard]] Banda agente() const;
    /// Totals, signatures, and the code as bars and as text.
    void cierre(std::vector<Banda>& bandas) const;

    DJImpresa dj_;

private:
    QString codigo_;
    QString version_;
};

class rpt_dj : public rpt_dj_sin_mov
{
public:
    using rpt_dj_sin_mov::rpt_dj_sin_mov;

protected:
    Banda cabecera(int pagina) const override;
    bool siguientes(std::vector<Banda>& bandas) override;

private:
    void escritura(const EscrituraImpresa& e, std::vector<Banda>& bandas) const;
    void operacion(const OperacionImpresa& o, std::vector<Banda>& bandas) const;

    qsizetype siguiente_ = 0;
};
