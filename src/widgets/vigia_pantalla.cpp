// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/vigia_pantalla.h"

#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace {

// Statements that follow each other as closely as this are one wait.
constexpr int PAUSA_MS = 150;

}  // namespace

VigiaPantalla::VigiaPantalla(QObject* padre) : QObject(padre)
{
    fin_.setSingleShot(true);
    connect(&fin_, &QTimer::timeout, this, &VigiaPantalla::terminar);
    fijar_vigia(this);
}

VigiaPantalla::~VigiaPantalla()
{
    fijar_vigia(nullptr);
}

bool VigiaPantalla::sigue(bool cancelable)
{
    if (preguntando_ || (VentanaProgreso::hay() && !ventana_))
        return true;
    if (!ventana_ || !ultimo_.isValid() || ultimo_.elapsed() > PAUSA_MS || ventana_->cancelable() != cancelable) {
        // Its own window may be the active one: the next one is not to stand on that.
        ventana_.reset();
        ventana_.emplace(QApplication::activeWindow(), cancelable);
    }
    ultimo_.start();
    if (!fin_.isActive())
        fin_.start(0);
    // While the window lives, the engine is in the midst of a statement: nothing may ask the store for another one.
    const QScopedValueRollback preguntando(preguntando_, true);
    qApp->installEventFilter(this);
    const bool sigue = ventana_->avanzar(u"Se consulta la base de datos…"_s, 0, 0);
    qApp->removeEventFilter(this);
    return sigue;
}

// A timer that is not heard now rings again.
bool VigiaPantalla::eventFilter(QObject* objeto, QEvent* evento)
{
    return evento->type() == QEvent::Timer && (qobject_cast<QTimer*>(objeto) || objeto->inherits("QSingleShotTimer"));
}

// The program is back at its events: the wait is over.
void VigiaPantalla::terminar()
{
    ventana_.reset();
}
