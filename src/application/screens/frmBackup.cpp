// SPDX-License-Identifier: GPL-3.0-or-later

#include "application/screens/frmBackup.h"

#include "ui_frmBackup.h"

frmBackup::frmBackup() : ui(std::make_unique<Ui::frmBackup>())
{
    ui->setupUi(this);
}

frmBackup::~frmBackup() = default;
