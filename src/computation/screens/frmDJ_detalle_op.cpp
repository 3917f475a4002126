// SPDX-License-Identifier: GPL-3.0-or-later

#include "computation/screens/frmDJ_detalle_op.h"

#include "computation/screens/frmDetalleSSUB.h"
#include "computation/operacion.h"
#include "widgets/ctlComunes.h"
#include "widgets/mensajes.h"
#include "core/modGlobales.h"
#include "tree/modABM_dj.h"
#include "ui_frmDJ_detalle_op.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int SOLAPA_BASE = 0;
constexpr int SOLAPA_IMPUESTO = 1;
constexpr int SOLAPA_ROLES = 2;
constexpr int ALTURA_COMPLETA = 6465;  // twips
constexpr int POSICION_MONEDA = 50;

// The buttons of each state, in the order of the bar, and whether the data may be edited.
struct FilaEstado
{
    std::array<bool, 6> botones;
    bool marcos;
};
constexpr std::array BOTONES{"salir", "cambiar_op", "guardar_op", "editar_det", "guardar_det", "cancelar"};
constexpr std::array ESTADOS{
    FilaEstado{{false, false, true, false, false, true}, false},  // new, code being chosen
    FilaEstado{{true, true, false, true, false, false}, false},   // consulting a saved operation
    FilaEstado{{false, false, true, false, false, true}, false},  // changing the subconcepto
    FilaEstado{{false, true, false, false, true, true}, true},    // editing right after the first save
    FilaEstado{{false, false, false, false, true, true}, true},   // editing a saved operation
};

Entradas monedas()
{
    Entradas lista;
    for (Recordset rs(cnRtn, u"select GMON_ID, GMON_DESCRIPCION, GMON_ALIAS from GLB_TB_MONEDAS"_s); !rs.eof();
         rs.siguiente())
        lista.push_back(
            {rs.texto("GMON_DESCRIPCION").leftJustified(POSICION_MONEDA) + rs.texto("GMON_ID"), rs.valor("GMON_ID")});
    return lista;
}

}  // namespace

frmDJ_detalle_op::frmDJ_detalle_op() : ui(std::make_unique<Ui::frmDJ_detalle_op>())
{
    ui->setupUi(this);
    preparar_grilla(ui->flxVC, {u"Nro"_s, u"Monto"_s, u"Moneda"_s, u"Total"_s}, {800, 1400, 1400, 1400});
    preparar_grilla(ui->flxInm, {u"NºInm"_s, u"Partida"_s, u"Val.Fiscal"_s}, {800, 1400, 1800});
    preparar_grilla(ui->flxPartes,
                    {u"Id.Parte"_s, u"Tipo Doc"_s, u"Nro Doc"_s, u"Denominación"_s, u"Id.Rol"_s, u"Rol"_s,
                     u"Observaciones"_s, u"Exención %"_s},
                    {700, 900, 1100, 2000, 0, 1700, 1500, 800});
    cboRoles_ = new QComboBox(ui->flxPartes->viewport());
    cboRoles_->setObjectName(u"cboRoles"_s);
    cboRoles_->hide();
    txtRolObs_ = new QLineEdit(ui->flxPartes->viewport());
    txtRolObs_->setObjectName(u"txtRolObs"_s);
    txtRolObs_->setMaxLength(50);
    txtRolObs_->hide();
    llenar_combo(ui->cboMoneda, monedas());
    ui->cboMoneda->setCurrentIndex(ui->cboMoneda->findData(id_pesos()));
    ui->ctlCodS->ClearText();
    ui->nroAux->hide();
    ui->flxInm->hide();
    ui->fraEditarVC->hide();
    ui->SSTab1->hide();
    for (const auto& [clave, texto] : {std::pair{"nuevo", "Nuevo valor contractual parcial"},
                                       std::pair{"editar", "Editar el valor contractual parcial seleccionado"},
                                       std::pair{"borrar", "Borrar el valor contractual parcial seleccionado"}})
        ui->tlbBI->ayuda(QLatin1String(clave), QString::fromUtf8(texto));
    const QPalette p = palette();
    for (const auto& [etiqueta, fondo, texto] :
         {std::tuple{ui->lblObligado, p.color(QPalette::Base), p.color(QPalette::Highlight)},
          std::tuple{ui->lblInformativo, p.color(QPalette::Base), p.color(QPalette::Text)},
          std::tuple{ui->lblNoParticipaOp, p.color(QPalette::ToolTipBase), QColor(Qt::darkGray)}}) {
        QPalette pe = p;
        pe.setColor(QPalette::Window, fondo);
        pe.setColor(QPalette::WindowText, texto);
        etiqueta->setAutoFillBackground(true);
        etiqueta->setPalette(pe);
        etiqueta->setMargin(3);
    }
    botonesValores(true, false);
    habilitarObligacion();
    conectar();
}

