// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/ctlNumero.h"

#include "widgets/colores.h"
#include "widgets/ctlComunes.h"

#include <QHBoxLayout>
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
    nombrar_por(this, txt_);

    // What the model wrote comes back with its own text; any other text is the user's.
    connect(txt_, &QLineEdit::textChanged, this, [this](const QString& texto) {
        if (texto != modelo_.toString())
            modelo_.teclearTexto(texto);
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
    txt_->setFocusPolicy(si ? Qt::StrongFocus : Qt::ClickFocus);
    pintarFondo();
}

void ctlNumero::pintarFondo()
{
    pintar_fondo(txt_, Enabled());
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
