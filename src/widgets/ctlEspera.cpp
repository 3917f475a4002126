// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/ctlEspera.h"

#include <QCursor>
#include <QGuiApplication>

void puntero_de_espera()
{
    if (!QGuiApplication::overrideCursor())
        QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
}

void puntero_normal()
{
    while (QGuiApplication::overrideCursor())
        QGuiApplication::restoreOverrideCursor();
}
