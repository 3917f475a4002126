// SPDX-License-Identifier: GPL-3.0-or-later
// Setting the DJ's screen up, and which of its parts are open to the user.

#include "declarations/screens/frmDJ_editar.h"

#include "agents/agente.h"
#include "core/reloj.h"
#include "declarations/copiar_dj.h"
#include "ui_frmDJ_editar.h"
#include "widgets/ctlComunes.h"
#include "widgets/mensajes.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int SOLAPA_GENERAL = 0;
constexpr int SOLAPA_DETALLE = 1;
constexpr int SOLAPA_BOLETAS = 2;

// Numbers each entry, so that its item data is what the column holds.
void numerar(QComboBox* combo, int desde)
{
    for (int i = 0; i < combo->count(); ++i)
        combo->setItemData(i, i + desde);
}

}  // namespace

frmDJ_editar::frmDJ_editar() : ui(std::make_unique<Ui::frmDJ_editar>())
{
    ui->setupUi(this);
    numerar(ui->cboMes, 1);
    numerar(ui->cboRectificativa, 0);
    numerar(ui->cboDJ_Estado, DJ_NORMAL);
    ui->cboDJ_Estado->setCurrentIndex(0);
    for (QLabel* aviso : {ui->lblAviso, ui->lblCantIncompletos, ui->lblDiferencia}) {
        pintar_texto(aviso, Tono::alerta);
        aviso->hide();
    }
    seleccionar_item(ui->cboMes, hoy().month());
    ui->txtAnio->setText(QString::number(hoy().year()));
    seleccionar_item(ui->cboRectificativa, 0);
    DialogoPantalla dialogo(this);
    llenar_combo(ui->cboRTN, agentes_por_nombre(dialogo));
    ui->SSTab1->setTabEnabled(SOLAPA_DETALLE, false);
    ui->SSTab1->setTabEnabled(SOLAPA_BOLETAS, false);
    preparar_grilla(
        ui->flxOp,
        {u"NºRenglón"_s, u"Escritura"_s, u"Folio"_s, u"Dia"_s, u"Operación"_s, u"Observaciones"_s, u"Impuesto"_s},
        {0, 800, 600, 600, 3400, 1500, 1100});
    preparar_grilla(ui->flxB, {u"Nro boleta"_s, u"Importe"_s}, {2500, 1200});
    ui->flxOp->setPlanilla([this] { return u"escrituras-"_s + ui->txtNroDJ->text(); });
    ui->flxB->setPlanilla([this] { return u"boletas-"_s + ui->txtNroDJ->text(); });
    ui->dtpBOL_venc->setEnabled(false);
    ui->nroTotal_depositar->setValue(0);
    conectarBoletas();
    atender(ui->tlbDJ, &BarraHerramientas::pulsada, &frmDJ_editar::tlbDJ_pulsada);
    conectarRenglones();
    conectarCabecera();
}

frmDJ_editar::~frmDJ_editar() = default;

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
        marcarGuardado(ui->fraGeneral);
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
    marcarGuardado(ui->fraGeneral);
    return true;
}

bool frmDJ_editar::editando() const
{
    return ui->tlbDJ->habilitada(u"aceptar"_s);
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
