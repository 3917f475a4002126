// SPDX-License-Identifier: GPL-3.0-or-later
// The guard of a form's actions, its boxes, and what would be lost when it closes.

#include "widgets/ctlNumero.h"
#include "widgets/formulario.h"
#include "widgets/guardia.h"
#include "widgets/mensajes.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

// What a control holds, as one text; nothing for what holds nothing of a user's.
QString contenido(const QWidget* w)
{
    if (const auto* numero = qobject_cast<const ctlNumero*>(w))
        return numero->modelo().legible() ? numero->toSQL() : numero->toString();
    if (const auto* texto = qobject_cast<const QLineEdit*>(w))
        return texto->isReadOnly() || texto->focusProxy() || texto->objectName() == u"txt" ? QString() : texto->text();
    if (const auto* combo = qobject_cast<const QComboBox*>(w))
        return combo->currentText();
    if (const auto* fecha = qobject_cast<const QDateEdit*>(w))
        return fecha->text();
    const auto* boton = qobject_cast<const QAbstractButton*>(w);
    return boton && boton->isCheckable() ? QString::number(int(boton->isChecked())) : QString();
}

QStringList huella_de(const QWidget* raiz)
{
    QStringList huella;
    const auto controles = raiz->findChildren<QWidget*>();
    for (const QWidget* w : controles)
        huella << contenido(w);
    return huella;
}

}  // namespace

bool Formulario::proteger(const std::function<void()>& accion)
{
    const QList<Formulario*> antes = cargados();
    if (con_guardia(this, accion, [this] { enfocarIlegible(); }))
        return true;
    // A form that the action loaded and could not show is none: the next attempt begins with a new one.
    const QList<Formulario*> despues = cargados();
    for (Formulario* f : despues)
        if (!antes.contains(f) && !f->isVisible())
            f->descargar();
    return false;
}

void Formulario::avisar(const QString& texto, const QString& titulo, Icono icono, const QString& detalles)
{
    DialogoPantalla(this).avisar({texto, titulo, icono, detalles});
}

bool Formulario::preguntar(const QString& texto, const QString& titulo, Icono icono)
{
    return DialogoPantalla(this).preguntar({texto, titulo, icono});
}

void Formulario::mostrarFalla(const Falla& falla)
{
    avisar(falla.mensaje, falla.titulo.value_or(windowTitle()), falla.icono);
    enfocar(falla.control);
}

void Formulario::marcarGuardado(const QWidget* raiz)
{
    raiz_ = raiz ? raiz : this;
    huella_ = huella_de(raiz_);
}

bool Formulario::hayCambios() const
{
    return raiz_ && editando() && huella_ != huella_de(raiz_);
}
