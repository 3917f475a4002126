// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogue/screens/frmTiposCalculoBI.h"

#include "catalogue/tipos_calculo.h"
#include "ui_frmTiposCalculoBI.h"

using namespace Qt::StringLiterals;

frmTiposCalculoBI::frmTiposCalculoBI() : ui(std::make_unique<Ui::frmTiposCalculoBI>())
{
    ui->setupUi(this);
    teclasDeBarra(ui->tlbTCBI);
    preparar_grilla(ui->grillaTCBI, {u"ID"_s, u"Descripción"_s, u"Observaciones"_s}, {600, 4200, 3600});
    atender(ui->grillaTCBI->selectionModel(), &QItemSelectionModel::currentRowChanged, &frmTiposCalculoBI::mostrarFila);
    atender(ui->grillaTCBI, &Grilla::elegida, [this] { ui->tlbTCBI->pulsar(u"seleccionar"_s); });
    atender(ui->tlbTCBI, &BarraHerramientas::pulsada, [this](const QString& clave) {
        if (clave == u"seleccionar")
            seleccionar();
        else
            descargar();
    });
    ui->grillaTCBI->llenar([this] {
        for (const clsTipoCalculoBI& tipo : tipos_calculo_bi())
            ui->grillaTCBI->agregar(QStringList{QString::number(tipo.id), tipo.Descripcion, tipo.Observaciones});
    });
}

frmTiposCalculoBI::~frmTiposCalculoBI() = default;

void frmTiposCalculoBI::fijarTCBI(std::optional<int> id)
{
    for (int i = 0; i < ui->grillaTCBI->filas(); ++i)
        if (ui->grillaTCBI->celda(i, 0).toInt() == id)
            ui->grillaTCBI->irAFila(i);
}

void frmTiposCalculoBI::mostrarFila()
{
    const int fila = ui->grillaTCBI->filaActual();
    IdTCBI_ = ui->grillaTCBI->celda(fila, 0).toInt();
    ui->txtDescripcion->setText(ui->grillaTCBI->celda(fila, 1));
    ui->txtObservaciones->setText(ui->grillaTCBI->celda(fila, 2));
}

void frmTiposCalculoBI::seleccionar()
{
    if (ui->grillaTCBI->filaActual() < 0)
        return;
    if (auto* receptor = dynamic_cast<ReceptorTCBI*>(Llamador.data()))
        receptor->TCBI(IdTCBI_, ui->txtDescripcion->text());
    descargar();
}
