// SPDX-License-Identifier: GPL-3.0-or-later

#include "application/escritorio.h"
#include "application/tema_escritorio_posix.h"

#include <QApplication>

void preparar_escritorio() {}

void seguir_escritorio(QApplication* aplicacion)
{
    new TemaEscritorio(aplicacion);
}
