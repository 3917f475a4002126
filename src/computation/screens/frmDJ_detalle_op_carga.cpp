// SPDX-License-Identifier: GPL-3.0-or-later
// The operation's screen: loading a saved operation, and the properties of the deed.

#include "computation/screens/frmDJ_detalle_op.h"

#include "computation/inmuebles_operacion.h"
#include "core/numero.h"
#include "ui_frmDJ_detalle_op.h"
#include "widgets/ctlComunes.h"

using namespace Qt::StringLiterals;

namespace {

void poner(ctlNumero* n, const std::optional<double>& valor)
{
    if (valor)
        n->setValue(*valor);
}

}  // namespace

void frmDJ_detalle_op::limpiarImportes()
{
    for (ctlNumero* n :
         {ui->nroTotalVC, ui->nroHipoteca, ui->nroObligAccesoria, ui->nroBaseImponible, ui->ctlBaseImponiblePesos,
          ui->nroMoA, ui->nroExencionPorc, ui->nroMontoExento, ui->ctlImpuestoCalculado, ui->nroPagoACuenta,
          ui->nroAdicionales, ui->nroImpuesto, ui->nroValuacionFiscal})
        n->setValue(0);
    ui->chkObligAccesoria->setChecked(false);
    ui->optObligAccesoria_porc->setChecked(true);
    ui->cboObligAccesoria_modo->setCurrentIndex(-1);
    limpiarPanel();
    pasos_.vaciar();
    pasosValores_.vaciar();
}

void frmDJ_detalle_op::cargarOperacion()
{
    limpiarImportes();
    const auto o = cargar_operacion(clave());
    if (!o)
        return;
    ley_ = o->subconcepto / 1000;
    codigoAnterior_ = o->subconcepto % 1000;
    ui->ctlCodS->setValue(codigoAnterior_);
    cargarSubconcepto();
    recargarValores();
    leerInmuebles();
    poner(ui->nroBaseImponible, o->baseImponible);
    poner(ui->ctlBaseImponiblePesos, o->baseImponible);
    poner(ui->nroHipoteca, o->hipoteca);
    poner(ui->ctlImpuestoCalculado, o->impuestoCalculado);
    poner(ui->nroImpuesto, o->montoFinal);
    poner(ui->nroValuacionFiscal, o->valuacionFiscal);
    if (o->alicuota || o->modulos) {
        poner(ui->nroMoA, o->alicuota ? o->alicuota : o->modulos);
        ui->lblMoA->setText(o->alicuota ? u"Alícuota"_s : u"Módulos"_s);
    }
    ui->nroExencionPorc->setValue(o->porcExento.value_or(0));
    ui->nroMontoExento->setValue(o->montoExento.value_or(0));
    if (!o->obligFop.isEmpty())
        mostrarObligacion(*o);
    poner(ui->nroAdicionales, o->adicionales);
    poner(ui->nroPagoACuenta, o->pagoACuenta);
    ui->txtObs->setText(o->observaciones);
}

void frmDJ_detalle_op::mostrarObligacion(const ::Operacion& o)
{
    ui->optObligAccesoria_fijo->setChecked(o.obligFop == u"F");
    ui->optObligAccesoria_porc->setChecked(o.obligFop == u"P");
    ui->chkObligAccesoria->setChecked(true);
    poner(ui->nroObligAccesoria, o.obligValor);
    // The column holds 1 or 0, so that the first mode of that kind shows, not the one chosen.
    seleccionar_item(ui->cboObligAccesoria_modo, o.obligModo.value_or(-1));
    ui->txtObligAccesoria_poliza->setText(o.obligPoliza);
}

void frmDJ_detalle_op::leerInmuebles()
{
    ui->flxInm->llenar([this] {
        leer_valuaciones(clave().deRenglon(), [this](const QStringList& fila) { ui->flxInm->agregar(fila); });
    });
    if (ui->flxInm->filas() == 1)
        ui->nroValuacionFiscal->setValue(numero_de_texto(ui->flxInm->celda(0, 2)));
}

void frmDJ_detalle_op::elegirInmueble(int fila)
{
    if (fila < 0)
        return;
    inmuebleVinculado_ = ui->flxInm->celda(fila, 0).toInt();
    ui->nroValuacionFiscal->setValue(numero_de_texto(ui->flxInm->celda(fila, 2)));
    ui->lblValuacionFiscal->setText(u"%1 - Val.Fiscal: $%2"_s.arg(
        subconcepto_ ? subconcepto_->NombreValuacionFiscal : QString(), ui->nroValuacionFiscal->toString()));
    calcularBaseEImpuesto();
}
