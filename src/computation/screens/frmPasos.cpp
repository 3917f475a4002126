// SPDX-License-Identifier: GPL-3.0-or-later

#include "computation/screens/frmPasos.h"

#include "computation/screens/rpt_pasos.h"
#include "printing/screens/frmReportes.h"
#include "ui_frmPasos.h"

#include <QApplication>
#include <QClipboard>
#include <QStyledItemDelegate>

using namespace Qt::StringLiterals;

namespace {

constexpr int COL_CUENTA = 2;
constexpr int COL_RESULTADO = 4;

// Amounts, percentages and counts stand one below the other.
class A_la_derecha : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* opcion, const QModelIndex& indice) const override
    {
        QStyledItemDelegate::initStyleOption(opcion, indice);
        opcion->displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
    }
};

}  // namespace

frmPasos::frmPasos() : ui(std::make_unique<Ui::frmPasos>())
{
    ui->setupUi(this);
    cerrarConEscape();
    preparar_grilla(ui->flxPasos, titulos_de_pasos(), {450, 2500, 5000, 1200, 1500});
    ui->flxPasos->setItemDelegateForColumn(COL_RESULTADO, new A_la_derecha(ui->flxPasos));
    ui->flxPasos->setOrdenable(false);
    // A sum may take several lines.
    ui->flxPasos->setWordWrap(true);
    ui->flxPasos->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    ui->flxPasos->horizontalHeader()->setSectionResizeMode(COL_CUENTA, QHeaderView::Stretch);
    ui->flxPasos->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    atender(ui->cmdCalcular, &QPushButton::clicked, [this] { emit calculoPedido(); });
    atender(ui->cmdCopiar, &QPushButton::clicked, &frmPasos::copiar);
    atender(ui->cmdImprimir, &QPushButton::clicked, &frmPasos::imprimir);
    atender(ui->cmdCerrar, &QPushButton::clicked, &Formulario::descargar);
}

frmPasos::~frmPasos() = default;

void frmPasos::mostrarPasos(const DatosPasos& datos)
{
    filas_ = filas_de_pasos(datos.pasos);
    ui->lblOperacion->setText(datos.operacion);
    ui->lblAviso->setText(aviso_de_pasos(datos.origen));
    ui->flxPasos->vaciar();
    ui->flxPasos->llenar([this] {
        for (const FilaPaso& f : std::as_const(filas_))
            ui->flxPasos->agregar({f.numero, f.titulo, f.cuenta, f.redondeo, f.resultado});
    });
    ui->cmdCalcular->setVisible(datos.origen == OrigenPasos::sinCalculo);
    for (QWidget* w : QWidgetList{ui->flxPasos, ui->cmdCopiar, ui->cmdImprimir})
        w->setEnabled(!filas_.isEmpty());
    (filas_.isEmpty() ? static_cast<QWidget*>(ui->cmdCalcular) : ui->flxPasos)->setFocus();
}

void frmPasos::copiar()
{
    QApplication::clipboard()->setText(ui->lblOperacion->text() + u'\n' + ui->lblAviso->text() + u"\n\n"_s
                                       + pasos_con_tabuladores(filas_));
}

void frmPasos::imprimir()
{
    auto* reporte = cargar<frmReportes>();
    reporte->poner(windowTitle(), u"calculo-del-impuesto"_s,
                   std::make_shared<rpt_pasos>(ui->lblOperacion->text(), ui->lblAviso->text(), filas_));
    abrir(reporte);
}
