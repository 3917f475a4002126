// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/ventana_progreso.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

int VentanaProgreso::abiertas_ = 0;

namespace {

constexpr int ESPERA_PUNTERO_MS = 300;
constexpr int ESPERA_MS = 500;
constexpr int ENTRE_PINTADAS_MS = 60;
constexpr int ANCHO = 420;
constexpr int PASOS = 1000;

}  // namespace

VentanaProgreso::VentanaProgreso(QWidget* padre, bool cancelable) : padre_(padre), cancelable_(cancelable)
{
    desde_.start();
}

VentanaProgreso::~VentanaProgreso()
{
    if (conPuntero_)
        QGuiApplication::restoreOverrideCursor();
    if (ventana_)
        --abiertas_;
}

void VentanaProgreso::abrir()
{
    ++abiertas_;
    ventana_ = std::make_unique<QDialog>(padre_, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    ventana_->setObjectName(u"progreso"_s);
    ventana_->setWindowTitle(u"VEDRA-RTN"_s);
    ventana_->setWindowModality(Qt::ApplicationModal);
    // At start it is the only window: its end is not the program's.
    ventana_->setAttribute(Qt::WA_QuitOnClose, false);
    ventana_->setMinimumWidth(ANCHO);
    rotulo_ = new QLabel;
    barra_ = new QProgressBar;
    auto* filas = new QVBoxLayout(ventana_.get());
    filas->addWidget(rotulo_);
    filas->addWidget(barra_);
    if (cancelable_) {
        auto* botones = new QDialogButtonBox;
        auto* cancelar = botones->addButton(u"&Cancelar"_s, QDialogButtonBox::RejectRole);
        cancelar->setObjectName(u"cmdCancelar"_s);
        filas->addWidget(botones);
        QObject::connect(botones, &QDialogButtonBox::rejected, ventana_.get(), &QDialog::reject);
        QObject::connect(ventana_.get(), &QDialog::rejected, [this] { cancelado_ = true; });
    }
    ventana_->show();
}

bool VentanaProgreso::avanzar(const QString& que, qint64 hecho, qint64 total)
{
    const qint64 llevados = desde_.elapsed();
    if (!conPuntero_ && llevados >= ESPERA_PUNTERO_MS) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        conPuntero_ = true;
    }
    if (llevados < ESPERA_MS || (pintada_.isValid() && pintada_.elapsed() < ENTRE_PINTADAS_MS))
        return !cancelado_;
    if (!ventana_)
        abrir();
    rotulo_->setText(que);
    barra_->setRange(0, total > 0 ? PASOS : 0);
    if (total > 0)
        barra_->setValue(int(PASOS * hecho / total));
    QApplication::processEvents(cancelable_ ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
    pintada_.start();
    return !cancelado_;
}
