// SPDX-License-Identifier: GPL-3.0-or-later
// The printed DJ with its deeds.
#pragma once

#include "printing/screens/rpt_dj_sin_mov.h"

class rpt_dj : public rpt_dj_sin_mov
{
public:
    using rpt_dj_sin_mov::rpt_dj_sin_mov;

protected:
    Banda cabecera(int pagina) const override;
    bool siguientes(std::vector<Banda>& bandas) override;

private:
    void escritura(const EscrituraImpresa& e, std::vector<Banda>& bandas) const;
    /// Indented lines; none without a text.
    static void renglones(std::vector<Banda>& bandas, const QString& titulo, const QString& texto);
    void operacion(const OperacionImpresa& o, std::vector<Banda>& bandas) const;

    qsizetype siguiente_ = 0;
};
