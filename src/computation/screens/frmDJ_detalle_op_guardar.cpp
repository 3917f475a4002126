// SPDX-License-Identifier: GPL-3.0-or-later
// The operation's screen: saving.

#include "computation/screens/frmDJ_detalle_op.h"

#include "computation/inmuebles_operacion.h"
#include "computation/roles_operacion.h"
#include "core/modGlobales.h"
#include "tree/modABM_dj.h"
#include "ui_frmDJ_detalle_op.h"
#include "widgets/ctlComunes.h"
#include "widgets/mensajes.h"

using namespace Qt::StringLiterals;

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
        } else {
            agregarOperacion();
        }
        return;
    }
    adaptarRoles();
    recargarValores();
    calcularImpuesto();
    habilitarEleccion(false);
    editar();
}

// The row, with its keys and its item alone; the rest comes on top of it.
void frmDJ_detalle_op::agregarOperacion()
{
    ::Operacion fila;
    fila.dj = ui->txtDJ_nro->text();
    fila.renglon = ui->txtRenglonDJ->text().toInt();
    fila.subconcepto = idSubconcepto();
    DialogoPantalla dialogo(this);
    if (!alta_operacion(fila, true, dialogo))
        return;
    ui->txtNroOP->setText(QString::number(fila.id));
    codigoAnterior_ = codigo();
    alturaCompleta();
    recargarRoles();
    ponerEstado(Estado::reciengrabada);
    habilitarEleccion(false);
    ui->txtSubconcepto->setReadOnly(true);
    enfocarEdicion();
    guardado_ = true;
}

bool frmDJ_detalle_op::validarDetalle()
{
    std::optional<Falla> falla;
    if (subconcepto_ && subconcepto_->RequiereBaseImponible)
        falla = primera_falla({
            {subconcepto_->RequiereValorContractual && ui->flxVC->filas() == 0,
             "Ingrese (o guarde) el valor contractual de la operación", "nroValorContractual"},
            {subconcepto_->RequiereValuacionFiscal && ui->nroValuacionFiscal->Value() == 0,
             "Ingrese la valuación fiscal", "nroValuacionFiscal"},
            {subconcepto_->RequiereHipoteca && ui->nroHipoteca->Value() == 0, "Ingrese el monto de la hipoteca",
             "nroHipoteca"},
        });
    if (falla) {
        avisar(falla->mensaje, windowTitle());
        ui->SSTab1->setCurrentIndex(SOLAPA_BASE);
        enfocar(falla->control);
        return false;
    }
    QString obligatorios;
    if (roles_obligatorios(subconcepto(), partesDeGrilla(), obligatorios))
        return true;
    avisar(obligatorios + u"\nPor favor, ingrese los roles de las partes."_s, windowTitle() + u" - Atención!"_s,
           Icono::exclamacion);
    ui->SSTab1->setCurrentIndex(SOLAPA_ROLES);
    return false;
}

// The row, the link of the property, the roles: what was written before a step failed stays.
bool frmDJ_detalle_op::guardarDatos()
{
    DatosOperacion d;
    d.ley = ley_.value_or(0);
    d.codigo = codigo();
    d.subconcepto = &*subconcepto_;
    d.obligAccesoria = ui->chkObligAccesoria->isChecked();
    d.obligFijo = ui->optObligAccesoria_fijo->isChecked();
    d.obligModo = elegido(ui->cboObligAccesoria_modo);
    d.obligModoTexto = ui->cboObligAccesoria_modo->currentText();
    d.obligPoliza = ui->txtObligAccesoria_poliza->text();
    d.observaciones = ui->txtObs->text();
    try {
        actualizar_operacion(clave(), campos(), d);
    } catch (const ErrorAlmacen& e) {
        avisar(e.descripcion, windowTitle(), Icono::informacion, e.motor);
        return false;
    }
    try {
        vincular_inmueble(clave(), inmuebleVinculado_);
    } catch (const ErrorAlmacen& e) {
        avisar(u"Error al guardar el vinculo entre la operación y el inmueble\n"_s + e.descripcion, windowTitle(),
               Icono::informacion, e.motor);
        return false;
    }
    DialogoPantalla dialogo(this);
    return guardar_roles(clave(), partesDeGrilla(), windowTitle(), dialogo);
}

void frmDJ_detalle_op::guardarDetalle()
{
    editorRoles_->cerrar_celda(true);
    if (!validarDetalle())
        return;
    DialogoPantalla dialogo(this);
    Tanda tanda(cnRtn);
    const auto totales = guardarDatos() ? guardar_totales(clave(), dialogo) : std::nullopt;
    tanda.terminar();
    if (!totales)
        return;
    emit totalesGuardados(totales->renglon, totales->dj);
    codigoAnterior_ = codigo();
    ponerEstado(Estado::consulta);
}
