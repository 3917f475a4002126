// SPDX-License-Identifier: GPL-3.0-or-later

#include "declarations/screens/frmDJ_editar.h"

#include "widgets/ctlComunes.h"
#include "widgets/mensajes.h"
#include "core/modGlobales.h"
#include "core/reloj.h"
#include "agents/agente.h"
#include "declarations/cabecera_dj.h"
#include "declarations/copiar_dj.h"
#include "deeds/screens/frmDJ_detalle.h"
#include "tree/modABM_dj.h"
#include "declarations/renglones.h"
#include "ui_frmDJ_editar.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int SOLAPA_GENERAL = 0;
constexpr int SOLAPA_DETALLE = 1;
constexpr int SOLAPA_BOLETAS = 2;
constexpr int COL_IMPUESTO = 6;
const QColor ROJO(255, 0, 0);

// Numbers each entry, so that its item data is what the column holds.
void numerar(QComboBox* combo, int desde)
{
    for (int i = 0; i < combo->count(); ++i)
        combo->setItemData(i, i + desde);
}

QString cuit_texto(const std::optional<qint64>& cuit)
{
    return cuit ? QString::number(*cuit) : QString();
}

std::optional<qint64> cuit_numero(const QString& texto)
{
    return texto.isEmpty() ? std::optional<qint64>() : texto.toLongLong();
}

}  // namespace

frmDJ_editar::frmDJ_editar() : ui(std::make_unique<Ui::frmDJ_editar>())
{
    ui->setupUi(this);
    numerar(ui->cboMes, 1);
    numerar(ui->cboRectificativa, 0);
    numerar(ui->cboDJ_Estado, 0);
    ui->cboDJ_Estado->setCurrentIndex(0);
    ui->lblAviso->hide();
    ui->lblCantIncompletos->hide();
    seleccionar_item(ui->cboMes, hoy().month());
    ui->txtAnio->setText(QString::number(hoy().year()));
    seleccionar_item(ui->cboRectificativa, 0);
    try {
        llenar_combo(ui->cboRTN, leer_entradas(consulta_agentes(), "SRTN_TITULAR_NOMBRE", "SRTN_NRO"));
    } catch (const ErrorAlmacen&) {
        avisar(u"Error al cargar los agentes de retención"_s, {}, Icono::ninguno);
    }
    ui->SSTab1->setTabEnabled(SOLAPA_DETALLE, false);
    ui->SSTab1->setTabEnabled(SOLAPA_BOLETAS, false);
    preparar_grilla(
        ui->flxOp,
        {u"NºRenglón"_s, u"Escritura"_s, u"Folio"_s, u"Dia"_s, u"Operación"_s, u"Observaciones"_s, u"Impuesto"_s},
        {0, 800, 600, 600, 3400, 1500, 1100});
    preparar_grilla(ui->flxB, {u"Nro boleta"_s, u"Importe"_s}, {2500, 1200});
    ui->dtpBOL_venc->setEnabled(false);
    ui->nroTotal_depositar->setValue(0);
    conectar();
}

frmDJ_editar::~frmDJ_editar() = default;

void frmDJ_editar::conectar()
{
    for (QLineEdit* texto : {ui->txtAnio, ui->txtRTN_nro})
        solo_digitos_en(texto);
    conectarBoletas();
    connect(ui->tlbDJ, &BarraHerramientas::pulsada, this, &frmDJ_editar::tlbDJ_pulsada);
    connect(ui->tlbDetalle, &BarraHerramientas::pulsada, this, &frmDJ_editar::tlbDetalle_pulsada);
    connect(ui->flxOp, &Grilla::elegida, this, [this] { ui->tlbDetalle->pulsar(u"editar"_s); });
    connect(ui->cboRTN, &QComboBox::activated, this, [this] {
        ui->txtRTN_nro->setText(QString::number(item_data(ui->cboRTN)));
        mostrarAgente(item_data(ui->cboRTN));
        componer_nro_dj();
    });
    connect(ui->txtRTN_nro, &QLineEdit::editingFinished, this, &frmDJ_editar::salirDeAgente);
    connect(ui->txtAnio, &QLineEdit::editingFinished, this, [this] {
        if (!ui->txtAnio->isModified())
            return;
        ui->txtAnio->setModified(false);
        componer_nro_dj();
    });
    for (QComboBox* combo : {ui->cboMes, ui->cboRectificativa})
        connect(combo, &QComboBox::activated, this, &frmDJ_editar::componer_nro_dj);
    connect(ui->cboDJ_Estado, &QComboBox::activated, this, &frmDJ_editar::marcar_sin_movimientos);
    connect(ui->chkCambiarFechaVenc, &QCheckBox::toggled, ui->dtpBOL_venc, &QWidget::setEnabled);
    connect(ui->nroAcred_monto, &ctlNumero::cambiado, this,
            [this] { ui->nroTotal_depositar->setValue(ui->nroTotal_retenido->Value() - ui->nroAcred_monto->Value()); });
}