frmDJ_detalle_op::~frmDJ_detalle_op() = default;

void frmDJ_detalle_op::conectar()
{
    connect(ui->tlb, &BarraHerramientas::pulsada, this, &frmDJ_detalle_op::tlb_pulsada);
    connect(ui->tlbBI, &BarraHerramientas::pulsada, this, &frmDJ_detalle_op::tlbBI_pulsada);
    connect(ui->tlbPartes, &BarraHerramientas::pulsada, this, &frmDJ_detalle_op::tlbPartes_pulsada);
    connect(ui->ctlCodS, &ctlNumero::KeyPress, this, [this](int& tecla) {
        if (tecla == 13 && seleccionarPorCodigo())
            ponerEstado(Estado::cambiando);
    });
    connect(ui->cmdBuscarSubcon, &QPushButton::clicked, this, [this] {
        auto* catalogo = cargar<frmSubconceptos>();
        catalogo->ley = ley_;
        abrir(catalogo);
    });
    connect(ui->cmdDetallesSSUB, &QPushButton::clicked, this, [this] {
        if (!subconcepto_)
            return;
        auto* detalle = cargar<frmDetalleSSUB>();
        detalle->mostrarSubconcepto(*subconcepto_);
        abrir(detalle);
    });
    for (ctlNumero* n : {ui->nroAdicionales, ui->nroExencionPorc, ui->nroObligAccesoria, ui->nroPagoACuenta})
        connect(n, &ctlNumero::salida, this, &frmDJ_detalle_op::calcularImpuesto);
    connect(ui->nroValuacionFiscal, &ctlNumero::salida, this, &frmDJ_detalle_op::calcularBaseEImpuesto);
    connect(ui->SSTab1, &QTabWidget::currentChanged, this, [this] {
        if (!cargando_)
            calcularBaseEImpuesto();
    });
    connect(ui->cmdBienes, &QPushButton::clicked, this, [this] { ui->flxInm->setVisible(!ui->flxInm->isVisible()); });
    connect(ui->flxInm, &QTableView::clicked, this, [this](const QModelIndex& i) { elegirInmueble(i.row()); });
    connect(ui->flxInm, &Grilla::elegida, this, [this] { elegirInmueble(ui->flxInm->filaActual()); });
    connect(ui->chkObligAccesoria, &QCheckBox::toggled, this, &frmDJ_detalle_op::habilitarObligacion);
    connect(ui->cboObligAccesoria_modo, &QComboBox::currentIndexChanged, this, &frmDJ_detalle_op::habilitarObligacion);

    for (ctlNumero* n : {ui->nroValorContractual, ui->nroPorcIVA, ui->ctlValorCambio}) {
        connect(n, &ctlNumero::salida, this, &frmDJ_detalle_op::calcularParcial);
        connect(n, &ctlNumero::KeyPress, this, [this](int& tecla) {
            if (tecla == 13)
                ui->tlbBI->pulsar(u"guardar"_s);
        });
    }
    connect(ui->cboMoneda, &QComboBox::activated, this, &frmDJ_detalle_op::cambioMoneda);

    ui->flxPartes->installEventFilter(this);
    cboRoles_->installEventFilter(this);
    txtRolObs_->installEventFilter(this);
    connect(ui->flxPartes, &QTableView::clicked, this,
            [this](const QModelIndex& i) { abrirEditorDeCelda(i.row(), i.column(), {}); });
    connect(cboRoles_, &QComboBox::activated, this, [this] { cerrarEditorDeCelda(true); });
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
        ponerEstado(Estado::consulta);
    }
    DialogoPantalla dialogo(this);
    ley_ = DeterminarLey(ui->txtDia->text(), ui->txtPosicion->text(), dialogo);
    ui->lblLeyAplicada->setText(u"Ley aplicada: "_s + QString::number(ley_));
}

void frmDJ_detalle_op::alActivar()
{
    if (!ui->txtNroOP->text().isEmpty())
        recargarRoles();
}

void frmDJ_detalle_op::ponerEstado(Estado estado)
{
    const FilaEstado& fila = ESTADOS[size_t(estado)];
    for (size_t i = 0; i < BOTONES.size(); ++i)
        ui->tlb->habilitar(QLatin1String(BOTONES[i]), fila.botones[i]);
    ponerMarcos(fila.marcos);
}

