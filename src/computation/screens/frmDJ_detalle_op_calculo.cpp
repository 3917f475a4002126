// SPDX-License-Identifier: GPL-3.0-or-later
// The operation's screen: the calculation, and what it reads of the screen.

#include "computation/screens/frmDJ_detalle_op.h"

#include "computation/obligacion.h"
#include "computation/roles_operacion.h"
#include "ui_frmDJ_detalle_op.h"
#include "widgets/ctlComunes.h"
#include "widgets/mensajes.h"

#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

CamposImpuesto frmDJ_detalle_op::campos()
{
    return {ui->nroTotalVC->modelo(),
            ui->nroValuacionFiscal->modelo(),
            ui->nroHipoteca->modelo(),
            ui->nroObligAccesoria->modelo(),
            ui->nroBaseImponible->modelo(),
            ui->ctlBaseImponiblePesos->modelo(),
            ui->nroAux->modelo(),
            ui->nroMoA->modelo(),
            ui->nroExencionPorc->modelo(),
            ui->nroMontoExento->modelo(),
            ui->ctlImpuestoCalculado->modelo(),
            ui->ctlImporteMinimo->modelo(),
            ui->nroPagoACuenta->modelo(),
            ui->nroAdicionales->modelo(),
            ui->nroImpuesto->modelo(),
            ui->ctlValorCambio->modelo()};
}

EstadoOperacion frmDJ_detalle_op::estadoOperacion() const
{
    EstadoOperacion e;
    e.subconcepto = subconcepto();
    for (const ParteRol& p : partesDeGrilla())
        e.partes << EstadoOperacion::Parte{p.rol, p.porcExento, p.denominacion};
    e.idMoneda = idMoneda();
    e.obligAccesoria = ui->chkObligAccesoria->isChecked();
    e.obligAccesoriaDato = elegido(ui->cboObligAccesoria_modo);
    e.obligAccesoriaFijo = ui->optObligAccesoria_fijo->isChecked();
    e.obligAccesoriaPorc = ui->optObligAccesoria_porc->isChecked();
    e.ley = ley_.value_or(0);
    e.titulo = windowTitle();
    e.lblMoA = ui->lblMoA->text();
    return e;
}

void frmDJ_detalle_op::calcularImpuesto()
{
    DialogoPantalla dialogo(this);
    EstadoOperacion e = estadoOperacion();
    e.pasos = &pasos_;
    CalcularImpuesto(campos(), e, dialogo);
    ui->lblMoA->setText(e.lblMoA);
    if (!e.enfocarMoA)
        return;
    // Its tab comes to the front, which is no reason to calculate again.
    const QScopedValueRollback cargando(cargando_, true);
    enfocar(u"nroMoA"_s);
}

void frmDJ_detalle_op::calcularBaseEImpuesto()
{
    DialogoPantalla dialogo(this);
    CalcularBaseImponible(campos(), estadoOperacion(), dialogo);
    calcularImpuesto();
}

void frmDJ_detalle_op::habilitarObligacion()
{
    const bool si = ui->chkObligAccesoria->isChecked();
    for (QWidget* w : QWidgetList{ui->cboObligAccesoria_modo, ui->optObligAccesoria_porc, ui->optObligAccesoria_fijo})
        w->setEnabled(si);
    ui->nroObligAccesoria->Habilitar(si);
    const bool poliza = si && ui->cboObligAccesoria_modo->currentText() == SEGURO_DE_CAUCION;
    ui->txtObligAccesoria_poliza->setVisible(poliza);
    ui->lblObligAccesoria_poliza->setVisible(poliza);
}
