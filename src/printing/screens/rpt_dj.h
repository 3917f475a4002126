// SPDX-License-Identifier: GPL-3.0-or-later
// The printed DJ with its deeds.
#pragma once

#include "printing/screens/rpt_dj_sin_mov.h"

class rpt_dj : public rpt_dj_sin_mov
{
public:
    using rpt_dj_sin_mov::rpt_dj_sin_mov;

protected:
    bool siguientes(std::vector<Banda>& bandas) override;

private:
    qsizetype siguiente_ = 0;
};