void frmDJ_detalle_op::ponerMarcos(bool si)
{
    for (QWidget* marco :
         {static_cast<QWidget*>(ui->fraBI), static_cast<QWidget*>(ui->fraImp), static_cast<QWidget*>(ui->fraPartes)})
        marco->setEnabled(si);
}

void frmDJ_detalle_op::alturaCompleta()
{
    ui->SSTab1->show();
    setMinimumHeight(std::max(pixeles(this, ALTURA_COMPLETA), minimumSizeHint().height()));
    if (parentWidget() && parentWidget()->height() < sizeHint().height())
        parentWidget()->resize(parentWidget()->width(), sizeHint().height() + 40);
}

void frmDJ_detalle_op::tlb_pulsada(const QString& clave)
{
    if (clave == u"salir")
        descargar();
    else if (clave == u"guardar_op")
        guardarOperacion();
    else if (clave == u"cambiar_op")
        cambiarOperacion();
    else if (clave == u"editar_det")
        ponerEstado(Estado::editando);
    else if (clave == u"guardar_det")
        guardarDetalle();
    else
        cancelar();
}

// Three characters from the sixth one: deliberate, though the code of a law of four digits has but
// two of them there.
void frmDJ_detalle_op::SeleccionarSubconcepto(int id)
{
    ui->ctlCodS->setValue(QString::number(id).mid(5, 3).toInt());
    seleccionarPorCodigo();
}

// The code of an item, and the way to find it by its text.
void frmDJ_detalle_op::habilitarEleccion(bool si)
{
    ui->ctlCodS->Habilitar(si);
    ui->cmdBuscarSubcon->setEnabled(si);
}

// True when the item on the screen is another than the current one.
bool frmDJ_detalle_op::seleccionarPorCodigo()
{
    const bool cambia = subconcepto_ && subconcepto_->IdSubconcepto() != identificador_subconcepto(ley_, codigo());
    cargarSubconcepto();
    calcularImpuesto();
    return cambia;
}

void frmDJ_detalle_op::limpiarSubconcepto()
{
    ui->txtSubconcepto->clear();
    ui->ctlImporteMinimo->setValue(0);
    ui->ctlImporteMinimo->hide();
    ui->lblImporteMinimo->hide();
}

bool frmDJ_detalle_op::cargarSubconcepto()
{
    if (ui->ctlCodS->modelo().vacio()) {
        limpiarSubconcepto();
        subconcepto_.reset();
        return false;
    }
    if (ley_ == 0)
        return false;
    DialogoPantalla dialogo(this);
    const ResultadoSubconcepto r = buscar_subconcepto(ley_, codigo(), dialogo);
    if (!r.subconcepto) {
        limpiarSubconcepto();
        subconcepto_.reset();
        ui->ctlCodS->setFocus();
        return false;
    }
    subconcepto_ = r.subconcepto;
    const clsSubconcepto& s = *subconcepto_;
    ui->txtSubconcepto->setText(s.Descripcion);
    ui->lblImporteMinimo->setVisible(r.conMinimo);
    ui->ctlImporteMinimo->setVisible(r.conMinimo);
    if (r.conMinimo) {
        ui->ctlImporteMinimo->setValue(s.ModulosMinimo * ValorModulo);
        ui->lblImporteMinimo->setText(u"Importe mínimo de sellado:  "_s + QString::number(s.ModulosMinimo)
                                      + u" MÓDULOS -  $"_s);
    }
    ui->lblValuacionFiscal->setText(s.NombreValuacionFiscal);
    ui->lblValorContractual->setText(r.nombreValorContractual);
    if (s.Exencion)
        ui->nroExencionPorc->setValue(s.ExencionPorc);
    Entradas modos;
    for (const ModoObligacion& m : modos_obligacion(s.ObligAccesoria_suma))
        modos.push_back({m.texto, m.dato});
    llenar_combo(ui->cboObligAccesoria_modo, modos);
    Entradas roles{{u"(ninguno)"_s, 0}};
    for (const clsRol& rol : s.Roles())
        roles.push_back({rol.Descripcion, rol.IdRol});
    llenar_combo(cboRoles_, roles);
    mostrarPorSubconcepto();
    return true;
}

