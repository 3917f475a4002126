// SPDX-License-Identifier: GPL-3.0-or-later
// The steps of a calculation on paper: a working paper of the office, without the authority's head.
#pragma once

#include "computation/textos_pasos.h"
#include "printing/screens/rptInforme.h"

class rpt_pasos : public Informe
{
public:
    rpt_pasos(const QString& operacion, const QString& aviso, const QList<FilaPaso>& filas)
        : operacion_(operacion), aviso_(aviso), filas_(filas)
    {
    }

protected:
    /// Title and operation, and the titles of the columns.
    Banda cabecera(int pagina) const override;
    bool siguientes(std::vector<Banda>& bandas) override;

private:
    QString operacion_;
    QString aviso_;
    QList<FilaPaso> filas_;
};
