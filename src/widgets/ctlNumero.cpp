// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/ctlNumero.h"

#include <QFocusEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {
constexpr int SIN_LIMITE = 32767;
}

ctlNumero::ctlNumero(QWidget* padre) : QWidget(padre), txt_(new QLineEdit(this))
{
    txt_->setObjectName(u"txt"_s);
    txt_->setAlignment(Qt::AlignRight);
    auto* caja = new QHBoxLayout(this);
    caja->setContentsMargins(0, 0, 0, 0);
    caja->addWidget(txt_);
    setFocusProxy(txt_);
    txt_->installEventFilter(this);

    connect(txt_, &QLineEdit::textChanged, this, [this](const QString& texto) {
        modelo_.escribirTexto(texto);
        emit cambiado();
    });
    modelo_.alCambiar = [this] { txt_->setText(modelo_.toString()); };
    // A field starts as "0" whatever its decimals, until it first passes through its mask.
    modelo_.setValue(0);
    modelo_.cantidadDecimales = 2;
}

void ctlNumero::setMaxLength(int n)
{
    maximo_ = n;
    txt_->setMaxLength(n > 0 ? n : SIN_LIMITE);
}

bool ctlNumero::Enabled() const
{
    return !txt_->isReadOnly();
}

void ctlNumero::Habilitar(bool si)
{
    txt_->setReadOnly(!si);
    pintarFondo();
}

void ctlNumero::pintarFondo()
{
    QPalette p = palette();
    p.setColor(QPalette::Base, p.color(QPalette::Active, Enabled() ? QPalette::Base : QPalette::Button));
    txt_->setPalette(p);
}

bool ctlNumero::Negrita() const
{
    return txt_->font().bold();
}

void ctlNumero::setNegrita(bool si)
{
    QFont f = txt_->font();
    f.setBold(si);
    txt_->setFont(f);
}

void ctlNumero::changeEvent(QEvent* evento)
{
    QWidget::changeEvent(evento);
    if (evento->type() == QEvent::PaletteChange)
        pintarFondo();
}

bool ctlNumero::eventFilter(QObject* objeto, QEvent* evento)
{
    switch (evento->type()) {
    case QEvent::KeyPress: {
        const auto* k = static_cast<QKeyEvent*>(evento);
        const bool orden = k->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
        if (orden || k->key() == Qt::Key_Delete || k->key() == Qt::Key_Tab || k->key() == Qt::Key_Backtab
            || k->text().isEmpty() || txt_->isReadOnly())
            return false;
        return tecla(k->text());
    }
    case QEvent::FocusIn:
        // Coming back from a box or another program is no new entry into the field.
        if (!editando_) {
            editando_ = true;
            modelo_.entrar();
            txt_->selectAll();
        }
        return false;
    case QEvent::FocusOut: {
        const auto motivo = static_cast<QFocusEvent*>(evento)->reason();
        if (motivo == Qt::ActiveWindowFocusReason || motivo == Qt::PopupFocusReason)
            return false;
        editando_ = false;
        modelo_.formatear();
        emit salida();
        return false;
    }
    default: return QWidget::eventFilter(objeto, evento);
    }
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
    if (keyAscii == 0)
        return true;
    if (keyAscii == original)
        return false;
    txt_->insert(QChar(keyAscii));
    return true;
}