void frmDJ_editar::mostrarTotal(double total)
{
    ui->nroTotalRetenido->setValue(total);
    ui->nroTotal_retenido->setValue(total);
}

bool frmDJ_editar::iniciar(Modo operacion, const QString& nro)
{
    Operacion = operacion;
    nroInicial_ = nro;
    if (operacion == Modo::nuevo) {
        setWindowTitle(u"Nueva DJ"_s);
        if (componer_nro_dj()) {
            ui->tlbDJ->boton(u"editar"_s)->setEnabled(true);
            ui->tlbDJ->pulsar(u"editar"_s);
            ui->SSTab1->setTabEnabled(SOLAPA_BOLETAS, false);
        }
        calcular_vencimiento();
        return true;
    }
    if (operacion == Modo::rectificar) {
        DialogoPantalla dialogo(parentWidget());
        nroInicial_ = copiar_dj(nro, dialogo);
        if (nroInicial_.isEmpty())
            return false;
        // From here on the copy is a stored DJ like any other: "aceptar" updates it.
        Operacion = Modo::modificar;
    }
    setWindowTitle(operacion == Modo::rectificar ? u"Rectificar DJ"_s : u"Modificar DJ"_s);
    if (!cargar_cabecera(nroInicial_))
        return false;
    cargar_detalle();
    cerrarPosicion();
    estado_botones(false, true, false, true, true);
    habilitar_tlbDetalle();
    return true;
}

// A stored DJ keeps its agent and its posición.
void frmDJ_editar::cerrarPosicion()
{
    for (QLineEdit* texto : {ui->txtAnio, ui->txtRTN_nro})
        habilitar_texto(texto, false);
    for (QComboBox* combo : {ui->cboMes, ui->cboRectificativa, ui->cboRTN})
        habilitar_combo(combo, false);
}

void frmDJ_editar::alActivar()
{
    actualizar_totales();
    cargar_detalle();
    cargar_boletas();
}

bool frmDJ_editar::componer_nro_dj()
{
    ui->txtNroDJ->clear();
    if (!posicion_admitida(ui->txtAnio->text().toInt(), item_data(ui->cboMes))) {
        avisar(u"La posicion a declarar con este aplicativo debe ser posterior a 2006/06"_s, {});
        return false;
    }
    ui->txtNroDJ->setText(componer_numero(ui->txtCUIT->text(), ui->txtAnio->text(), item_data(ui->cboMes),
                                          item_data(ui->cboRectificativa)));
    calcular_vencimiento();
    return true;
}

void frmDJ_editar::calcular_vencimiento()
{
    if (ui->chkCambiarFechaVenc->isChecked())
        return;
    const QDate dia = hoy();
    const bool con_posicion = item_data(ui->cboMes) != 0 && !ui->txtAnio->text().isEmpty();
    const QDate fecha = con_posicion ? vencimiento_dj(ui->txtAnio->text().toInt(), item_data(ui->cboMes))
                                     : QDate(dia.year(), dia.month(), 15);
    ui->dtpBOL_venc->setMinimumDate(fecha);
    ui->dtpBOL_venc->setDate(fecha);
    ui->dtpBOL_emision->setDate(dia);
}