void frmDJ_detalle_op::mostrarPorSubconcepto()
{
    const clsSubconcepto& s = *subconcepto_;
    const bool rbi = s.RequiereBaseImponible;
    ui->SSTab1->setTabEnabled(SOLAPA_BASE, rbi);
    ui->nroHipoteca->Habilitar(s.RequiereHipoteca && rbi);
    ui->fraHip->setVisible(s.RequiereHipoteca && rbi);
    ui->fraVF->setVisible(s.RequiereValuacionFiscal && rbi);
    ui->nroValuacionFiscal->Habilitar(s.RequiereValuacionFiscal && rbi);
    ui->cmdBienes->setEnabled(s.RequiereValuacionFiscal && rbi);
    const bool con_valor = s.RequiereValorContractual && rbi;
    ui->nroValorContractual->Habilitar(con_valor);
    ui->cboMoneda->setEnabled(con_valor);
    ui->nroPorcIVA->Habilitar(con_valor);
    for (QWidget* w : {static_cast<QWidget*>(ui->ctlValorCambio), static_cast<QWidget*>(ui->lblValorCambio),
                       static_cast<QWidget*>(ui->cboMoneda), static_cast<QWidget*>(ui->lblMoneda),
                       static_cast<QWidget*>(ui->nroPorcIVA), static_cast<QWidget*>(ui->lblPorcIVA)})
        w->setVisible(s.RequiereMoneda);
    ui->nroPagoACuenta->Habilitar(s.PermitePagoACuenta);
    if (!s.PermitePagoACuenta)
        ui->nroPagoACuenta->setValue(0);
    ui->fraObligAccesoria->setVisible(s.ObligAccesoria);
    const QString valor = ui->lblValorContractual->text();
    ui->lblBaseImponibleParcial->setText(s.RequiereMoneda ? u"Valor Contractual Parcial $"_s : valor);
    ui->lblTotalVC->setText(s.RequiereMoneda ? u"Valor Contractual Total  $"_s : valor);
    const QString base = s.RequiereMoneda ? u"Base Imponible $"_s : u"Base Imponible"_s;
    ui->lblBaseImponible->setText(base);
    ui->lblBaseImponiblePesos->setText(base);
    if (!rbi)
        ui->SSTab1->setCurrentIndex(SOLAPA_IMPUESTO);
}

void frmDJ_detalle_op::guardarOperacion()
{
    if (codigo() != 0 && (ui->txtSubconcepto->text().isEmpty() || codigo() != codigoAnterior_)) {
        seleccionarPorCodigo();
        if (!subconcepto_)
            return;
    }
    if (!guardado_ && Operacion == Modo::nuevo) {
        if (codigo() == 0) {
            avisar(u"Ingrese el código de operación"_s, windowTitle());
            ui->ctlCodS->setFocus();
            return;
        }
        ::Operacion fila;
        fila.dj = ui->txtDJ_nro->text();
        fila.renglon = ui->txtRenglonDJ->text().toInt();
        fila.subconcepto = identificador_subconcepto(ley_, codigo());
        DialogoPantalla dialogo(this);
        if (!alta_operacion(fila, true, dialogo))
            return;
        ui->txtNroOP->setText(QString::number(fila.id));
        codigoAnterior_ = codigo();
        alturaCompleta();
        recargarRoles();
        ponerEstado(Estado::reciengrabada);
        habilitarEleccion(false);
        guardado_ = true;
        return;
    }
    adaptarRoles();
    recargarValores();
    calcularImpuesto();
    habilitarEleccion(false);
    ponerEstado(Estado::editando);
}

void frmDJ_detalle_op::cambiarOperacion()
{
    const QList<ParteRol> partes = partesDeGrilla();
    const bool con_rol = std::any_of(partes.begin(), partes.end(), [](const ParteRol& p) { return !p.rol.isEmpty(); });
    if (!partes.isEmpty() && con_rol
        && !preguntar(
            u"Esta acción borrará los roles asignados a las partes que no se correspondan con la nueva operación.\n"
            u"¿Esta seguro de cambiar la operación?"_s,
            windowTitle() + u" - Cambiar operación"_s))
        return;
    codigoAnterior_ = codigo();
    habilitarEleccion(true);
    ui->ctlCodS->setFocus();
    ponerEstado(Estado::cambiando);
}

