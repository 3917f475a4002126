// SPDX-License-Identifier: GPL-3.0-or-later
// recorrido [--carpeta CARPETA] [--imagenes CARPETA]: drives the real windows through one month on the sample store.

#include "application/aplicacion.h"
#include "application/screens/MDIPrincipal.h"
#include "constructor.h"
#include "core/modGlobales.h"
#include "core/reloj.h"
#include "manejo/manejo.h"
#include "recorrido/guia.h"
#include "recorrido/mes.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QStandardPaths>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

void preparar(const QString& carpeta)
{
    QDir(carpeta).removeRecursively();
    QDir().mkpath(carpeta);
    construir_almacen({QCoreApplication::applicationDirPath() + u"/textos"_s,
                       {u"datos"_s, u"muestra"_s},
                       carpeta + u"/vedra_rtn.db"_s,
                       clave_almacen()});
    QFile cfg(carpeta + u"/vedra_rtn.cfg"_s);
    if (!cfg.open(QIODevice::WriteOnly) || cfg.write("vedra_rtn.db\n") < 0)
        throw Inesperado(u"no se pudo escribir "_s + cfg.fileName());
    const QString rar = QCoreApplication::applicationDirPath() + u"/rar"_s;
    if (!QFile::copy(rar, carpeta + u"/rar"_s))
        throw Inesperado(u"no se pudo copiar "_s + rar);
    fijar_carpeta_programa(carpeta);
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    Aplicacion aplicacion(argc, argv);
    // What is chosen on the way is not what the user chose.
    QStandardPaths::setTestModeEnabled(true);
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Argentina));
    QCommandLineParser argumentos;
    argumentos.setApplicationDescription(u"Recorre un mes completo en las ventanas del programa."_s);
    argumentos.addHelpOption();
    argumentos.addOption(
        {u"carpeta"_s, u"Dónde dejar lo que hace."_s, u"carpeta"_s, QDir::currentPath() + u"/build/recorrido"_s});
    argumentos.addOption({u"imagenes"_s, u"Dónde dejar las imágenes del manual."_s, u"carpeta"_s});
    argumentos.process(aplicacion);
    const QString carpeta = QDir(argumentos.value(u"carpeta"_s)).absolutePath();
    try {
        preparar(carpeta);
        // The return of October is made in November, before it is due.
        fijar_hoy(QDate(2026, 11, 12));
        MDIPrincipal principal;
        if (!principal.iniciar())
            return EXIT_FAILURE;
        principal.resize(1200, 760);
        principal.show();
        principal.activateWindow();
        QApplication::processEvents();
        const QString imagenes = argumentos.value(u"imagenes"_s);
        Guia guia(&principal, carpeta, imagenes.isEmpty() ? QString() : QDir(imagenes).absolutePath());
        Mes(principal, guia).correr();
        if (const QStringList faltan = guia.imagenesQueFaltan(); !faltan.isEmpty())
            throw Inesperado(u"faltan imágenes del manual: "_s + faltan.join(u", "_s));
        Cajas::durante({{u"¿Está seguro que desea salir del sistema?"_s, u"VEDRA-RTN"_s}}, [&] { principal.close(); });
        std::printf("\nEl mes está completo: %d pasos, %d imágenes.\nTodo quedó en %s\n", guia.pasos(), guia.fotos(),
                    qUtf8Printable(carpeta));
        return EXIT_SUCCESS;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "recorrido: %s\n", e.what());
        return EXIT_FAILURE;
    }
}
