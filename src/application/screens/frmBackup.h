// SPDX-License-Identifier: GPL-3.0-or-later
// Stands behind the unavailable backup entry of the menu; it has no logic.
#pragma once

#include "widgets/formulario.h"

#include <memory>

namespace Ui {
class frmBackup;
}

class frmBackup : public Formulario
{
    Q_OBJECT

public:
    frmBackup();
    ~frmBackup() override;

private:
    std::unique_ptr<Ui::frmBackup> ui;
};
