// SPDX-License-Identifier: GPL-3.0-or-later

#include "computation/screens/frmDJ_detalle_op.h"

#include "computation/ley.h"
#include "computation/moneda.h"
#include "computation/operacion.h"
#include "computation/screens/frmDetalleSSUB.h"
#include "tree/registros.h"
#include "ui_frmDJ_detalle_op.h"
#include "widgets/ctlComunes.h"
#include "widgets/marca_largo.h"
#include "widgets/mensajes.h"

using namespace Qt::StringLiterals;

frmDJ_detalle_op::frmDJ_detalle_op() : ui(std::make_unique<Ui::frmDJ_detalle_op>())
{
    ui->setupUi(this);
    const LargoEmitido largos[] = {
        {"txtObligAccesoria_poliza", ancho_emitido("SINS_OBLIG_ACCESORIA_POLIZA")},
        {"txtObs", ancho_emitido("SINS_OBS")},
    };
    marcar_largos(this, largos);
    prepararGrillas();
    prepararEditorDeRoles();
    llenar_combo(ui->cboMoneda, monedas());
    ui->cboMoneda->setCurrentIndex(ui->cboMoneda->findData(id_pesos()));
    ui->ctlCodS->ClearText();
    for (QWidget* w : QWidgetList{ui->nroAux, ui->flxInm, ui->fraEditarVC, ui->SSTab1})
        w->hide();
    prepararLeyendas();
    botonesValores(true, false);
    habilitarObligacion();
    conectar();
    conectarCalculo();
    conectarValores();
}

frmDJ_detalle_op::~frmDJ_detalle_op() = default;

void frmDJ_detalle_op::prepararGrillas()
{
    preparar_grilla(ui->flxVC, {u"Nro"_s, u"Monto"_s, u"Moneda"_s, u"Total"_s}, {800, 1400, 1400, 1400}, 2);
    preparar_grilla(ui->flxInm, {u"NºInm"_s, u"Partida"_s, u"Val.Fiscal"_s}, {800, 1400, 1800}, 1);
    // Roles are typed into its cells.
    ui->flxPartes->setOrdenable(false);
    preparar_grilla(ui->flxPartes,
                    {u"Id.Parte"_s, u"Tipo Doc"_s, u"Nro Doc"_s, u"Denominación"_s, u"Id.Rol"_s, u"Rol"_s,
                     u"Observaciones"_s, u"Exención %"_s},
                    {700, 900, 1100, 2000, 0, 1700, 1500, 800});
}

// The hints of the bar and the colours of the roles.
void frmDJ_detalle_op::prepararLeyendas()
{
    ui->tlbBI->ayuda(u"nuevo"_s, u"Nuevo valor contractual parcial"_s);
    ui->tlbBI->ayuda(u"editar"_s, u"Editar el valor contractual parcial seleccionado"_s);
    ui->tlbBI->ayuda(u"borrar"_s, u"Borrar el valor contractual parcial seleccionado"_s);
    for (const auto& [etiqueta, tono] :
         {std::pair{ui->lblObligado, Tono::destacado}, std::pair{ui->lblInformativo, Tono::normal},
          std::pair{ui->lblNoParticipaOp, Tono::apagado}}) {
        etiqueta->setAutoFillBackground(true);
        etiqueta->setMargin(3);
        con_paleta(etiqueta, [tono = tono](QPalette& p) {
            const Colores& c = colores_de(tono, p);
            p.setColor(QPalette::Window, c.fondo.isValid() ? c.fondo : p.color(QPalette::Base));
            p.setColor(QPalette::WindowText, c.texto.isValid() ? c.texto : p.color(QPalette::Text));
        });
    }
}

