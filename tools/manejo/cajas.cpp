// SPDX-License-Identifier: GPL-3.0-or-later

#include "manejo/cajas.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int MIRADA_MS = 2;

// Whether somebody already answers the boxes.
int vigias = 0;

QString describir(const QMessageBox* caja)
{
    return u"«%1» («%2»)"_s.arg(caja->text(), caja->windowTitle());
}

// What is wrong with a box, empty when it is the one expected.
QString comparar(const QMessageBox* caja, const CajaEsperada& e)
{
    const bool bien_texto = e.exacto ? caja->text() == e.texto : caja->text().startsWith(e.texto);
    const bool bien_titulo = e.titulo.isNull() || caja->windowTitle() == e.titulo;
    const bool bien_icono = e.icono < 0 || caja->icon() == e.icono;
    if (bien_texto && bien_titulo && bien_icono)
        return {};
    return u"vino la caja %1 y se esperaba «%2» («%3»)"_s.arg(describir(caja), e.texto, e.titulo);
}

}  // namespace

Cajas::Cajas(const QList<CajaEsperada>& cajas, const QStringList& archivos) : pendientes_(cajas), archivos_(archivos)
{
    QObject::connect(&reloj_, &QTimer::timeout, &reloj_, [this] { mirar(); });
    reloj_.start(MIRADA_MS);
}

void Cajas::elegirArchivo(QFileDialog* dialogo)
{
    if (archivos_.isEmpty() && !vista_)
        falla_ = u"vino un diálogo de archivos que nadie esperaba: "_s + dialogo->windowTitle();
    const QString archivo = archivos_.isEmpty() ? QString() : vista_ ? archivos_.constFirst() : archivos_.takeFirst();
    auto* nombre = dialogo->findChild<QLineEdit*>(u"fileNameEdit"_s);
    if (archivo.isEmpty() || !nombre) {
        dialogo->reject();
        return;
    }
    nombre->setText(archivo);
    QTest::keyClick(nombre, Qt::Key_Return);
}

void Cajas::mirar()
{
    if (auto* dialogo = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        dialogo && dialogo->isVisible()) {
        elegirArchivo(dialogo);
        return;
    }
    auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!caja || !caja->isVisible())
        return;
    bool si = true;
    if (vista_) {
        vista_(caja->text());
    } else if (pendientes_.isEmpty()) {
        falla_ = u"vino una caja que nadie esperaba: "_s + describir(caja);
    } else {
        const CajaEsperada esperada = pendientes_.takeFirst();
        if (const QString falla = comparar(caja, esperada); !falla.isEmpty() && falla_.isEmpty())
            falla_ = falla;
        si = esperada.si;
    }
    auto* boton = caja->button(si ? QMessageBox::Yes : QMessageBox::No);
    if (!boton)
        boton = caja->button(QMessageBox::Ok);
    QTest::mouseClick(boton, Qt::LeftButton);
}

Cajas::Turno::Turno()
{
    ++vigias;
}

Cajas::Turno::~Turno()
{
    --vigias;
}

void Cajas::aceptando(const std::function<void()>& accion, const std::function<void(const QString&)>& vista,
                      const QString& archivo)
{
    const Turno turno;
    Cajas c({}, archivo.isEmpty() ? QStringList() : QStringList{archivo});
    c.vista_ = vista;
    accion();
}

void Cajas::durante(const QList<CajaEsperada>& cajas, const std::function<void()>& accion, const QStringList& archivos)
{
    const Turno turno;
    Cajas c(cajas, archivos);
    accion();
    QApplication::processEvents();
    c.reloj_.stop();
    if (!c.falla_.isEmpty())
        throw Inesperado(c.falla_);
    if (!c.archivos_.isEmpty())
        throw Inesperado(u"no vino el diálogo para "_s + c.archivos_.constFirst());
    if (!c.pendientes_.isEmpty())
        throw Inesperado(u"no vino la caja «%1»"_s.arg(c.pendientes_.constFirst().texto));
}

void Cajas::vigilar(const std::function<void()>& accion)
{
    if (vigias > 0)
        accion();
    else
        durante({}, accion);
}
