// SPDX-License-Identifier: GPL-3.0-or-later
// The tab of the deeds, and the totals that they make.

#include "core/modGlobales.h"
#include "core/numero.h"
#include "declarations/cabecera_dj.h"
#include "declarations/renglones.h"
#include "declarations/screens/frmDJ_editar.h"
#include "deeds/screens/frmDJ_detalle.h"
#include "ui_frmDJ_editar.h"
#include "widgets/ctlComunes.h"
#include "widgets/mensajes.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int COL_IMPUESTO = 6;

}  // namespace

void frmDJ_editar::conectarRenglones()
{
    atender(ui->tlbDetalle, &BarraHerramientas::pulsada, &frmDJ_editar::tlbDetalle_pulsada);
    ui->flxOp->setBarra(ui->tlbDetalle);
    atender(ui->flxOp, &Grilla::elegida, [this] { ui->tlbDetalle->pulsar(u"editar"_s); });
}

void frmDJ_editar::mostrarTotal(double total)
{
    ui->nroTotalRetenido->setValue(total);
    ui->nroTotal_retenido->setValue(total);
}

void frmDJ_editar::actualizar_totales()
{
    const double total = total_retenido(ui->txtNroDJ->text());
    mostrarTotal(total);
    const double depositar = total - ui->nroAcred_monto->Value();
    ui->nroTotal_depositar->setValue(depositar);
    ui->nroImpuesto->setValue(std::max(depositar, 0.0));
    ui->nroInteres->setValue(0);
    sumarDeposito();
}

void frmDJ_editar::cargar_detalle()
{
    int incompletos = 0;
    int fila = 0;
    ui->flxOp->llenar([&] {
        leer_renglones(ui->txtNroDJ->text(), [&](const FilaRenglon& r) {
            ui->flxOp->agregar(std::span<const std::string_view>(r.celdas));
            if (r.incompleto) {
                ui->flxOp->colorear(fila, Tono::alerta);
                ++incompletos;
            }
            ++fila;
        });
    });
    const bool normal = estado() == DJ_NORMAL;
    ui->lblAviso->setVisible(normal && (incompletos > 0 || fila == 0));
    ui->lblCantIncompletos->setText(u"Renglones incompletos: %1"_s.arg(incompletos));
    ui->lblCantIncompletos->setVisible(normal && incompletos > 0);
    mostrarDiferencia();
    habilitar_tlbDetalle();
}

// Worked out again when something was written since, and not each time that the list is read.
void frmDJ_editar::mostrarDiferencia()
{
    const auto visto = std::pair(ui->txtNroDJ->text(), cnRtn.cambios());
    if (visto == diferenciaDe_)
        return;
    const QString diferencia = diferencia_de_totales(visto.first);
    ui->lblDiferencia->setText(diferencia);
    ui->lblDiferencia->setVisible(!diferencia.isEmpty());
    diferenciaDe_ = visto;
}

void frmDJ_editar::habilitar_tlbDetalle()
{
    for (const char* clave : {"editar", "borrar"})
        ui->tlbDetalle->habilitar(QLatin1String(clave), ui->flxOp->filas() > 0);
}

void frmDJ_editar::abrirRenglon(Modo operacion)
{
    auto* hijo = cargar<frmDJ_detalle>();
    hijo->Llamador = this;
    connect(hijo, &frmDJ_detalle::totalDJ, this, &frmDJ_editar::mostrarTotal, Qt::UniqueConnection);
    connect(hijo, &frmDJ_detalle::reporteCerrado, this, &frmDJ_editar::devolverBoletas, Qt::UniqueConnection);
    const DatosDJ dj{ui->txtNroDJ->text(), ui->txtAnio->text(), elegido(ui->cboMes).value_or(0),
                     ui->cboRTN->currentText()};
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
