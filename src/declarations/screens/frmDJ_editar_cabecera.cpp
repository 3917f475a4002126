// SPDX-License-Identifier: GPL-3.0-or-later
// The tab of the header: agent, posición and due date, reading, showing and storing them.

#include "core/modGlobales.h"
#include "core/reloj.h"
#include "declarations/cabecera_dj.h"
#include "declarations/screens/frmDJ_editar.h"
#include "tree/modABM_dj.h"
#include "tree/totales.h"
#include "ui_frmDJ_editar.h"
#include "widgets/ctlComunes.h"
#include "widgets/enlaces.h"
#include "widgets/mensajes.h"

using namespace Qt::StringLiterals;

namespace {

// What the screen shows of the agent beside its number and its name.
constexpr Enlace<DatosAgenteDJ> DEL_AGENTE[] = {
    {"txtCUIT", &DatosAgenteDJ::cuit},
    {"txtDomicilio", &DatosAgenteDJ::domicilio},
    {"txtCodPostal", &DatosAgenteDJ::codPostal},
    {"txtTelefono", &DatosAgenteDJ::telefono},
    {"txtLocalidad", &DatosAgenteDJ::localidadNombre},
    {"txtEmail", &DatosAgenteDJ::email},
    {"txtAdscripto1_nombre", &DatosAgenteDJ::adscripto1},
    {"txtAdscripto1_cuit", &DatosAgenteDJ::adscripto1Cuit},
    {"txtAdscripto2_nombre", &DatosAgenteDJ::adscripto2},
    {"txtAdscripto2_cuit", &DatosAgenteDJ::adscripto2Cuit},
};

}  // namespace

void frmDJ_editar::conectarCabecera()
{
    for (QLineEdit* texto : {ui->txtAnio, ui->txtRTN_nro})
        solo_digitos_en(texto);
    atender(ui->cboRTN, &QComboBox::activated, [this](int indice) {
        const int nro = ui->cboRTN->itemData(indice).toInt();
        ui->txtRTN_nro->setText(QString::number(nro));
        cargar_agente_dj(nro);
        componer_nro_dj();
    });
    atender(ui->txtRTN_nro, &QLineEdit::editingFinished, &frmDJ_editar::salirDeAgente);
    atender(ui->txtAnio, &QLineEdit::editingFinished, [this] {
        if (!ui->txtAnio->isModified())
            return;
        ui->txtAnio->setModified(false);
        componer_nro_dj();
    });
    for (QComboBox* combo : {ui->cboMes, ui->cboRectificativa})
        atender(combo, &QComboBox::activated, &frmDJ_editar::componer_nro_dj);
    atender(ui->cboDJ_Estado, &QComboBox::activated, &frmDJ_editar::marcar_sin_movimientos);
    connect(ui->chkCambiarFechaVenc, &QCheckBox::toggled, ui->dtpBOL_venc, &QWidget::setEnabled);
    atender(ui->nroAcred_monto, &ctlNumero::cambiado, [this] {
        if (ui->nroAcred_monto->modelo().legible())
            ui->nroTotal_depositar->setValue(ui->nroTotal_retenido->Value() - ui->nroAcred_monto->Value());
    });
}

int frmDJ_editar::estado() const
{
    return elegido(ui->cboDJ_Estado).value_or(DJ_NORMAL);
}

bool frmDJ_editar::componer_nro_dj()
{
    const auto mes = elegido(ui->cboMes);
    ui->txtNroDJ->clear();
    if (!posicion_admitida(ui->txtAnio->text().toInt(), mes)) {
        avisar(u"La posicion a declarar con este aplicativo debe ser posterior a 2006/06"_s, {});
        return false;
    }
    ui->txtNroDJ->setText(
        componer_numero(ui->txtCUIT->text(), ui->txtAnio->text(), mes, elegido(ui->cboRectificativa)));
    calcular_vencimiento();
    return true;
}

