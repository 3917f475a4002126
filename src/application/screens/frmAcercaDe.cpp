// SPDX-License-Identifier: GPL-3.0-or-later

#include "application/screens/frmAcercaDe.h"

#include "ui_frmAcercaDe.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

frmAcercaDe::frmAcercaDe() : ui(std::make_unique<Ui::frmAcercaDe>())
{
    ui->setupUi(this);
    ui->lblVersion->setText(u"Versión "_s + QCoreApplication::applicationVersion());
    connect(ui->cmdAceptar, &QPushButton::clicked, this, &Formulario::descargar);
}

frmAcercaDe::~frmAcercaDe() = default;
