// SPDX-License-Identifier: GPL-3.0-or-later

#include "computation/screens/frmDetalleSSUB.h"

#include "catalogue/subconcepto_memoria.h"
#include "core/numero.h"
#include "ui_frmDetalleSSUB.h"

using namespace Qt::StringLiterals;

frmDetalleSSUB::frmDetalleSSUB() : ui(std::make_unique<Ui::frmDetalleSSUB>())
{
    ui->setupUi(this);
    cerrarConEscape();
    atender(ui->cmdCerrar, &QPushButton::clicked, &Formulario::descargar);
}

frmDetalleSSUB::~frmDetalleSSUB() = default;

void frmDetalleSSUB::mostrarSubconcepto(const clsSubconcepto& s)
{
    ui->txtCodS->setText(QString::number(QString::number(s.IdSubconcepto()).mid(4).toInt()));
    ui->txtDescripcion->setText(s.Descripcion);
    ui->txtLey->setText(s.LeyVigencia);
    ui->txtObservaciones->setText(s.Observaciones);
    ui->txtExencion->setText(s.Exencion ? formato_decimal(s.ExencionPorc, 0) + u" %"_s : QString());
}
