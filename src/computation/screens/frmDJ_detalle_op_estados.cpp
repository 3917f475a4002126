// SPDX-License-Identifier: GPL-3.0-or-later
// The operation's screen: its states, its bar, and how it is left.

#include "computation/screens/frmDJ_detalle_op.h"

#include "ui_frmDJ_detalle_op.h"

#include <QKeyEvent>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int ALTURA_COMPLETA = 6465;  // twips

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

}  // namespace

void frmDJ_detalle_op::ponerEstado(Estado estado)
{
    const FilaEstado& fila = ESTADOS[size_t(estado)];
    for (size_t i = 0; i < BOTONES.size(); ++i)
        ui->tlb->habilitar(QLatin1String(BOTONES[i]), fila.botones[i]);
    for (QWidget* marco : QWidgetList{ui->fraBI, ui->fraImp, ui->fraPartes})
        marco->setEnabled(fila.marcos);
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
        editar();
    else if (clave == u"guardar_det")
        guardarDetalle();
    else
        cancelar();
}

void frmDJ_detalle_op::editar()
{
    ponerEstado(Estado::editando);
    enfocarEdicion();
}

// The contract values come first on their tab; leaving their grid calculates nothing.
void frmDJ_detalle_op::enfocarEdicion()
{
    if (ui->flxVC->isVisible() && subconcepto_ && subconcepto_->RequiereValorContractual)
        ui->flxVC->setFocus();
    else
        enfocarPrimero();
}

// Escape gives up the contract value that is being entered.
void frmDJ_detalle_op::keyPressEvent(QKeyEvent* evento)
{
    if (evento->key() == Qt::Key_Escape && ui->fraEditarVC->isVisible())
        ui->tlbBI->pulsar(u"cancelar"_s);
    else
        Formulario::keyPressEvent(evento);
}

void frmDJ_detalle_op::cancelar()
{
    editorRoles_->cerrar_celda(false);
    // What can't be read would stop the calculation of what was before.
    for (ctlNumero* n : findChildren<ctlNumero*>())
        if (!n->modelo().legible())
            n->ClearText();
    if (!guardado_ && Operacion == Modo::nuevo) {
        ui->ctlCodS->ClearText();
        cargarSubconcepto();
        limpiarImportes();
        leerInmuebles();
        ponerEstado(Estado::nueva);
        ui->tlb->habilitar(u"salir"_s, true);
        ui->ctlCodS->setFocus();
        return;
    }
    limpiarPanel();
    cerrarPanel();
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
