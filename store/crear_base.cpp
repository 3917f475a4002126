// SPDX-License-Identifier: GPL-3.0-or-later
// crear_base [--muestra] [--textos CARPETA] DESTINO

#include "constructor.h"
#include "core/modGlobales.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    const QCoreApplication aplicacion(argc, argv);
    QCommandLineParser argumentos;
    argumentos.setApplicationDescription(u"Crea la base de VEDRA-RTN a partir de sus textos."_s);
    argumentos.addHelpOption();
    argumentos.addOption({u"muestra"_s, u"Agrega agentes y meses de muestra."_s});
    argumentos.addOption({u"textos"_s, u"Carpeta de los textos."_s, u"carpeta"_s, QStringLiteral(RTN_TEXTOS_ALMACEN)});
    argumentos.addPositionalArgument(u"destino"_s, u"Archivo que se crea."_s);
    argumentos.process(aplicacion);
    if (argumentos.positionalArguments().size() != 1)
        argumentos.showHelp(EXIT_FAILURE);

    Construccion c{
        argumentos.value(u"textos"_s), {u"datos"_s}, argumentos.positionalArguments().constFirst(), clave_almacen()};
    if (argumentos.isSet(u"muestra"_s))
        c.carpetas << u"muestra"_s;
    try {
        construir_almacen(c);
        std::printf("%s\n", qUtf8Printable(c.destino));
        if (std::fflush(stdout) != 0)
            throw std::runtime_error("no se pudo escribir la salida");
        return EXIT_SUCCESS;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "crear_base: %s\n", e.what());
        return EXIT_FAILURE;
    }
}
