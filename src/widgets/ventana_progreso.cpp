// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/ventana_progreso.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int ESPERA_MS = 500;
constexpr int ENTRE_PINTADAS_MS = 60;
constexpr int ANCHO = 420;
constexpr int PASOS = 1000;

}  // namespace

VentanaProgreso::VentanaProgreso(QWidget* padre) : padre_(padre)
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
    ventana_->show();
}

void VentanaProgreso::avanzar(const QString& que, qint64 hecho, qint64 total)
{
    if (desde_.elapsed() < ESPERA_MS || (pintada_.isValid() && pintada_.elapsed() < ENTRE_PINTADAS_MS))
        return;
    if (!ventana_)
        abrir();
    rotulo_->setText(que);
    barra_->setValue(total > 0 ? int(PASOS * hecho / total) : 0);
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    pintada_.start();
}