void frmDJ_detalle_op::conectar()
{
    atender(ui->tlb, &BarraHerramientas::pulsada, &frmDJ_detalle_op::tlb_pulsada);
    atender(ui->tlbBI, &BarraHerramientas::pulsada, &frmDJ_detalle_op::tlbBI_pulsada);
    atender(ui->tlbPartes, &BarraHerramientas::pulsada, &frmDJ_detalle_op::tlbPartes_pulsada);
    atender(ui->ctlCodS, &ctlNumero::KeyPress, [this](int& tecla) {
        if (tecla == 13 && seleccionarPorCodigo())
            ponerEstado(Estado::cambiando);
    });
    atender(ui->cmdBuscarSubcon, &QPushButton::clicked, [this] {
        auto* catalogo = cargar<frmSubconceptos>();
        catalogo->ley = ley_;
        abrir(catalogo);
    });
    atender(ui->cmdDetallesSSUB, &QPushButton::clicked, [this] {
        if (!subconcepto_)
            return;
        auto* detalle = cargar<frmDetalleSSUB>();
        detalle->mostrarSubconcepto(*subconcepto_);
        abrir(detalle);
    });
    atender(ui->cmdPasos, &QPushButton::clicked, &frmDJ_detalle_op::mostrarPasos);
    atender(ui->cmdBienes, &QPushButton::clicked, [this] { ui->flxInm->setVisible(!ui->flxInm->isVisible()); });
    ui->flxVC->setBarra(ui->tlbBI);
    ui->flxPartes->setBarra(ui->tlbPartes);
    atender(ui->flxInm, &QTableView::clicked, [this](const QModelIndex& i) { elegirInmueble(i.row()); });
    atender(ui->flxInm, &Grilla::elegida, [this] { elegirInmueble(ui->flxInm->filaActual()); });
}

void frmDJ_detalle_op::conectarCalculo()
{
    for (ctlNumero* n : {ui->nroAdicionales, ui->nroExencionPorc, ui->nroObligAccesoria, ui->nroPagoACuenta})
        atender(n, &ctlNumero::salida, &frmDJ_detalle_op::calcularImpuesto);
    atender(ui->nroValuacionFiscal, &ctlNumero::salida, &frmDJ_detalle_op::calcularBaseEImpuesto);
    atender(ui->SSTab1, &QTabWidget::currentChanged, [this] {
        if (!cargando_)
            calcularBaseEImpuesto();
    });
    atender(ui->chkObligAccesoria, &QCheckBox::toggled, &frmDJ_detalle_op::habilitarObligacion);
    atender(ui->cboObligAccesoria_modo, &QComboBox::currentIndexChanged, &frmDJ_detalle_op::habilitarObligacion);
}

void frmDJ_detalle_op::conectarValores()
{
    for (ctlNumero* n : {ui->nroValorContractual, ui->nroPorcIVA, ui->ctlValorCambio}) {
        atender(n, &ctlNumero::salida, &frmDJ_detalle_op::calcularParcial);
        atender(n, &ctlNumero::KeyPress, [this](int& tecla) {
            if (tecla == 13)
                ui->tlbBI->pulsar(u"guardar"_s);
        });
    }
    atender(ui->cboMoneda, &QComboBox::activated, &frmDJ_detalle_op::cambioMoneda);
}

void frmDJ_detalle_op::fijarRenglon(const QString& dj, const QString& renglon, const QString& dia,
                                    const QString& posicion)
{
    ui->txtDJ_nro->setText(dj);
    ui->txtRenglonDJ->setText(renglon);
    ui->txtDia->setText(dia);
    ui->txtPosicion->setText(posicion);
}

ClaveOperacion frmDJ_detalle_op::clave() const
{
    return {ui->txtDJ_nro->text(), ui->txtRenglonDJ->text(), ui->txtNroOP->text()};
}

int frmDJ_detalle_op::codigo() const
{
    return int(ui->ctlCodS->Value());
}

void frmDJ_detalle_op::Iniciar(Modo operacion, int id)
{
    Operacion = operacion;
    leerInmuebles();
    if (operacion == Modo::nuevo) {
        setWindowTitle(u"Nueva operación"_s);
        ui->fraSSUB->setEnabled(true);
        habilitarEleccion(true);
        ui->txtSubconcepto->setReadOnly(false);
        ponerEstado(Estado::nueva);
        ui->ctlCodS->setFocus();
    } else if (operacion == Modo::modificar) {
        setWindowTitle(u"Modificar operación"_s);
        alturaCompleta();
        ui->txtNroOP->setText(QString::number(id));
        guardado_ = true;
        cargando_ = true;
        cargarOperacion();
        cargando_ = false;
        recargarRoles();
        habilitarEleccion(false);
        ui->txtSubconcepto->setReadOnly(true);
        ponerEstado(Estado::consulta);
    }
    DialogoPantalla dialogo(this);
    ley_ = DeterminarLey(ui->txtDia->text(), ui->txtPosicion->text(), dialogo);
    ui->lblLeyAplicada->setText(u"Ley aplicada: "_s + QString::number(ley_.value_or(0)));
}

void frmDJ_detalle_op::alActivar()
{
    if (!ui->txtNroOP->text().isEmpty())
        recargarRoles();
}
