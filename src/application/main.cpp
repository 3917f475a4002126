// SPDX-License-Identifier: GPL-3.0-or-later

#include "application/aplicacion.h"
#include "application/screens/MDIPrincipal.h"

#include <cstdlib>

int main(int argc, char** argv)
{
    Aplicacion aplicacion(argc, argv);
    try {
        MDIPrincipal principal;
        if (!principal.iniciar())
            return EXIT_FAILURE;
        principal.presentar();
        return Aplicacion::exec();
    } catch (const std::exception& e) {
        Aplicacion::terminar(QString::fromUtf8(e.what()));
    }
}
