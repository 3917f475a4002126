// SPDX-License-Identifier: GPL-3.0-or-later
// The operation's screen: the parties of the deed and their roles.

#include "computation/screens/frmDJ_detalle_op.h"

#include "computation/operacion.h"
#include "widgets/ctlComunes.h"
#include "parties/screens/frmDJ_detalle_parte.h"
#include "ui_frmDJ_detalle_op.h"

#include <QKeyEvent>

namespace {

constexpr int COL_ID_ROL = 4;
constexpr int COL_ROL = 5;
constexpr int COL_OBS = 6;
constexpr int COL_EXENCION = 7;

}  // namespace

void frmDJ_detalle_op::tlbPartes_pulsada(const QString& clave)
{
    // "quitar" deliberately does nothing: a party can't be removed from here.
    const bool nueva = clave == u"agregar";
    if (!nueva && (clave != u"editar" || ui->flxPartes->filaActual() < 0))
        return;
    cerrarEditorDeCelda(true);
    auto* hijo = cargar<frmDJ_detalle_parte>();
    hijo->fijarRenglon(ui->txtDJ_nro->text(), ui->txtRenglonDJ->text());
    hijo->permitirCuitEnTramite(subconcepto_ && subconcepto_->PermitirCUIT_EnTramite);
    hijo->Inicializar(nueva ? Modo::nuevo : Modo::modificar, nueva ? 0 : ui->flxPartes->clave().toInt());
    abrir(hijo);
}

void frmDJ_detalle_op::recargarRoles()
{
    // What was chosen here and not yet saved stays, also when a party's screen comes back.
    const QList<ParteRol> antes = partesDeGrilla();
    ui->flxPartes->llenar([&] {
        for (ParteRol p : leer_partes_con_roles(clave())) {
            for (const ParteRol& a : antes)
                if (a.id == p.id && !a.idRol.isEmpty()) {
                    p.idRol = a.idRol;
                    p.rol = a.rol;
                    p.observaciones = a.observaciones;
                }
            ui->flxPartes->agregar({p.id, p.tipoDoc, p.nroDoc, p.denominacion, p.idRol, p.rol, p.observaciones,
                                    p.porcExento ? importe_llano(*p.porcExento) : QString()});
        }
    });
    colorearRoles();
}

QList<ParteRol> frmDJ_detalle_op::partesDeGrilla() const
{
    QList<ParteRol> partes;
    for (int i = 0; i < ui->flxPartes->filas(); ++i) {
        ParteRol p;
        p.id = ui->flxPartes->celda(i, 0);
        p.idRol = ui->flxPartes->celda(i, COL_ID_ROL);
        p.rol = ui->flxPartes->celda(i, COL_ROL);
        p.observaciones = ui->flxPartes->celda(i, COL_OBS);
        if (const QString porcentaje = ui->flxPartes->celda(i, COL_EXENCION); !porcentaje.isEmpty())
            p.porcExento = numero_de_texto(porcentaje);
        partes << p;
    }
    return partes;
}

void frmDJ_detalle_op::colorearRoles()
{
    const QPalette p = palette();
    for (int i = 0; i < ui->flxPartes->filas(); ++i) {
        const QString texto = ui->flxPartes->celda(i, COL_ROL);
        const clsRol* rol = subconcepto_ ? subconcepto_->Roles().FindItem(texto) : nullptr;
        ModeloGrilla::Colores colores;
        if (texto.isEmpty() || ui->flxPartes->celda(i, COL_ID_ROL) == u"0")
            colores = {QColor(Qt::darkGray), p.color(QPalette::ToolTipBase)};
        else if (rol && rol->ParicipaImpuesto)
            colores = {p.color(QPalette::Highlight), {}};
        ui->flxPartes->colorear(i, colores);
    }
    ui->flxPartes->viewport()->update();
}

// Roles that the new item does not have turn to the first entry, "(ninguno)".
void frmDJ_detalle_op::adaptarRoles()
{
    for (int i = 0; i < ui->flxPartes->filas(); ++i) {
        const clsRol* rol = subconcepto_ ? subconcepto_->Roles().FindItem(ui->flxPartes->celda(i, COL_ROL)) : nullptr;
        ui->flxPartes->ponerCelda(i, COL_ID_ROL, rol ? QString::number(rol->IdRol) : cboRoles_->itemData(0).toString());
        if (!rol)
            ui->flxPartes->ponerCelda(i, COL_ROL, cboRoles_->itemText(0));
    }
    colorearRoles();
}

