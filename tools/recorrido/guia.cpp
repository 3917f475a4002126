// SPDX-License-Identifier: GPL-3.0-or-later

#include "recorrido/guia.h"

#include "manejo/manejo.h"
#include "recorrido/revision.h"

#include <QApplication>
#include <QPixmap>

#include <cstdio>

using namespace Qt::StringLiterals;

void Guia::paso(const QString& titulo, const std::function<void()>& accion)
{
    ++pasos_;
    std::printf("%3d. %s\n", pasos_, qUtf8Printable(titulo));
    std::fflush(stdout);
    try {
        accion();
    } catch (const Inesperado&) {
        foto(u"falla"_s);
        throw;
    }
}

void Guia::foto(const QString& nombre)
{
    foto(principal_, nombre);
    imagenes_.tomar(nombre, principal_);
    if (revisa_)
        for (const QString& falta : revisar_ventanas(principal_))
            if (!faltas_.contains(falta))
                faltas_ << falta;
}

void Guia::foto(QWidget* ventana, const QString& nombre)
{
    QApplication::processEvents();
    ++fotos_;
    const QString archivo = u"%1/%2-%3.png"_s.arg(carpeta_).arg(fotos_, 2, 10, QLatin1Char('0')).arg(nombre);
    if (!ventana->grab().save(archivo))
        throw Inesperado(u"no se pudo guardar "_s + archivo);
}
