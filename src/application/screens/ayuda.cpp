// SPDX-License-Identifier: GPL-3.0-or-later

#include "application/screens/ayuda.h"

#include "widgets/ventana_progreso.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

// The page of a class, empty when it has none.
QString pagina_de_clase(const QObject* objeto)
{
    const QString pagina = u"pantallas/"_s + QLatin1StringView(objeto->metaObject()->className());
    return frmManual::existe(pagina) ? pagina : QString();
}

}  // namespace

Ayuda::Ayuda(QWidget* principal) : QObject(principal), principal_(principal)
{
    qApp->installEventFilter(this);
}

QString Ayuda::paginaDe(const QWidget* control) const
{
    for (const QWidget* w = control; w && w != principal_; w = w->parentWidget())
        if (const QString pagina = pagina_de_clase(w); !pagina.isEmpty())
            return pagina;
    const auto* area = principal_->findChild<QMdiArea*>();
    const QMdiSubWindow* delante = area ? area->currentSubWindow() : nullptr;
    const QString pagina = delante && delante->widget() ? pagina_de_clase(delante->widget()) : QString();
    return pagina.isEmpty() ? pagina_de_clase(principal_) : pagina;
}

bool Ayuda::eventFilter(QObject* objeto, QEvent* evento)
{
    if (evento->type() != QEvent::KeyPress || !objeto->isWidgetType())
        return false;
    const auto* tecla = static_cast<const QKeyEvent*>(evento);
    if (tecla->key() != Qt::Key_F1 || tecla->modifiers() != Qt::NoModifier)
        return false;
    // Whoever waits for the store reads afterwards.
    if (!VentanaProgreso::hay())
        mostrar(paginaDe(static_cast<const QWidget*>(objeto)));
    return true;
}

void Ayuda::mostrar(const QString& pagina)
{
    while (QWidget* lista = QApplication::activePopupWidget())
        lista->close();
    if (!manual_)
        manual_ = std::make_unique<frmManual>();
    manual_->ir(pagina);
    // A box that waits for an answer blocks all windows but those that stand over it.
    const QWidget* caja = QApplication::activeModalWidget();
    manual_->winId();
    if (QWindow* ventana = manual_->windowHandle();
        ventana->transientParent() != (caja ? caja->windowHandle() : nullptr)) {
        manual_->hide();
        ventana->setTransientParent(caja ? caja->windowHandle() : nullptr);
    }
    if (manual_->isMinimized())
        manual_->showNormal();
    manual_->show();
    manual_->raise();
    manual_->activateWindow();
}