void frmDJ_editar::salirDeAgente()
{
    if (!ui->txtRTN_nro->isModified())
        return;
    ui->txtRTN_nro->setModified(false);
    const int nro = ui->txtRTN_nro->text().toInt();
    seleccionar_item(ui->cboRTN, nro);
    if (nro != 0)
        mostrarAgente(nro);
    else
        limpiar_agente();
    componer_nro_dj();
}

void frmDJ_editar::limpiar_agente()
{
    for (QLineEdit* texto :
         {ui->txtCUIT, ui->txtDomicilio, ui->txtCodPostal, ui->txtTelefono, ui->txtLocalidad, ui->txtEmail,
          ui->txtAdscripto1_nombre, ui->txtAdscripto1_cuit, ui->txtAdscripto2_nombre, ui->txtAdscripto2_cuit})
        texto->clear();
    localidad_ = 0;
}

void frmDJ_editar::mostrarAgente(int nro)
{
    limpiar_agente();
    const auto a = datos_agente_dj(nro);
    if (!a)
        return;
    ui->txtRTN_nro->setText(QString::number(a->nro));
    ui->txtCUIT->setText(a->cuit);
    ui->txtDomicilio->setText(a->domicilio);
    ui->txtCodPostal->setText(a->codPostal);
    ui->txtTelefono->setText(a->telefono);
    ui->txtLocalidad->setText(a->localidadNombre);
    localidad_ = a->localidad.value_or(0);
    ui->txtEmail->setText(a->email);
    ui->txtAdscripto1_nombre->setText(a->adscripto1);
    ui->txtAdscripto1_cuit->setText(a->adscripto1Cuit);
    ui->txtAdscripto2_nombre->setText(a->adscripto2);
    ui->txtAdscripto2_cuit->setText(a->adscripto2Cuit);
}

// A DJ keeps the agent's data as they were when it was made.
bool frmDJ_editar::cargar_cabecera(const QString& nro)
{
    QString localidad;
    const auto dj = cargar_dj(nro, localidad);
    if (!dj)
        return false;
    ui->txtNroDJ->setText(nro.rightJustified(13, u'0'));
    ui->txtRTN_nro->setText(QString::number(dj->agente));
    seleccionar_item(ui->cboRTN, dj->agente);
    ui->txtAnio->setText(QString::number(dj->anio));
    seleccionar_item(ui->cboMes, dj->mes);
    seleccionar_item(ui->cboRectificativa, dj->secuencia);
    seleccionar_item(ui->cboDJ_Estado, dj->estado);
    ui->txtObs->setText(dj->observaciones);
    ui->txtCUIT->setText(cuit_texto(dj->cuit));
    ui->txtDomicilio->setText(dj->domicilio);
    ui->txtCodPostal->setText(dj->codPostal);
    ui->txtTelefono->setText(dj->telefono);
    ui->txtLocalidad->setText(localidad);
    localidad_ = dj->localidad.value_or(0);
    ui->txtEmail->setText(dj->email);
    ui->txtAdscripto1_nombre->setText(dj->adscripto1);
    ui->txtAdscripto1_cuit->setText(cuit_texto(dj->adscripto1Cuit));
    ui->txtAdscripto2_nombre->setText(dj->adscripto2);
    ui->txtAdscripto2_cuit->setText(cuit_texto(dj->adscripto2Cuit));
    ui->dtpBOL_emision->setDate(hoy());
    ui->dtpBOL_venc->clearMinimumDate();
    if (dj->vencimiento.isValid())
        ui->dtpBOL_venc->setDate(dj->vencimiento);
    ui->nroAcred_resolucion->setValue(dj->acredResolucion.left(4).toDouble());
    ui->nroAcred_resolucion_anio->setValue(dj->acredResolucion.mid(5).toDouble());
    ui->nroTotal_retenido->setValue(dj->totalRetenido);
    ui->nroAcred_monto->setValue(dj->acredMonto);
    ui->nroTotal_depositar->setValue(dj->totalRetenido - dj->acredMonto);
    return true;
}

