// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/formulario.h"

#include "widgets/barra.h"
#include "widgets/ctlNumero.h"
#include "widgets/grilla.h"
#include "widgets/mensajes.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

QPointer<QMdiArea> area_principal;
QList<QPointer<Formulario>> abiertos;
QPointer<Formulario> ultima_activa;

// Brings to the front the pages of tab widgets on which the control stands.
void mostrar_solapa_de(QWidget* control)
{
    for (QWidget* w = control; w && w->parentWidget(); w = w->parentWidget())
        for (QWidget* p = w->parentWidget(); p; p = p->parentWidget())
            if (auto* solapas = qobject_cast<QTabWidget*>(p); solapas && solapas->indexOf(w) >= 0)
                solapas->setCurrentIndex(solapas->indexOf(w));
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
    if (area_principal && !subventana_) {
        const QSize propia = size().expandedTo(minimumSizeHint());
        subventana_ = area_principal->addSubWindow(this);
        subventana_->setAttribute(Qt::WA_DeleteOnClose);
        subventana_->setWindowIcon(QApplication::windowIcon());
        const QSize disponible = area_principal->viewport()->size();
        const QSize marco = subventana_->sizeHint() - sizeHint();
        subventana_->resize((propia + marco).boundedTo(disponible));
        const QSize resto = disponible - subventana_->size();
        const int paso = int(area_principal->subWindowList().size() - 1) * 24;
        subventana_->move(std::min(paso, std::max(0, resto.width())), std::min(paso, std::max(0, resto.height())));
    }
    traerAlFrente();
}

void Formulario::traerAlFrente()
{
    if (subventana_) {
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
        if (Llamador->isEnabled())
            Llamador->foco_ = Llamador->focusWidget();
        Llamador->setEnabled(false);
        if (Llamador->subventana_)
            Llamador->subventana_->setEnabled(false);
    }
    alActivar();
}

bool Formulario::descargar()
{
    return descargada_ || (subventana_ ? subventana_->close() : close());
}

void Formulario::closeEvent(QCloseEvent* evento)
{
    if (descargada_)
        return;
    if (!isEnabled() || !consultarDescarga()) {
        evento->ignore();
        return;
    }
    descargada_ = true;
    alDescargar();
    abiertos.removeAll(QPointer<Formulario>(this));
    if (ultima_activa == this)
        ultima_activa = nullptr;
    if (!subventana_)
        deleteLater();
    evento->accept();
    if (!Llamador || Llamador->descargada_)
        return;
    Llamador->setEnabled(true);
    if (Llamador->subventana_)
        Llamador->subventana_->setEnabled(true);
    Llamador->traerAlFrente();
    if (Llamador->foco_ && Llamador->foco_->isVisible() && Llamador->foco_->isEnabled())
        Llamador->foco_->setFocus();
}

// A field that only shows has the colour of the window's face.
void Formulario::showEvent(QShowEvent* evento)
{
    QWidget::showEvent(evento);
    const auto textos = findChildren<QLineEdit*>();
    for (QLineEdit* texto : textos) {
        if (!texto->isReadOnly() || texto->objectName() == u"txt")
            continue;
        QPalette p = texto->palette();
        p.setColor(QPalette::Base, palette().color(QPalette::Button));
        texto->setPalette(p);
    }
}

void Formulario::changeEvent(QEvent* evento)
{
    QWidget::changeEvent(evento);
    if (evento->type() == QEvent::ActivationChange && !subventana_ && isActiveWindow() && !descargada_ && isVisible()
        && ultima_activa != this)
        activarse();
}

void Formulario::formatearNumeros()
{
    for (ctlNumero* n : findChildren<ctlNumero*>())
        n->modelo().formatear();
}

void Formulario::aceptarOSalir(BarraHerramientas* barra, const std::function<void()>& aceptar)
{
    connect(barra, &BarraHerramientas::pulsada, this, [this, aceptar](const QString& clave) {
        if (clave == u"aceptar")
            aceptar();
        else
            descargar();
    });
}

void Formulario::keyPressEvent(QKeyEvent* evento)
{
    const bool acepta = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
    if (barra_ && (acepta || evento->key() == Qt::Key_Escape))
        barra_->pulsar(acepta ? u"aceptar"_s : u"cancelar"_s);
    else
        QWidget::keyPressEvent(evento);
}

void Formulario::abrir(Formulario* hijo)
{
    hijo->Llamador = this;
    hijo->mostrar();
}

void Formulario::avisar(const QString& texto, const QString& titulo, Icono icono)
{
    DialogoPantalla(this).avisar({texto, titulo, icono});
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

void Formulario::enfocar(const QString& control)
{
    auto* w = control.isEmpty() ? nullptr : findChild<QWidget*>(control);
    if (!w)
        return;
    mostrar_solapa_de(w);
    if (w->isVisible() && w->isEnabled())
        w->setFocus(Qt::OtherFocusReason);
}

bool Formulario::esActivo(const QWidget* control) const
{
    const QWidget* f = focusWidget();
    return f && (f == control || control->isAncestorOf(f));
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
