// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/mensajes.h"

#include "widgets/ventana_progreso.h"

#include <QMessageBox>

using namespace Qt::StringLiterals;

namespace {

QMessageBox::Icon icono_de(Icono icono)
{
    switch (icono) {
    case Icono::informacion: return QMessageBox::Information;
    case Icono::exclamacion: return QMessageBox::Warning;
    case Icono::pregunta: return QMessageBox::Question;
    case Icono::critico: return QMessageBox::Critical;
    case Icono::ninguno: break;
    }
    return QMessageBox::NoIcon;
}

int mostrar(QWidget* padre, const Mensaje& m, QMessageBox::StandardButtons botones)
{
    const QString titulo = m.titulo.isEmpty() ? u"VEDRA-RTN"_s : m.titulo;
    QMessageBox caja(icono_de(m.icono), titulo, m.texto, botones, padre);
    caja.setTextFormat(Qt::PlainText);
    if (!m.detalles.isEmpty())
        caja.setDetailedText(m.detalles);
    return caja.exec();
}

}  // namespace

int DialogoPantalla::avisos_ = 0;

DialogoPantalla::DialogoPantalla(QWidget* padre) : padre_(padre) {}

DialogoPantalla::~DialogoPantalla() = default;

void DialogoPantalla::progresar(const QString& que, qint64 hecho, qint64 total)
{
    if (!progreso_)
        progreso_ = std::make_unique<VentanaProgreso>(padre_);
    progreso_->avanzar(que, hecho, total);
}

void DialogoPantalla::avisar(const Mensaje& mensaje)
{
    progreso_.reset();
    ++avisos_;
    mostrar(padre_, mensaje, QMessageBox::Ok);
}

bool DialogoPantalla::preguntar(const Mensaje& mensaje)
{
    progreso_.reset();
    return mostrar(padre_, mensaje, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}