void frmDJ_editar::actualizar_totales()
{
    const double total = total_retenido(ui->txtNroDJ->text());
    mostrarTotal(total);
    const double depositar = total - ui->nroAcred_monto->Value();
    ui->nroTotal_depositar->setValue(depositar);
    ui->nroImpuesto->setValue(std::max(depositar, 0.0));
    ui->nroInteres->setValue(0);
    ui->nroBOL_Total_depositar->setValue(ui->nroImpuesto->Value() + ui->nroInteres->Value());
}

void frmDJ_editar::cargar_detalle()
{
    int incompletos = 0;
    int fila = 0;
    ui->flxOp->llenar([&] {
        leer_renglones(ui->txtNroDJ->text(), [&](const FilaRenglon& r) {
            ui->flxOp->agregar(std::span<const std::string_view>(r.celdas));
            if (r.incompleto) {
                ui->flxOp->colorear(fila, {ROJO, {}});
                ++incompletos;
            }
            ++fila;
        });
    });
    const bool normal = item_data(ui->cboDJ_Estado) == 0;
    ui->lblAviso->setVisible(normal && (incompletos > 0 || fila == 0));
    ui->lblCantIncompletos->setText(u"Renglones incompletos: "_s + QString::number(incompletos));
    ui->lblCantIncompletos->setVisible(normal && incompletos > 0);
    habilitar_tlbDetalle();
}

void frmDJ_editar::habilitar_tlbDetalle()
{
    for (const char* clave : {"editar", "borrar"})
        ui->tlbDetalle->habilitar(QLatin1String(clave), ui->flxOp->filas() > 0);
}

// No question is asked: the deeds go when the DJ is accepted.
void frmDJ_editar::marcar_sin_movimientos()
{
    if (ui->txtNroDJ->text().isEmpty() || item_data(ui->cboDJ_Estado) != 1
        || cantidad_renglones(ui->txtNroDJ->text()) == 0)
        return;
    avisar(
        u"Atención: Hay escrituras cargadas. \nLa acción de marcarla SIN MOVIMIENTOS borrará todas las escrituras cargadas en esta DJ."_s,
        u"DJ - Marcar SIN MOVIMIENTOS"_s);
}

ControlesCabecera frmDJ_editar::leer_controles() const
{
    return {ui->txtRTN_nro->text(),
            item_data(ui->cboRTN),
            ui->txtAnio->text(),
            item_data(ui->cboMes),
            ui->cboRectificativa->currentIndex() < 0 ? -1 : item_data(ui->cboRectificativa),
            ui->txtObs->text()};
}

CabeceraDJ frmDJ_editar::leer_cabecera() const
{
    CabeceraDJ dj;
    dj.nro = ui->txtNroDJ->text();
    dj.anio = ui->txtAnio->text().toInt();
    dj.mes = item_data(ui->cboMes);
    dj.secuencia = item_data(ui->cboRectificativa);
    dj.estado = item_data(ui->cboDJ_Estado);
    dj.observaciones = ui->txtObs->text();
    dj.totalRetenido = ui->nroTotal_retenido->Value();
    dj.vencimiento = ui->dtpBOL_venc->date();
    dj.agente = ui->txtRTN_nro->text().toInt();
    dj.titular = ui->cboRTN->currentText();
    dj.cuit = cuit_numero(ui->txtCUIT->text());
    dj.domicilio = ui->txtDomicilio->text();
    dj.codPostal = ui->txtCodPostal->text();
    dj.telefono = ui->txtTelefono->text();
    if (localidad_ != 0)
        dj.localidad = localidad_;
    dj.adscripto1 = ui->txtAdscripto1_nombre->text();
    dj.adscripto1Cuit = cuit_numero(ui->txtAdscripto1_cuit->text());
    dj.adscripto2 = ui->txtAdscripto2_nombre->text();
    dj.adscripto2Cuit = cuit_numero(ui->txtAdscripto2_cuit->text());
    dj.email = ui->txtEmail->text();
    dj.acredMonto = ui->nroAcred_monto->Value();
    dj.acredResolucion = componer_resolucion(ui->nroAcred_resolucion->Value(), ui->nroAcred_resolucion_anio->Value());
    return dj;
}

