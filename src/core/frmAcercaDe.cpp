#include "core/frmAcercaDe.h"

#include "ui_frmAcercaDe.h"

#include <QCoreApplication>

frmAcercaDe::frmAcercaDe() : ui(std::make_unique<Ui::frmAcercaDe>())
{
    ui->setupUi(this);
    ui->lblVersion->setText(QStringLiteral("Versión ") + QCoreApplication::applicationVersion());
    connect(ui->cmdAceptar, &QPushButton::clicked, this, &Formulario::descargar);
}

frmAcercaDe::~frmAcercaDe() = default;
