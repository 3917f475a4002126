// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/guardia.h"

#include "core/modGlobales.h"
#include "core/motivos.h"
#include "core/redondeo.h"
#include "widgets/mensajes.h"

#include <QPointer>
#include <QWidget>

using namespace Qt::StringLiterals;

bool con_guardia(QWidget* ventana, const std::function<void()>& accion, const std::function<void()>& ilegible)
{
    const int nivel = cnRtn.transacciones();
    const QPointer<QWidget> viva = ventana;
    // The box comes last: while it stands, nothing half done is held open.
    const auto deshacer = [&] {
        while (cnRtn.transacciones() > nivel)
            cnRtn.deshacer();
        return false;
    };
    const auto contar = [&](const Motivo& m) {
        deshacer();
        DialogoPantalla(viva).avisar({m.texto, viva ? viva->windowTitle() : QString(), Icono::exclamacion, m.detalles});
        return false;
    };
    try {
        accion();
        return true;
    } catch (const ErrorConversion& e) {
        contar({QString::fromUtf8(e.what()), {}});
        if (viva && ilegible)
            ilegible();
        return false;
    } catch (const ErrorAlmacen& e) {
        if (e.perdido())
            throw;
        return e.interrumpido() ? deshacer() : contar(motivo_de(e));
    } catch (const Cancelado&) {
        return deshacer();
    } catch (const std::exception& e) {
        return contar(motivo_de(e));
    }
}
