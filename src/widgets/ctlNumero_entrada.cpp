// SPDX-License-Identifier: GPL-3.0-or-later
// What a person does in the number field: keys, clicks, paste, entering and leaving it.

#include "widgets/ctlNumero.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QToolTip>

#include <memory>

using namespace Qt::StringLiterals;

bool ctlNumero::eventFilter(QObject* objeto, QEvent* evento)
{
    switch (evento->type()) {
    case QEvent::KeyPress: {
        const auto* k = static_cast<QKeyEvent*>(evento);
        if (k->matches(QKeySequence::Paste)
            || k->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
            return teclaConOrden(k);
        const bool escribe = !k->text().isEmpty() && k->key() != Qt::Key_Tab && k->key() != Qt::Key_Backtab
                             && k->key() != Qt::Key_Delete;
        return escribe && !txt_->isReadOnly() && tecla(k->text());
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease: return raton(static_cast<QMouseEvent*>(evento));
    case QEvent::ContextMenu: return menuContextual(static_cast<QContextMenuEvent*>(evento));
    case QEvent::Drop: return soltar(static_cast<QDropEvent*>(evento));
    case QEvent::FocusIn: entrar(static_cast<QFocusEvent*>(evento)->reason()); return false;
    case QEvent::FocusOut: return salir(static_cast<QFocusEvent*>(evento)->reason());
    default: return QWidget::eventFilter(objeto, evento);
    }
}

void ctlNumero::entrar(Qt::FocusReason motivo)
{
    // Coming back from a box or another program is no new entry into the field.
    if (editando_)
        return;
    editando_ = true;
    clicDeEntrada_ = motivo == Qt::MouseFocusReason;
    modelo_.entrar();
    txt_->selectAll();
}

bool ctlNumero::salir(Qt::FocusReason motivo)
{
    if (motivo == Qt::ActiveWindowFocusReason || motivo == Qt::PopupFocusReason)
        return false;
    editando_ = false;
    modelo_.formatear();
    emit salida();
    return false;
}

// The click that brings the focus selects the whole text, until its button is released; the next one places the
// caret. The middle button pastes the selection of the desktop.
bool ctlNumero::raton(const QMouseEvent* evento)
{
    if (evento->type() == QEvent::MouseButtonRelease && evento->button() == Qt::MiddleButton && !txt_->isReadOnly()
        && QApplication::clipboard()->supportsSelection()) {
        txt_->setCursorPosition(txt_->cursorPositionAt(evento->position().toPoint()));
        pegar(QApplication::clipboard()->text(QClipboard::Selection));
        return true;
    }
    const bool entrada = clicDeEntrada_;
    if (evento->type() == QEvent::MouseButtonRelease)
        clicDeEntrada_ = false;
    return entrada && (evento->button() == Qt::LeftButton || evento->type() == QEvent::MouseMove);
}

void ctlNumero::pegar(const QString& texto)
{
    if (!txt_->isReadOnly())
        txt_->insert(modelo_.de_pegado(texto));
}

bool ctlNumero::soltar(QDropEvent* evento)
{
    if (!evento->mimeData()->hasText() || txt_->isReadOnly())
        return true;
    txt_->setFocus(Qt::OtherFocusReason);
    pegar(evento->mimeData()->text());
    evento->acceptProposedAction();
    return true;
}

// The menu of any text box, whose "paste" passes through the same filter.
bool ctlNumero::menuContextual(const QContextMenuEvent* evento)
{
    const std::unique_ptr<QMenu> menu(txt_->createStandardContextMenu());
    const auto acciones = menu->actions();
    for (QAction* a : acciones)
        if (a->objectName() == u"edit-paste") {
            a->disconnect(SIGNAL(triggered(bool)));
            connect(a, &QAction::triggered, this, [this] { pegar(QApplication::clipboard()->text()); });
        }
    menu->exec(evento->globalPos());
    return true;
}

// A key with Alt or Meta never writes: it is an access key, or nobody's. Paste has a filter of its own.
bool ctlNumero::teclaConOrden(const QKeyEvent* evento)
{
    if (evento->matches(QKeySequence::Paste)) {
        pegar(QApplication::clipboard()->text());
        return true;
    }
    return (evento->modifiers() & (Qt::AltModifier | Qt::MetaModifier)) && !evento->text().isEmpty()
           && evento->text().front().isPrint();
}

// Filters one character key; true when the text box is not to see it.
bool ctlNumero::tecla(const QString& texto)
{
    const int original = texto.front().unicode();
    const Numero::Tecla resultado = modelo_.filtrar(original);
    if (resultado.cursorAlFinal)
        txt_->end(false);
    int keyAscii = resultado.keyAscii;
    emit KeyPress(keyAscii);
    if (original == u',' && keyAscii == 0)
        avisarComa();
    if (keyAscii == 0)
        return true;
    if (keyAscii == original)
        return false;
    txt_->insert(QChar(keyAscii));
    return true;
}

// Where the locale writes decimals with a comma, who types one must see at once that it is not taken.
void ctlNumero::avisarComa()
{
    if (CantidadDecimales() < 1 || clsLocaleInfo().sDecimal() != u",")
        return;
    QApplication::beep();
    QToolTip::showText(txt_->mapToGlobal(QPoint(0, txt_->height())), u"Los decimales se escriben con el punto"_s, txt_);
}
