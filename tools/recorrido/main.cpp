// SPDX-License-Identifier: GPL-3.0-or-later
// recorrido [--carpeta CARPETA] [--imagenes CARPETA]: drives the real windows through one month on the sample store.

#include "application/aplicacion.h"
#include "application/screens/MDIPrincipal.h"
#include "constructor.h"
#include "core/modGlobales.h"
#include "core/preferencias.h"
#include "core/reloj.h"
#include "manejo/manejo.h"
#include "recorrido/guia.h"
#include "recorrido/mes.h"
#include "widgets/colores.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QLocale>

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
    const QString rar = ruta_herramienta(u"rar"_s);
    if (!QFile::copy(rar, ruta_herramienta(u"rar"_s, carpeta)))
        throw Inesperado(u"no se pudo copiar "_s + rar);
    fijar_carpeta_programa(carpeta);
    // What is chosen on the way is not what the user chose, nor what the last month did.
    fijar_preferencias(carpeta + u"/preferencias.ini"_s);
}

// A desktop of larger letters, or of light ones on dark.
void vestir(int letra, bool oscuro)
{
    QFont fuente = QApplication::font();
    fuente.setPointSizeF(fuente.pointSizeF() * letra / 100);
    QApplication::setFont(fuente);
    if (oscuro)
        QApplication::setPalette(paleta_oscura());
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    Aplicacion aplicacion(argc, argv);
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Argentina));
    QCommandLineParser argumentos;
    argumentos.setApplicationDescription(u"Recorre un mes completo en las ventanas del programa."_s);
    argumentos.addHelpOption();
    argumentos.addOption(
        {u"carpeta"_s, u"Dónde dejar lo que hace."_s, u"carpeta"_s, QDir::currentPath() + u"/build/recorrido"_s});
    argumentos.addOption({u"imagenes"_s, u"Dónde dejar las imágenes del manual."_s, u"carpeta"_s});
    argumentos.addOption({u"letra"_s, u"Tamaño de la letra, en por ciento de la del escritorio."_s, u"n"_s, u"100"_s});
    argumentos.addOption({u"tema"_s, u"Los colores del escritorio: claro u oscuro."_s, u"tema"_s, u"claro"_s});
    argumentos.addOption({u"revisar"_s, u"Mira si todo texto entra y se lee, y si cada control tiene su nombre."_s});
    argumentos.process(aplicacion);
    const QString carpeta = QDir(argumentos.value(u"carpeta"_s)).absolutePath();
    try {
        preparar(carpeta);
        const int letra = argumentos.value(u"letra"_s).toInt();
        vestir(letra, argumentos.value(u"tema"_s) == u"oscuro");
        // The return of October is made in November, before it is due.
        fijar_hoy(QDate(2026, 11, 12));
        MDIPrincipal principal;
        if (!principal.iniciar())
            return EXIT_FAILURE;
        principal.resize(QSize(1200, 760) * letra / 100);
        principal.show();
        principal.activateWindow();
        QApplication::processEvents();
        const QString imagenes = argumentos.value(u"imagenes"_s);
        Guia guia(&principal, carpeta, imagenes.isEmpty() ? QString() : QDir(imagenes).absolutePath());
        if (argumentos.isSet(u"revisar"_s))
            guia.revisar();
        Mes(principal, guia).correr();
        if (!guia.faltas().isEmpty())
            throw Inesperado(u"hay controles que no se leen bien:\n"_s + guia.faltas().join(u'\n'));
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
