// SPDX-License-Identifier: GPL-3.0-or-later

#include "application/escritorio.h"

#include "system/sistema.h"
#include "widgets/letras.h"

#include <QApplication>
#include <QFontInfo>

using namespace Qt::StringLiterals;

void preparar_escritorio()
{
    sistema::preparar_salidas();
}

// The desktop's letter may be no more than a name for another one, which then has measures of neither.
void seguir_escritorio(QApplication* aplicacion)
{
    iniciar_letras();
    QFont letra = QApplication::font();
    if (QFontInfo(letra).family() == letra.family())
        return;
    letra.setFamily(LETRA_PROPIA.toString());
    aplicacion->setFont(letra);
}
