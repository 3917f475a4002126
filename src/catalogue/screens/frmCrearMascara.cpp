// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogue/screens/frmCrearMascara.h"

#include "core/modGlobales.h"
#include "ui_frmCrearMascara.h"

#include <QSignalBlocker>

using namespace Qt::StringLiterals;

frmCrearMascara::frmCrearMascara() : ui(std::make_unique<Ui::frmCrearMascara>())
{
    ui->setupUi(this);
    connect(ui->lstElem, &QListWidget::itemChanged, this, &frmCrearMascara::sumar);
    connect(ui->tlb, &BarraHerramientas::pulsada, this, [this](const QString& clave) {
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

void frmCrearMascara::cargar_elementos(const QString& tabla, const QString& campo_id, const QString& campo_descripcion)
{
    const QSignalBlocker callado(ui->lstElem);
    for (Recordset rs(cnRtn, u"select "_s + campo_id + u", "_s + campo_descripcion + u" from "_s + tabla
                                 + u" order by "_s + campo_id);
         !rs.eof(); rs.siguiente()) {
        auto* elemento = new QListWidgetItem(rs.texto(1), ui->lstElem);
        elemento->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        elemento->setCheckState(Qt::Unchecked);
        elemento->setData(Qt::UserRole, rs.entero(0));
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
