// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/mensajes.h"

#include "widgets/ventana_progreso.h"

#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>

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

constexpr qsizetype LARGO_A_LA_VISTA = 1500;
constexpr QSize LISTA(560, 280);

// A text that would outgrow the screen stands in a field that scrolls, in the place of the box's label.
void hacerDesplazable(QMessageBox& caja, const QString& texto)
{
    auto* rotulo = caja.findChild<QLabel*>(u"qt_msgbox_label"_s);
    auto* rejilla = qobject_cast<QGridLayout*>(caja.layout());
    if (!rotulo || !rejilla)
        return;
    int fila = 0, columna = 0, filas = 0, columnas = 0;
    rejilla->getItemPosition(rejilla->indexOf(rotulo), &fila, &columna, &filas, &columnas);
    auto* campo = new QPlainTextEdit(texto);
    campo->setObjectName(u"texto"_s);
    campo->setReadOnly(true);
    campo->setFrameShape(QFrame::NoFrame);
    campo->viewport()->setAutoFillBackground(false);
    campo->setFixedSize(LISTA);
    rotulo->hide();
    rejilla->removeWidget(rotulo);
    rejilla->addWidget(campo, fila, columna, filas, columnas);
}

int mostrar(QWidget* padre, const Mensaje& m, QMessageBox::StandardButtons botones)
{
    const QString titulo = m.titulo.isEmpty() ? u"VEDRA-RTN"_s : m.titulo;
    QMessageBox caja(icono_de(m.icono), titulo, m.texto, botones, padre);
    caja.setTextFormat(Qt::PlainText);
    if (!m.detalles.isEmpty())
        caja.setDetailedText(m.detalles);
    if (m.texto.size() > LARGO_A_LA_VISTA)
        hacerDesplazable(caja, m.texto);
    for (const auto& [boton, texto] : {std::pair(QMessageBox::Yes, m.si), std::pair(QMessageBox::No, m.no)})
        if (!texto.isEmpty())
            caja.button(boton)->setText(texto);
    // Enter is not what ends a work.
    if (!m.no.isEmpty())
        caja.setDefaultButton(QMessageBox::No);
    return caja.exec();
}

}  // namespace

int DialogoPantalla::avisos_ = 0;

DialogoPantalla::DialogoPantalla(QWidget* padre) : padre_(padre) {}

DialogoPantalla::~DialogoPantalla() = default;

void DialogoPantalla::progresar(const QString& que, qint64 hecho, qint64 total)
{
    (void)progreso(false).avanzar(que, hecho, total);
}

bool DialogoPantalla::seguir(const QString& que, qint64 hecho, qint64 total)
{
    return progreso(true).avanzar(que, hecho, total);
}

void DialogoPantalla::ocultarProgreso()
{
    progreso_.reset();
}

VentanaProgreso& DialogoPantalla::progreso(bool cancelable)
{
    if (!progreso_ || progreso_->cancelable() != cancelable)
        progreso_ = std::make_unique<VentanaProgreso>(padre_, cancelable);
    return *progreso_;
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
