// SPDX-License-Identifier: GPL-3.0-or-later
// The operation's screen: choosing the item, and what shows for it.

#include "computation/screens/frmDJ_detalle_op.h"

#include "catalogue/cantidad.h"
#include "computation/obligacion.h"
#include "computation/roles_operacion.h"
#include "computation/subconcepto_operacion.h"
#include "core/modGlobales.h"
#include "ui_frmDJ_detalle_op.h"
#include "widgets/ctlComunes.h"
#include "widgets/mensajes.h"

using namespace Qt::StringLiterals;

// An item's identifier ends in the three digits of its code, whatever the law's number.
void frmDJ_detalle_op::SeleccionarSubconcepto(int id)
{
    ui->ctlCodS->setValue(id % 1000);
    seleccionarPorCodigo();
}

// The code of an item, and the way to find it in the catalogue.
void frmDJ_detalle_op::habilitarEleccion(bool si)
{
    ui->ctlCodS->Habilitar(si);
    ui->cmdBuscarSubcon->setEnabled(si);
}

// True when the item on the screen is another than the current one.
bool frmDJ_detalle_op::seleccionarPorCodigo()
{
    const bool cambia = subconcepto_ && subconcepto_->IdSubconcepto() != idSubconcepto();
    cargarSubconcepto();
    calcularImpuesto();
    return cambia;
}

int frmDJ_detalle_op::idSubconcepto() const
{
    return identificador_subconcepto(ley_.value_or(0), codigo());
}

void frmDJ_detalle_op::limpiarSubconcepto()
{
    subconcepto_.reset();
    ui->txtSubconcepto->clear();
    ui->ctlImporteMinimo->setValue(0);
    ui->ctlImporteMinimo->hide();
    ui->lblImporteMinimo->hide();
}

void frmDJ_detalle_op::cargarSubconcepto()
{
    if (ui->ctlCodS->modelo().vacio()) {
        limpiarSubconcepto();
        return;
    }
    if (ley_.value_or(0) == 0)
        return;
    DialogoPantalla dialogo(this);
    const ResultadoSubconcepto r = buscar_subconcepto(*ley_, codigo(), dialogo);
    if (r.subconcepto) {
        subconcepto_ = r.subconcepto;
        mostrarSubconcepto(r);
        mostrarPorSubconcepto();
    } else {
        limpiarSubconcepto();
        ui->ctlCodS->setFocus();
    }
}

void frmDJ_detalle_op::mostrarSubconcepto(const ResultadoSubconcepto& r)
{
    const clsSubconcepto& s = *r.subconcepto;
    ui->txtSubconcepto->setText(s.Descripcion);
    ui->lblImporteMinimo->setVisible(r.conMinimo);
    ui->ctlImporteMinimo->setVisible(r.conMinimo);
    if (r.conMinimo) {
        ui->ctlImporteMinimo->setValue(s.ModulosMinimo * ValorModulo);
        ui->lblImporteMinimo->setText(
            u"Importe mínimo de sellado:  %1 MÓDULOS -  $"_s.arg(cantidad_llana(s.ModulosMinimo)));
    }
    ui->lblValuacionFiscal->setText(s.NombreValuacionFiscal);
    ui->lblValorContractual->setText(r.nombreValorContractual);
    if (s.Exencion)
        ui->nroExencionPorc->setValue(s.ExencionPorc);
    llenar_combo(ui->cboObligAccesoria_modo, modos_obligacion(s.ObligAccesoria_suma));
    Entradas roles{{u"(ninguno)"_s, 0}};
    for (const clsRol& rol : s.Roles())
        roles.push_back({rol.Descripcion, rol.IdRol});
    llenar_combo(cboRoles_, roles);
}

void frmDJ_detalle_op::mostrarPorSubconcepto()
{
    const clsSubconcepto& s = *subconcepto_;
    const bool con_base = s.RequiereBaseImponible;
    ui->SSTab1->setTabEnabled(SOLAPA_BASE, con_base);
    const bool con_hipoteca = s.RequiereHipoteca && con_base;
    ui->nroHipoteca->Habilitar(con_hipoteca);
    ui->fraHip->setVisible(con_hipoteca);
    const bool con_valuacion = s.RequiereValuacionFiscal && con_base;
    ui->fraVF->setVisible(con_valuacion);
    ui->nroValuacionFiscal->Habilitar(con_valuacion);
    ui->cmdBienes->setEnabled(con_valuacion);
    mostrarValorContractual();
    ui->nroPagoACuenta->Habilitar(s.PermitePagoACuenta);
    if (!s.PermitePagoACuenta)
        ui->nroPagoACuenta->setValue(0);
    ui->fraObligAccesoria->setVisible(s.ObligAccesoria);
    const QString base = s.RequiereMoneda ? u"Base Imponible $"_s : u"Base Imponible"_s;
    ui->lblBaseImponible->setText(base);
    ui->lblBaseImponiblePesos->setText(base);
    if (!con_base)
        ui->SSTab1->setCurrentIndex(SOLAPA_IMPUESTO);
}

void frmDJ_detalle_op::mostrarValorContractual()
{
    const clsSubconcepto& s = *subconcepto_;
    const bool con_valor = s.RequiereValorContractual && s.RequiereBaseImponible;
    ui->nroValorContractual->Habilitar(con_valor);
    ui->cboMoneda->setEnabled(con_valor);
    ui->nroPorcIVA->Habilitar(con_valor);
    for (QWidget* w : QWidgetList{ui->ctlValorCambio, ui->lblValorCambio, ui->cboMoneda, ui->lblMoneda, ui->nroPorcIVA,
                                  ui->lblPorcIVA})
        w->setVisible(s.RequiereMoneda);
    const QString valor = ui->lblValorContractual->text();
    ui->lblBaseImponibleParcial->setText(s.RequiereMoneda ? u"Valor Contractual Parcial $"_s : valor);
    ui->lblTotalVC->setText(s.RequiereMoneda ? u"Valor Contractual Total  $"_s : valor);
}

void frmDJ_detalle_op::cambiarOperacion()
{
    const QList<ParteRol> partes = partesDeGrilla();
    const bool con_rol = std::any_of(partes.begin(), partes.end(), [](const ParteRol& p) { return p.tieneRol(); });
    if (partes.size() > 1 && con_rol
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
