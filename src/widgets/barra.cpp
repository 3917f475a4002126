// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/barra.h"

#include "widgets/formulario.h"
#include "widgets/icono.h"

#include <QAction>

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Boton
{
    const char* clave;
    const char* titulo;
    const char* icono;
};

// The access keys keep clear of the main menu's: T, G, A and S.
constexpr std::array BOTONES{
    Boton{"aceptar", "Ace&ptar", "aceptar"},
    Boton{"agregar", "Agregar", "agregar"},
    Boton{"alta", "A&lta", "agregar"},
    Boton{"borrar", "&Borrar", "borrar"},
    Boton{"buscar", "B&uscar", "buscar"},
    Boton{"cambiar_op", "Cambiar &operación", "cambiar"},
    Boton{"cancelar", "&Cancelar", "cancelar"},
    Boton{"desmarcar", "&Desmarcar", "desmarcar"},
    Boton{"editar", "&Editar", "editar"},
    Boton{"editar_det", "&Editar", "editar"},
    Boton{"emitir", "&Emitir", "emitir"},
    Boton{"generar", "Generar", "generar"},
    Boton{"guardar", "Guardar", "guardar"},
    Boton{"guardar_det", "Guardar &datos", "guardar"},
    Boton{"guardar_op", "G&uardar operación", "aceptar"},
    Boton{"imprimir", "I&mprimir", "imprimir"},
    Boton{"marcar", "Mar&car", "marcar"},
    Boton{"modificar", "&Modificar", "editar"},
    Boton{"nueva", "&Nueva", "nueva"},
    Boton{"nuevo", "&Nuevo", "nueva"},
    Boton{"pdf", "Guardar &PDF", "guardar"},
    Boton{"quitar", "&Quitar", "borrar"},
    Boton{"recibo", "&Recibo", "recibo"},
    Boton{"rectificar", "&Rectificar", "rectificar"},
    Boton{"seleccionar", "Selecciona&r", "aceptar"},
    Boton{"salir", "Sal&ir", "salir"},
};

}  // namespace

// The pictures are in a library, which does not load them by itself.
void iniciar_recursos()
{
    Q_INIT_RESOURCE(iconos_claro);
    Q_INIT_RESOURCE(iconos_oscuro);
}

BarraHerramientas::BarraHerramientas(QWidget* padre) : QToolBar(padre)
{
    iniciar_recursos();
    setIconSize({24, 24});
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    setMovable(false);
}

void BarraHerramientas::setSecundaria(bool si)
{
    secundaria_ = si;
    setIconSize(si ? QSize{16, 16} : QSize{24, 24});
    setToolButtonStyle(si ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonTextUnderIcon);
    setClaves(claves_);
}

void BarraHerramientas::setClaves(const QStringList& claves)
{
    claves_ = claves;
    clear();
    for (const QString& clave : claves) {
        if (clave == u"-") {
            addSeparator();
            continue;
        }
        const auto it = std::find_if(BOTONES.begin(), BOTONES.end(),
                                     [&](const Boton& b) { return clave == QLatin1StringView(b.clave); });
        Q_ASSERT(it != BOTONES.end());
        const QString titulo = QString::fromUtf8(it->titulo);
        QAction* accion = addAction(icono(QLatin1StringView(it->icono)), titulo);
        accion->setObjectName(clave);
        if (!secundaria_) {
            accion->setShortcut(QKeySequence::mnemonic(titulo));
            accion->setShortcutContext(Qt::WidgetWithChildrenShortcut);
            if (parentWidget())
                parentWidget()->addAction(accion);
        }
        connect(accion, &QAction::triggered, this, [this, clave] { accionar(clave); });
    }
}

void BarraHerramientas::accionar(const QString& clave)
{
    Formulario* form = nullptr;
    for (QWidget* w = this; w && !form; w = w->parentWidget())
        form = qobject_cast<Formulario*>(w);
    const auto informar = [this, &clave] { emit pulsada(clave); };
    if (form)
        form->actuar(informar, clave == u"salir" || clave == u"cancelar");
    else
        informar();
}

QAction* BarraHerramientas::boton(const QString& clave) const
{
    const auto acciones = actions();
    for (QAction* a : acciones)
        if (a->objectName() == clave)
            return a;
    return nullptr;
}

void BarraHerramientas::habilitar(const QString& clave, bool si)
{
    if (QAction* a = boton(clave))
        a->setEnabled(si);
}

bool BarraHerramientas::habilitada(const QString& clave) const
{
    const QAction* a = boton(clave);
    return a && a->isEnabled();
}

void BarraHerramientas::pulsar(const QString& clave)
{
    if (QAction* a = boton(clave); a && isEnabled())
        a->trigger();
}

void BarraHerramientas::pulsarPrimera(const QStringList& claves)
{
    for (const QString& clave : claves)
        if (boton(clave)) {
            pulsar(clave);
            return;
        }
}

void BarraHerramientas::ayuda(const QString& clave, const QString& texto)
{
    if (QAction* a = boton(clave))
        a->setToolTip(texto);
}
