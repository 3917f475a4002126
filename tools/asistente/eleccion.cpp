// SPDX-License-Identifier: GPL-3.0-or-later

#include "asistente/eleccion.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

Eleccion::Eleccion() : vacia_(new QRadioButton(this)), muestra_(new QRadioButton(this))
{
    setWindowTitle(u"VEDRA-RTN"_s);
    auto* texto = new QLabel(u"Es la primera vez que abre VEDRA-RTN. ¿Con qué base de datos empieza?"_s, this);
    vacia_->setText(u"Una base &vacía, para trabajar: tiene las leyes y el catálogo, y ningún agente."_s);
    vacia_->setObjectName(u"optVacia"_s);
    vacia_->setChecked(true);
    muestra_->setText(u"La base de &muestra, para probar: tiene además agentes y meses inventados."_s);
    muestra_->setObjectName(u"optMuestra"_s);
    auto* botones = new QDialogButtonBox(this);
    botones->addButton(u"&Empezar"_s, QDialogButtonBox::AcceptRole)->setDefault(true);
    botones->addButton(u"&Cancelar"_s, QDialogButtonBox::RejectRole);
    connect(botones, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(botones, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(texto);
    columna->addWidget(vacia_);
    columna->addWidget(muestra_);
    columna->addWidget(botones);
    vacia_->setFocus();
}

QString Eleccion::elegida() const
{
    return muestra_->isChecked() ? u"muestra"_s : u"vacia"_s;
}
