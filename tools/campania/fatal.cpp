// SPDX-License-Identifier: GPL-3.0-or-later
// fatal STORE: an error that nobody traps, in the middle of a transaction. The box is answered.

#include "application/aplicacion.h"
#include "core/modGlobales.h"
#include "manejo/manejo.h"

#include <QTimer>

#include <cstdlib>

using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    Aplicacion aplicacion(argc, argv);
    cnRtn.abrir(QString::fromLocal8Bit(argv[1]), clave_almacen());
    cnRtn.ejecutar(u"insert into GLB_TB_CONCEPTOS values (50, 'CONFIRMADO')"_s);
    QTimer::singleShot(0, &aplicacion, [] {
        cnRtn.comenzar();
        cnRtn.ejecutar(u"insert into GLB_TB_CONCEPTOS values (51, 'A MEDIAS')"_s);
        Cajas::durante({{u"La base de datos no pudo hacer lo que se le pidió."_s, u"VEDRA-RTN"_s}}, [] {
            try {
                cnRtn.ejecutar(u"delete from NADA"_s);
            } catch (const ErrorAlmacen& e) {
                Aplicacion::terminar(e.descripcion, e.motor);
            }
        });
    });
    Aplicacion::exec();
    return EXIT_SUCCESS;
}
