// recorrido [--carpeta CARPETA]: drives the real windows through one month on the sample store.

#include "constructor.h"
#include "core/MDIPrincipal.h"
#include "core/MDIAplicacion.h"
#include "core/modGlobales.h"
#include "core/reloj.h"
#include "manejo/manejo.h"
#include "recorrido/guia.h"
#include "recorrido/pasos.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QLocale>

#include <cstdio>
#include <cstdlib>

namespace {

void preparar(const QString& carpeta)
{
    QDir(carpeta).removeRecursively();
    QDir().mkpath(carpeta);
    construir_almacen({QStringLiteral(RTN_TEXTOS_ALMACEN), {QStringLiteral("datos"), QStringLiteral("muestra")},
                       carpeta + QStringLiteral("/vedra_rtn.db"), clave_almacen()});
    QFile cfg(carpeta + QStringLiteral("/vedra_rtn.cfg"));
    if (!cfg.open(QIODevice::WriteOnly) || cfg.write("vedra_rtn.db\n") < 0)
        throw Inesperado(QStringLiteral("no se pudo escribir ") + cfg.fileName());
    const QString rar = QCoreApplication::applicationDirPath() + QStringLiteral("/rar");
    if (!QFile::copy(rar, carpeta + QStringLiteral("/rar")))
        throw Inesperado(QStringLiteral("no se pudo copiar ") + rar);
    fijar_carpeta_programa(carpeta);
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    Aplicacion aplicacion(argc, argv);
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Argentina));
    QCommandLineParser argumentos;
    argumentos.setApplicationDescription(QStringLiteral("Recorre un mes completo en las ventanas del programa."));
    argumentos.addHelpOption();
    argumentos.addOption({QStringLiteral("carpeta"), QStringLiteral("Dónde dejar lo que hace."), QStringLiteral("carpeta"),
                          QDir::currentPath() + QStringLiteral("/build/recorrido")});
    argumentos.process(aplicacion);
    const QString carpeta = QDir(argumentos.value(QStringLiteral("carpeta"))).absolutePath();
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
        Guia guia(&principal, carpeta);
        recorrer(principal, guia);
        Cajas::durante({{QStringLiteral("¿Está seguro que desea salir del sistema?"), QStringLiteral("VEDRA-RTN")}}, [&] { principal.close(); });
        std::printf("\nEl mes está completo: %d pasos, %d imágenes.\nTodo quedó en %s\n", guia.pasos(), guia.fotos(), qUtf8Printable(carpeta));
        return EXIT_SUCCESS;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "recorrido: %s\n", e.what());
        return EXIT_FAILURE;
    }
}
