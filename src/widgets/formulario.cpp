// SPDX-License-Identifier: GPL-3.0-or-later
// The life of a form: how it shows, is activated, and unloads.

#include "widgets/formulario.h"

#include "core/preferencias.h"
#include "widgets/grilla.h"
#include "widgets/medidas.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScopedValueRollback>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

QPointer<QMdiArea> area_principal;
QList<QPointer<Formulario>> abiertos;
QPointer<Formulario> ultima_activa;

QString clave_lugar(const Formulario* f)
{
    return u"ventanas/"_s + QLatin1String(f->metaObject()->className());
}

}  // namespace

Formulario::Formulario(QWidget* padre) : QWidget(padre)
{
    setAttribute(Qt::WA_DeleteOnClose, false);
    abiertos.append(this);
}

void Formulario::fijarArea(QMdiArea* area)
{
    area_principal = area;
    if (!area)
        return;
    connect(area, &QMdiArea::subWindowActivated, area, [](QMdiSubWindow* ventana) {
        auto* f = ventana ? qobject_cast<Formulario*>(ventana->widget()) : nullptr;
        if (f && !f->descargada_ && ultima_activa != f)
            f->activarse();
    });
}

QList<Formulario*> Formulario::cargados()
{
    QList<Formulario*> lista;
    for (const auto& f : std::as_const(abiertos))
        if (f && !f->descargada_)
            lista.append(f);
    return lista;
}

void Formulario::mostrar()
{
    const bool primera = !isVisible();
    const QPointer<QWidget> pedido = focusWidget();
    if (!std::exchange(medida_, true))
        ajustar_a_letra(this);
    if (area_principal && !subventana_) {
        const QSize propia = size().expandedTo(minimumSizeHint());
        subventana_ = area_principal->addSubWindow(this);
        subventana_->setAttribute(Qt::WA_DeleteOnClose);
        subventana_->setWindowIcon(QApplication::windowIcon());
        const QSize marco = subventana_->sizeHint() - sizeHint();
        subventana_->resize((propia + marco).boundedTo(area_principal->viewport()->size()));
        ubicar();
    }
    traerAlFrente();
    if (!primera)
        return;
    if (subventana_)
        lugar_ = subventana_->geometry();
    if (pedido && pedido->isVisible() && pedido->isEnabled())
        pedido->setFocus(Qt::OtherFocusReason);
    else
        enfocarPrimero();
}

// Where the user left it, unless that was in a larger window than there is now, or for other letters; else in steps from the upper left corner.
void Formulario::ubicar()
{
    const QSize disponible = area_principal->viewport()->size();
    const QVariantList dejado = preferencia(clave_lugar(this)).toList();
    if (const QRect antes = dejado.value(0).toRect();
        antes.isValid() && dejado.value(1).toSize() == dejado.value(1).toSize().boundedTo(disponible)
        && qFuzzyCompare(dejado.value(2).toDouble(), escala_letra(this))) {
        subventana_->setGeometry(antes);
    } else {
        const QSize resto = disponible - subventana_->size();
        const int paso = int(area_principal->subWindowList().size() - 1) * 24;
        subventana_->move(std::min(paso, std::max(0, resto.width())), std::min(paso, std::max(0, resto.height())));
    }
}

// Only what the user changed: where nobody moved it, a form comes where it comes.
void Formulario::guardarLugar() const
{
    if (!subventana_ || subventana_->isMaximized() || subventana_->isMinimized() || subventana_->geometry() == lugar_)
        return;
    recordar(clave_lugar(this),
             QVariantList{subventana_->geometry(), area_principal->viewport()->size(), escala_letra(this)});
}

void Formulario::traerAlFrente()
{
    if (subventana_) {
        if (subventana_->isMinimized())
            subventana_->setWindowState(subventana_->windowState() & ~Qt::WindowMinimized);
        subventana_->show();
        show();
        area_principal->setActiveSubWindow(subventana_);
    } else {
        show();
        raise();
        activateWindow();
    }
    if (ultima_activa != this)
        activarse();
}

void Formulario::activarse()
{
    ultima_activa = this;
    if (Llamador) {
        Llamador->setEnabled(false);
        if (Llamador->subventana_)
            Llamador->subventana_->setEnabled(false);
    }
    proteger([this] { alActivar(); });
}

bool Formulario::descargar()
{
    const QScopedValueRollback sin_pregunta(porPrograma_, true);
    return descargada_ || (subventana_ ? subventana_->close() : close());
}

bool Formulario::cerrar()
{
    return descargada_ || (subventana_ ? subventana_->close() : close());
}

void Formulario::closeEvent(QCloseEvent* evento)
{
    if (descargada_)
        return;
    bool sigue = !isEnabled();
    if (!sigue && !porPrograma_ && hayCambios())
        sigue = !preguntar(u"¿Descartar los cambios?"_s, windowTitle());
    if (sigue || !proteger([&] { sigue = !consultarDescarga(); }) || sigue) {
        evento->ignore();
        return;
    }
    descargada_ = true;
    guardarLugar();
    alDescargar();
    abiertos.removeAll(QPointer<Formulario>(this));
    if (ultima_activa == this)
        ultima_activa = nullptr;
    if (!subventana_)
        deleteLater();
    evento->accept();
    activarAnterior();
}

// The caller, else the topmost of the forms that may be used.
void Formulario::activarAnterior()
{
    QPointer<Formulario> anterior = Llamador;
    if (!anterior && area_principal) {
        const auto ventanas = area_principal->subWindowList(QMdiArea::StackingOrder);
        for (QMdiSubWindow* v : ventanas)
            if (auto* f = qobject_cast<Formulario*>(v->widget());
                f && f != this && !f->descargada_ && f->isEnabled() && v->isVisible() && !v->isMinimized())
                anterior = f;
    }
    if (!anterior || anterior->descargada_)
        return;
    anterior->setEnabled(true);
    if (anterior->subventana_)
        anterior->subventana_->setEnabled(true);
    anterior->traerAlFrente();
    anterior->devolverFoco();
}

void Formulario::changeEvent(QEvent* evento)
{
    QWidget::changeEvent(evento);
    if (evento->type() == QEvent::ActivationChange && !subventana_ && isActiveWindow() && !descargada_ && isVisible()
        && ultima_activa != this)
        activarse();
}

void Formulario::abrir(Formulario* hijo)
{
    foco_ = focusWidget() == this ? dejado_.data() : focusWidget();
    hijo->Llamador = this;
    hijo->mostrar();
}

void ajustar_a_principal(Formulario* form, bool maximizar)
{
    constexpr QSize MARGEN(700, 1200);  // twips
    constexpr int MAS_ARRIBA = 500;     // twips
    // As a child of the main window the form moves with its frame.
    QWidget* marco = form->isWindow() ? form : form->parentWidget();
    if (maximizar) {
        const QSize principal = form->window()->size();
        marco->setGeometry(0, 0, principal.width() - pixeles(form, MARGEN.width()),
                           principal.height() - pixeles(form, MARGEN.height()));
        return;
    }
    const QSize pantalla = form->screen()->size();
    marco->move(pantalla.width() / 2 - marco->width() / 2,
                pantalla.height() / 2 - pixeles(form, MAS_ARRIBA) - marco->height() / 2);
}
