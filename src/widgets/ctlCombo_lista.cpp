// SPDX-License-Identifier: GPL-3.0-or-later
// How the combo's list opens and closes, where it lies, and the keys.

#include "widgets/ctlCombo.h"

#include "widgets/grilla.h"

#include <QFocusEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QTreeWidget>

namespace {

constexpr int ANCHO_BOTON = 270;  // twips
constexpr int BORDE = 15;         // twips
constexpr int FILAS_VISIBLES = 8;

}  // namespace

int ctlCombo::alturaCerrada() const
{
    return txt_->sizeHint().height();
}

QSize ctlCombo::sizeHint() const
{
    return {txt_->sizeHint().width() + pixeles(this, ANCHO_BOTON), alturaCerrada() + pixeles(this, BORDE)};
}

QSize ctlCombo::minimumSizeHint() const
{
    return {txt_->minimumSizeHint().width(), sizeHint().height()};
}

void ctlCombo::abrir()
{
    const int filas = std::clamp(lvw_->topLevelItemCount(), 3, FILAS_VISIBLES);
    const int alto = lvw_->header()->sizeHint().height()
                     + filas * std::max(lvw_->sizeHintForRow(0), fontMetrics().height() + 4) + 2 * lvw_->frameWidth();
    lvw_->resize(lvw_->width(), alto);
    lvw_->show();
    ajustarAltura();
}

void ctlCombo::Cerrarse()
{
    // With the focus in it the list loses it, and that is told; so is a click that was not told yet.
    if (lvw_->hasFocus() || pendiente_)
        perderFoco();
    lvw_->hide();
    ajustarAltura();
}

// Open, the control is as high as its list reaches, and lies over its neighbours.
void ctlCombo::ajustarAltura()
{
    if (abierta()) {
        raise();
        resize(width(), lvw_->y() + lvw_->height());
    } else {
        resize(width(), alturaCerrada() + pixeles(this, BORDE));
    }
}

void ctlCombo::acomodar()
{
    const int alto = alturaCerrada();
    const int borde = pixeles(this, BORDE);
    const int boton = pixeles(this, ANCHO_BOTON);
    txt_->setGeometry(0, 0, width(), alto);
    cmd_->setGeometry(width() - boton, borde, boton - borde, alto - 2 * borde);
    cmd_->raise();
    txt_->setTextMargins(0, 0, boton, 0);
    lvw_->setGeometry(0, alto, width() + borde, lvw_->height());
}

void ctlCombo::resizeEvent(QResizeEvent* evento)
{
    QWidget::resizeEvent(evento);
    if (width() > 0)
        acomodar();
    // A layout that runs while the list is open gives the control its closed height back.
    const int alto = abierta() ? lvw_->y() + lvw_->height() : alturaCerrada();
    if (height() < alto)
        resize(width(), alto);
}

// The list lost the focus: it closes, and tells the form when something has ever been selected,
// also when nothing new was: deliberate, the form looks at what it gets.
void ctlCombo::perderFoco()
{
    if (!abierta())
        return;
    pendiente_ = false;
    lvw_->hide();
    resize(width(), alturaCerrada());
    txt_->setFocus();
    if (permiteElegir_ && elegido_ && lvw_->currentItem())
        emit ItemClick(fila_de(lvw_->currentItem()));
}

bool ctlCombo::teclaEnLista(int tecla)
{
    if (tecla != Qt::Key_Return && tecla != Qt::Key_Enter)
        return false;
    elegir();
    txt_->setFocus();
    return true;
}

bool ctlCombo::eventFilter(QObject* objeto, QEvent* evento)
{
    if (evento->type() == QEvent::FocusOut) {
        const auto motivo = static_cast<QFocusEvent*>(evento)->reason();
        if (motivo == Qt::ActiveWindowFocusReason || motivo == Qt::PopupFocusReason)
            return false;
        if (objeto == lvw_)
            perderFoco();
        else if (!lvw_->hasFocus())
            Cerrarse();
    } else if (evento->type() == QEvent::KeyRelease && static_cast<QKeyEvent*>(evento)->key() == Qt::Key_Escape) {
        escapar();
        return true;
    } else if (evento->type() == QEvent::KeyPress && objeto == lvw_) {
        return teclaEnLista(static_cast<QKeyEvent*>(evento)->key());
    }
    return false;
}

// Down and F4 open the list and go into it, as in any drop-down box.
void ctlCombo::keyPressEvent(QKeyEvent* evento)
{
    if ((evento->key() != Qt::Key_Down && evento->key() != Qt::Key_F4) || !cmd_->isEnabled() || !txt_->hasFocus()) {
        QWidget::keyPressEvent(evento);
        return;
    }
    if (!abierta())
        abrir();
    if (!lvw_->currentItem())
        lvw_->setCurrentItem(lvw_->topLevelItem(0));
    lvw_->setFocus();
}

// What was only moved to in the list is not chosen.
void ctlCombo::escapar()
{
    if (ultima_)
        lvw_->setCurrentItem(ultima_);
    Cerrarse();
}

void ctlCombo::changeEvent(QEvent* evento)
{
    QWidget::changeEvent(evento);
    if (evento->type() == QEvent::PaletteChange)
        pintarFondo();
}
