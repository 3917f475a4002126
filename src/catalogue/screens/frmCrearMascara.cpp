// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogue/screens/frmCrearMascara.h"

#include "catalogue/tipos_calculo.h"
#include "ui_frmCrearMascara.h"

#include <QSignalBlocker>

using namespace Qt::StringLiterals;

frmCrearMascara::frmCrearMascara() : ui(std::make_unique<Ui::frmCrearMascara>())
{
    ui->setupUi(this);
    teclasDeBarra(ui->tlb);
    atender(ui->lstElem, &QListWidget::itemChanged, &frmCrearMascara::sumar);
    atender(ui->tlb, &BarraHerramientas::pulsada, [this](const QString& clave) {
        if (clave == u"aceptar" && destino_)
            destino_->setText(ui->txtMascara->text());
        descargar();
    });
}

frmCrearMascara::~frmCrearMascara() = default;

void frmCrearMascara::volcar_en(QLineEdit* control)
{
    destino_ = control;
}

void frmCrearMascara::cargar_elementos(const TablaMascara& tabla)
{
    const QSignalBlocker callado(ui->lstElem);
    for (const Entrada& e : elementos_mascara(tabla)) {
        auto* elemento = new QListWidgetItem(e.texto, ui->lstElem);
        elemento->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        elemento->setCheckState(Qt::Unchecked);
        elemento->setData(Qt::UserRole, e.dato);
    }
}

void frmCrearMascara::mostrar_mascara(int valor)
{
    for (int i = 0; i < ui->lstElem->count(); ++i) {
        QListWidgetItem* elemento = ui->lstElem->item(i);
        elemento->setCheckState((elemento->data(Qt::UserRole).toInt() & valor) > 0 ? Qt::Checked : Qt::Unchecked);
    }
}

// The mask is the sum of what is ticked, by the user or by program.
void frmCrearMascara::sumar()
{
    int mascara = 0;
    for (int i = 0; i < ui->lstElem->count(); ++i)
        if (const QListWidgetItem* elemento = ui->lstElem->item(i); elemento->checkState() == Qt::Checked)
            mascara += elemento->data(Qt::UserRole).toInt();
    ui->txtMascara->setText(QString::number(mascara));
}
