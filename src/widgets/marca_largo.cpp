// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/marca_largo.h"

#include "widgets/icono.h"

#include <QAction>
#include <QLineEdit>

using namespace Qt::StringLiterals;

void marcar_largo(QLineEdit* campo, int ancho)
{
    auto* marca = campo->addAction(icono(u"largo"_s), QLineEdit::TrailingPosition);
    marca->setObjectName(u"largo"_s);
    marca->setToolTip(u"La declaración jurada emitida toma %1 caracteres"_s.arg(ancho));
    const auto mirar = [campo, marca, ancho, tip = campo->toolTip()] {
        const bool largo = campo->text().trimmed().size() > ancho;
        marca->setVisible(largo);
        campo->setToolTip(largo ? marca->toolTip() : tip);
    };
    QObject::connect(campo, &QLineEdit::textChanged, marca, mirar);
    mirar();
}

void marcar_largos(const QWidget* form, std::span<const LargoEmitido> campos)
{
    for (const LargoEmitido& c : campos)
        marcar_largo(form->findChild<QLineEdit*>(QString::fromUtf8(c.campo)), c.ancho);
}
