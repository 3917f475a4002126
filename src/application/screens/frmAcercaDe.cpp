// SPDX-License-Identifier: GPL-3.0-or-later

#include "application/screens/frmAcercaDe.h"

#include "ui_frmAcercaDe.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

frmAcercaDe::frmAcercaDe() : ui(std::make_unique<Ui::frmAcercaDe>())
{
    ui->setupUi(this);
    cerrarConEscape();
    ui->lblVersion->setText(u"Versión "_s + QCoreApplication::applicationVersion());
    atender(ui->cmdAceptar, &QPushButton::clicked, &Formulario::descargar);
}

frmAcercaDe::~frmAcercaDe() = default;