bool frmDJ_detalle_op::validarDetalle()
{
    const bool rbi = subconcepto_ && subconcepto_->RequiereBaseImponible;
    auto falla = !rbi ? std::optional<Falla>()
                      : primera_falla({
                          {subconcepto_->RequiereValorContractual && ui->flxVC->filas() == 0,
                           "Ingrese (o guarde) el valor contractual de la operación", "nroValorContractual"},
                          {subconcepto_->RequiereValuacionFiscal && ui->nroValuacionFiscal->Value() == 0,
                           "Ingrese la valuación fiscal", "nroValuacionFiscal"},
                          {subconcepto_->RequiereHipoteca && ui->nroHipoteca->Value() == 0,
                           "Ingrese el monto de la hipoteca", "nroHipoteca"},
                      });
    if (falla) {
        avisar(falla->mensaje, windowTitle());
        ui->SSTab1->setCurrentIndex(SOLAPA_BASE);
        enfocar(falla->control);
        return false;
    }
    if (roles_obligatorios(subconcepto_ ? &*subconcepto_ : nullptr, partesDeGrilla(), textoRolesObligatorios_))
        return true;
    avisar(textoRolesObligatorios_ + u"\nPor favor, ingrese los roles de las partes."_s,
           windowTitle() + u" - Atención!"_s, Icono::exclamacion);
    ui->SSTab1->setCurrentIndex(SOLAPA_ROLES);
    return false;
}

// The row, the link of the property, the roles: each stands once it is written.
bool frmDJ_detalle_op::guardarDatos()
{
    DatosOperacion d;
    d.ley = ley_;
    d.codigo = codigo();
    d.subconcepto = &*subconcepto_;
    d.obligAccesoria = ui->chkObligAccesoria->isChecked();
    d.obligFijo = ui->optObligAccesoria_fijo->isChecked();
    d.obligModo = item_data(ui->cboObligAccesoria_modo);
    d.obligModoTexto = ui->cboObligAccesoria_modo->currentText();
    d.obligPoliza = ui->txtObligAccesoria_poliza->text();
    d.observaciones = ui->txtObs->text();
    try {
        actualizar_operacion(clave(), campos(), d);
    } catch (const ErrorAlmacen& e) {
        avisar(e.descripcion, windowTitle());
        return false;
    }
    try {
        vincular_inmueble(clave(), inmuebleVinculado_);
    } catch (const ErrorAlmacen& e) {
        avisar(u"Error al guardar el vinculo entre la operación y el inmueble\n"_s + e.descripcion, windowTitle());
        return false;
    }
    DialogoPantalla dialogo(this);
    return guardar_roles(clave(), partesDeGrilla(), windowTitle(), dialogo);
}

void frmDJ_detalle_op::guardarDetalle()
{
    cerrarEditorDeCelda(true);
    if (!validarDetalle() || !guardarDatos())
        return;
    DialogoPantalla dialogo(this);
    const auto totales = guardar_totales(clave(), dialogo);
    if (!totales)
        return;
    emit totalesGuardados(totales->renglon, totales->dj);
    codigoAnterior_ = codigo();
    ponerEstado(Estado::consulta);
}

void frmDJ_detalle_op::cancelar()
{
    cerrarEditorDeCelda(false);
    if (!guardado_ && Operacion == Modo::nuevo) {
        ui->ctlCodS->ClearText();
        cargarSubconcepto();
        limpiarImportes();
        leerInmuebles();
        ponerEstado(Estado::nueva);
        ui->tlb->habilitar(u"salir"_s, true);
        return;
    }
    limpiarPanel();
    ui->fraEditarVC->hide();
    botonesValores(true, false);
    if (codigoAnterior_ != 0 && codigo() != codigoAnterior_) {
        ui->ctlCodS->setValue(codigoAnterior_);
        cargarSubconcepto();
        adaptarRoles();
        calcularImpuesto();
    }
    habilitarEleccion(false);
    ponerEstado(Estado::consulta);
}

bool frmDJ_detalle_op::consultarDescarga()
{
    if (ui->ctlCodS->modelo().vacio()) {
        avisar(u"Ingrese el codigo de operación"_s, windowTitle());
        return false;
    }
    return !guardado_ || !ui->tlb->habilitada(u"guardar_det"_s)
           || preguntar(u"¿Descartar los cambios?"_s, windowTitle());
}

void frmDJ_detalle_op::habilitarObligacion()
{
    const bool si = ui->chkObligAccesoria->isChecked();
    for (QWidget* w :
         {static_cast<QWidget*>(ui->cboObligAccesoria_modo), static_cast<QWidget*>(ui->optObligAccesoria_porc),
          static_cast<QWidget*>(ui->optObligAccesoria_fijo)})
        w->setEnabled(si);
    ui->nroObligAccesoria->Habilitar(si);
    const bool poliza = si && ui->cboObligAccesoria_modo->currentText() == u"Seguro de Caución";
    ui->txtObligAccesoria_poliza->setVisible(poliza);
    ui->lblObligAccesoria_poliza->setVisible(poliza);
}
