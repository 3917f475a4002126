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

namespace {

constexpr int ESPERA_MS = 500;
constexpr int ENTRE_PINTADAS_MS = 60;
constexpr int ANCHO = 420;
constexpr int PASOS = 1000;

}  // namespace

VentanaProgreso::VentanaProgreso(QWidget* padre, bool cancelable) : padre_(padre), cancelable_(cancelable)
{
    desde_.start();
}

VentanaProgreso::~VentanaProgreso() = default;

void VentanaProgreso::abrir()
{
    ventana_ = std::make_unique<QDialog>(padre_, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    ventana_->setObjectName(u"progreso"_s);
    ventana_->setWindowTitle(u"VEDRA-RTN"_s);
    ventana_->setWindowModality(Qt::ApplicationModal);
    // At start it is the only window: its end is not the program's.
    ventana_->setAttribute(Qt::WA_QuitOnClose, false);
    ventana_->setMinimumWidth(ANCHO);
    rotulo_ = new QLabel;
    barra_ = new QProgressBar;
    barra_->setRange(0, PASOS);
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
    if (desde_.elapsed() < ESPERA_MS || (pintada_.isValid() && pintada_.elapsed() < ENTRE_PINTADAS_MS))
        return !cancelado_;
    if (!ventana_)
        abrir();
    rotulo_->setText(que);
    barra_->setValue(total > 0 ? int(PASOS * hecho / total) : 0);
    QApplication::processEvents(cancelable_ ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
    pintada_.start();
    return !cancelado_;
}