void frmDJ_editar::calcular_vencimiento()
{
    if (ui->chkCambiarFechaVenc->isChecked())
        return;
    const QDate dia = hoy();
    const auto mes = elegido(ui->cboMes);
    const QDate fecha = mes && !ui->txtAnio->text().isEmpty() ? vencimiento_dj(ui->txtAnio->text().toInt(), *mes)
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
        cargar_agente_dj(nro);
    else
        mostrarAgente({});
    componer_nro_dj();
}

void frmDJ_editar::mostrarAgente(const DatosAgenteDJ& agente)
{
    mostrar_textos(this, DEL_AGENTE, agente);
    localidad_ = agente.localidad;
}

void frmDJ_editar::cargar_agente_dj(int nro)
{
    mostrarAgente({});
    const auto agente = datos_agente_dj(nro);
    if (!agente)
        return;
    ui->txtRTN_nro->setText(QString::number(agente->nro));
    mostrarAgente(*agente);
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
    mostrarAgente(agente_de(*dj, localidad));
    ui->dtpBOL_emision->setDate(hoy());
    ui->dtpBOL_venc->clearMinimumDate();
    ui->dtpBOL_venc->setDate(dj->vencimiento.isValid() ? dj->vencimiento : vencimiento_dj(dj->anio, dj->mes));
    ui->nroAcred_resolucion->setValue(dj->acredResolucion.left(4).toDouble());
    ui->nroAcred_resolucion_anio->setValue(dj->acredResolucion.mid(5).toDouble());
    ui->nroTotal_retenido->setValue(dj->totalRetenido);
    ui->nroAcred_monto->setValue(dj->acredMonto);
    ui->nroTotal_depositar->setValue(dj->totalRetenido - dj->acredMonto);
    return true;
}

// No question is asked: the deeds go when the DJ is accepted.
void frmDJ_editar::marcar_sin_movimientos()
{
    if (ui->txtNroDJ->text().isEmpty() || estado() != DJ_SIN_MOVIMIENTOS
        || cantidad_renglones(ui->txtNroDJ->text()) == 0)
        return;
    avisar(u"Atención: Hay escrituras cargadas. \n"
           u"La acción de marcarla SIN MOVIMIENTOS borrará todas las escrituras cargadas en esta DJ."_s,
           u"DJ - Marcar SIN MOVIMIENTOS"_s);
}

ControlesCabecera frmDJ_editar::leer_controles() const
{
    return {ui->txtRTN_nro->text(), elegido(ui->cboRTN),           ui->txtAnio->text(),
            elegido(ui->cboMes),    elegido(ui->cboRectificativa), ui->txtObs->text()};
}

CabeceraDJ frmDJ_editar::leer_cabecera(const ControlesCabecera& c) const
{
    DatosAgenteDJ agente;
    leer_textos(this, DEL_AGENTE, agente);
    agente.nro = c.agenteNro.toInt();
    agente.titular = ui->cboRTN->currentText();
    agente.localidad = localidad_;

    CabeceraDJ dj;
    copiar_agente(dj, agente);
    dj.nro = ui->txtNroDJ->text();
    dj.anio = c.anio.toInt();
    dj.mes = *c.mes;
    dj.secuencia = *c.secuencia;
    dj.estado = estado();
    dj.observaciones = c.observaciones;
    dj.totalRetenido = ui->nroTotal_retenido->Value();
    dj.vencimiento = ui->dtpBOL_venc->date();
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
    const CabeceraDJ dj = leer_cabecera(c);
    const bool nueva = Operacion == Modo::nuevo;
    DialogoPantalla dialogo(this);
    Transaccion t(cnRtn);
    if (!nueva)
        actualizar_cabecera(dj);
    else if (!alta_cabecera_dj(dj, dialogo))
        return;
    if (dj.estado == DJ_SIN_MOVIMIENTOS)
        borrar_escrituras(dj.nro);
    t.confirmar();
    if (nueva) {
        Operacion = Modo::modificar;
        nroInicial_ = dj.nro;
        cerrarPosicion();
    }
    cargar_detalle();
    ui->lblAviso->setVisible(dj.estado == DJ_NORMAL);
    estado_botones(false, true, false, true, true);
    marcarGuardado(ui->fraGeneral);
}
