// crear_base [--muestra] [--textos CARPETA] DESTINO

#include "constructor.h"
#include "core/modGlobales.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

int main(int argc, char** argv)
{
    const QCoreApplication aplicacion(argc, argv);
    QCommandLineParser argumentos;
    argumentos.setApplicationDescription(QStringLiteral("Crea la base de VEDRA-RTN a partir de sus textos."));
    argumentos.addHelpOption();
    argumentos.addOption({QStringLiteral("muestra"), QStringLiteral("Agrega agentes y meses de muestra.")});
    argumentos.addOption({QStringLiteral("textos"), QStringLiteral("Carpeta de los textos."), QStringLiteral("carpeta"),
                          QStringLiteral(RTN_TEXTOS_ALMACEN)});
    argumentos.addPositionalArgument(QStringLiteral("destino"), QStringLiteral("Archivo que se crea."));
    argumentos.process(aplicacion);
    if (argumentos.positionalArguments().size() != 1)
        argumentos.showHelp(EXIT_FAILURE);

    Construccion c{argumentos.value(QStringLiteral("textos")), {QStringLiteral("datos")},
                   argumentos.positionalArguments().constFirst(), clave_almacen()};
    if (argumentos.isSet(QStringLiteral("muestra")))
        c.carpetas << QStringLiteral("muestra");
    try {
        construir_almacen(c);
        std::printf("%s\n", qUtf8Printable(c.destino));
        return EXIT_SUCCESS;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "crear_base: %s\n", e.what());
        return EXIT_FAILURE;
    }
}