void frmDJ_editar::aceptar()
{
    ControlesCabecera c = leer_controles();
    const auto falla = validar_cabecera(c);
    ui->txtAnio->setText(c.anio);
    ui->txtObs->setText(c.observaciones);
    if (falla) {
        mostrarFalla(*falla);
        return;
    }
    // A posición that is not admitted has left no number to save under.
    if (ui->txtNroDJ->text().isEmpty() && !componer_nro_dj())
        return;
    const CabeceraDJ dj = leer_cabecera();
    if (Operacion == Modo::nuevo) {
        DialogoPantalla dialogo(this);
        if (!alta_cabecera_dj(dj, dialogo))
            return;
        Operacion = Modo::modificar;
        nroInicial_ = dj.nro;
        cerrarPosicion();
    } else {
        actualizar_cabecera(dj);
    }
    if (dj.estado == 1)
        borrar_escrituras(dj.nro);
    cargar_detalle();
    ui->lblAviso->setVisible(dj.estado == 0);
    estado_botones(false, true, false, true, true);
}

void frmDJ_editar::estado_botones(bool aceptar, bool editar, bool general, bool detalle, bool boletas)
{
    for (const char* clave : {"aceptar", "cancelar"})
        ui->tlbDJ->habilitar(QLatin1String(clave), aceptar);
    for (const char* clave : {"editar", "salir"})
        ui->tlbDJ->habilitar(QLatin1String(clave), editar);
    ui->fraGeneral->setEnabled(general);
    const bool con_detalle = detalle && ui->cboDJ_Estado->currentText() == u"NORMAL";
    ui->SSTab1->setTabEnabled(SOLAPA_DETALLE, con_detalle);
    ui->fraDetalle->setEnabled(con_detalle);
    ui->SSTab1->setTabEnabled(SOLAPA_BOLETAS, true);
    ui->fraBoletas->setEnabled(boletas);
}

void frmDJ_editar::tlbDJ_pulsada(const QString& clave)
{
    if (clave == u"aceptar") {
        aceptar();
    } else if (clave == u"editar") {
        estado_botones(true, false, true, false, true);
        ui->SSTab1->setCurrentIndex(SOLAPA_GENERAL);
        (Operacion == Modo::nuevo ? ui->txtRTN_nro : ui->txtObs)->setFocus();
    } else if (clave == u"cancelar") {
        const bool nueva = Operacion == Modo::nuevo;
        iniciar(Operacion, nroInicial_);
        estado_botones(false, true, false, !nueva, true);
    } else {
        descargar();
    }
}

void frmDJ_editar::abrirRenglon(Modo operacion)
{
    auto* hijo = cargar<frmDJ_detalle>();
    hijo->Llamador = this;
    connect(hijo, &frmDJ_detalle::totalDJ, this, &frmDJ_editar::mostrarTotal, Qt::UniqueConnection);
    connect(hijo, &frmDJ_detalle::reporteCerrado, this, &frmDJ_editar::devolverBoletas, Qt::UniqueConnection);
    const DatosDJ dj{ui->txtNroDJ->text(), ui->txtAnio->text(), item_data(ui->cboMes), ui->cboRTN->currentText()};
    hijo->Inicializar(operacion, dj, operacion == Modo::nuevo ? QString() : ui->flxOp->clave());
    abrir(hijo);
}

void frmDJ_editar::tlbDetalle_pulsada(const QString& clave)
{
    if (clave == u"agregar") {
        abrirRenglon(Modo::nuevo);
        return;
    }
    if (ui->flxOp->filaActual() < 0)
        return;
    if (clave == u"editar") {
        abrirRenglon(Modo::modificar);
        return;
    }
    if (!preguntar(u"¿Está seguro que desea borrar el renglón seleccionado?"_s, u"Borrar renglón"_s))
        return;
    DialogoPantalla dialogo(this);
    const double monto = numero_de_texto(ui->flxOp->celda(ui->flxOp->filaActual(), COL_IMPUESTO));
    if (borrar_renglon(ui->txtNroDJ->text(), ui->flxOp->clave().toInt(), monto, dialogo)) {
        cargar_detalle();
        actualizar_totales();
    }
}