void frmDJ_detalle_op::abrirEditorDeCelda(int fila, int columna, const QString& tecla)
{
    cerrarEditorDeCelda(true);
    if (fila < 0 || (columna != COL_ROL && columna != COL_OBS))
        return;
    ui->flxPartes->irAFila(fila, columna);
    const QString texto = ui->flxPartes->celda(fila, columna);
    QWidget* editor = columna == COL_ROL ? static_cast<QWidget*>(cboRoles_) : txtRolObs_;
    editor->setFont(ui->flxPartes->font());
    editor->setGeometry(ui->flxPartes->visualRect(ui->flxPartes->currentIndex()));
    if (columna == COL_ROL) {
        seleccionar_texto(cboRoles_, texto);
    } else if (!tecla.isEmpty()) {
        txtRolObs_->setText(tecla);
    } else {
        txtRolObs_->setText(texto);
        txtRolObs_->selectAll();
    }
    editor->show();
    editor->setFocus();
}

void frmDJ_detalle_op::cerrarEditorDeCelda(bool guardar)
{
    const int fila = ui->flxPartes->filaActual();
    if (cboRoles_->isVisible()) {
        const bool elegido = cboRoles_->currentIndex() >= 0;
        if (guardar && fila >= 0) {
            ui->flxPartes->ponerCelda(fila, COL_ID_ROL, elegido ? cboRoles_->currentData().toString() : QString());
            ui->flxPartes->ponerCelda(fila, COL_ROL, elegido ? cboRoles_->currentText() : QString());
            colorearRoles();
        }
        cboRoles_->hide();
        ui->flxPartes->setFocus();
    } else if (txtRolObs_->isVisible()) {
        if (guardar && fila >= 0)
            ui->flxPartes->ponerCelda(fila, COL_OBS, txtRolObs_->text());
        txtRolObs_->hide();
        ui->flxPartes->setFocus();
    }
}

bool frmDJ_detalle_op::teclaEnEditor(QObject* editor, QKeyEvent* evento)
{
    const int fila = ui->flxPartes->filaActual();
    const int columna = editor == cboRoles_ ? COL_ROL : COL_OBS;
    const bool en_texto = editor == txtRolObs_;
    switch (evento->key()) {
    case Qt::Key_Escape: cerrarEditorDeCelda(false); return true;
    case Qt::Key_Return:
    case Qt::Key_Enter: cerrarEditorDeCelda(true); return true;
    case Qt::Key_Left:
        if (en_texto && txtRolObs_->cursorPosition() > 0)
            return false;
        cerrarEditorDeCelda(true);
        ui->flxPartes->irAFila(fila, columna - 1);
        abrirEditorDeCelda(fila, columna - 1, {});
        return true;
    case Qt::Key_Right:
        if (en_texto && txtRolObs_->cursorPosition() < txtRolObs_->text().size())
            return false;
        cerrarEditorDeCelda(true);
        ui->flxPartes->irAFila(fila, columna + 1);
        abrirEditorDeCelda(fila, columna + 1, {});
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down: {
        if (!en_texto)
            return false;
        const int destino = fila + (evento->key() == Qt::Key_Up ? -1 : 1);
        if (destino >= 0 && destino < ui->flxPartes->filas())
            abrirEditorDeCelda(destino, columna, {});
        return true;
    }
    default: return false;
    }
}

bool frmDJ_detalle_op::teclaEnGrillaRoles(QKeyEvent* evento)
{
    const int columna = ui->flxPartes->currentIndex().column();
    if (columna != COL_ROL && columna != COL_OBS)
        return false;
    const int fila = ui->flxPartes->filaActual();
    if (evento->key() == Qt::Key_Up || evento->key() == Qt::Key_Down) {
        const int destino = fila + (evento->key() == Qt::Key_Up ? -1 : 1);
        if (destino < 0 || destino >= ui->flxPartes->filas())
            return false;
        abrirEditorDeCelda(destino, columna, {});
        return true;
    }
    const QString texto = evento->text();
    const bool orden = evento->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    if (orden || texto.isEmpty()
        || (texto.front() < u' ' && evento->key() != Qt::Key_Return && evento->key() != Qt::Key_Enter))
        return false;
    abrirEditorDeCelda(fila, columna, texto.front() > u' ' ? texto : QString());
    return true;
}

bool frmDJ_detalle_op::eventFilter(QObject* objeto, QEvent* evento)
{
    if (evento->type() == QEvent::KeyPress) {
        auto* k = static_cast<QKeyEvent*>(evento);
        if (objeto == ui->flxPartes ? teclaEnGrillaRoles(k) : teclaEnEditor(objeto, k))
            return true;
    }
    return Formulario::eventFilter(objeto, evento);
}
