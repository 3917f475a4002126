// fatal STORE: an error that nobody traps, in the middle of a transaction. The box is answered.

#include "core/MDIAplicacion.h"
#include "core/modGlobales.h"
#include "manejo/manejo.h"

#include <QTimer>

#include <cstdlib>

int main(int argc, char** argv)
{
    Aplicacion aplicacion(argc, argv);
    cnRtn.abrir(QString::fromLocal8Bit(argv[1]), clave_almacen());
    cnRtn.ejecutar(QStringLiteral("insert into GLB_TB_CONCEPTOS values (50, 'CONFIRMADO')"));
    QTimer::singleShot(0, &aplicacion, [] {
        cnRtn.comenzar();
        cnRtn.ejecutar(QStringLiteral("insert into GLB_TB_CONCEPTOS values (51, 'A MEDIAS')"));
        Cajas::durante({{QStringLiteral("no such table: NADA"), QStringLiteral("VEDRA-RTN")}}, [] {
            try {
                cnRtn.ejecutar(QStringLiteral("delete from NADA"));
            } catch (const ErrorAlmacen& e) {
                Aplicacion::terminar(e.descripcion);
            }
        });
    });
    Aplicacion::exec();
    return EXIT_SUCCESS;
}
