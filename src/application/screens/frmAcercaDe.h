// SPDX-License-Identifier: GPL-3.0-or-later
// The about box.
#pragma once

#include "widgets/formulario.h"

#include <memory>

namespace Ui {
class frmAcercaDe;
}

class frmAcercaDe : public Formulario
{
    Q_OBJECT

public:
    frmAcercaDe();
    ~frmAcercaDe() override;

private:
    std::unique_ptr<Ui::frmAcercaDe> ui;
};
