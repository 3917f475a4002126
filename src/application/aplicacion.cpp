// SPDX-License-Identifier: GPL-3.0-or-later

#include "application/aplicacion.h"

#include "application/escritorio.h"
#include "application/traduccion.h"
#include "core/arranque.h"
#include "core/modGlobales.h"
#include "widgets/barra.h"
#include "widgets/colores.h"
#include "widgets/guardia.h"
#include "widgets/icono.h"
#include "widgets/mensajes.h"
#include "widgets/vigia_pantalla.h"

#include <QScopedValueRollback>

#include <cstdio>
#include <cstdlib>
#include <exception>

using namespace Qt::StringLiterals;

Aplicacion::Aplicacion(int& argc, char** argv) : QApplication((preparar_escritorio(), argc), argv)
{
    setApplicationName(u"VEDRA-RTN"_s);
    setApplicationVersion(QString::fromLatin1(RTN_VERSION));
    iniciar_recursos();
    setWindowIcon(icono(u"programa"_s));
    setPalette(con_estados_legibles(palette()));
    instalar_espanol(this);
    new VigiaPantalla(this);
    seguir_escritorio(this);
}

bool Aplicacion::event(QEvent* evento)
{
    const bool hecho = QApplication::event(evento);
    if (evento->type() == QEvent::ApplicationPaletteChange && !pintando_) {
        const QScopedValueRollback una_vez(pintando_, true);
        setPalette(con_estados_legibles(palette()));
    }
    return hecho;
}

bool Aplicacion::notify(QObject* objeto, QEvent* evento)
{
    try {
        return QApplication::notify(objeto, evento);
    } catch (...) {
        // Forms have a guard around each of their actions; here goes what happens outside of them.
        try {
            con_guardia(activeWindow(), [error = std::current_exception()] { std::rethrow_exception(error); });
        } catch (const ErrorAlmacen& e) {
            terminar(e.descripcion, e.motor);
        }
        return false;
    }
}

void Aplicacion::terminar(const QString& error, const QString& detalles)
{
    static bool terminando = false;
    if (!terminando) {
        terminando = true;
        // Before the box: while it stands, nothing half done is held open.
        cnRtn.deshacerTodo();
        std::fprintf(stderr, "%s %s\n", qUtf8Printable(error), qUtf8Printable(detalles));
        DialogoPantalla(nullptr).avisar({error, u"VEDRA-RTN"_s, Icono::critico, detalles});
        cerrar_base();
    }
    std::_Exit(EXIT_FAILURE);
}
