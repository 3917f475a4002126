// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/carpetas_dj.h"

#include "core/modGlobales.h"
#include "filing/archivos_disco.h"

#include <QDir>

using namespace Qt::StringLiterals;

QString carpeta_dj(const QString& nro)
{
    return carpeta_programa() + u"/data/"_s + nro;
}

QString carpeta_testimonios(const QString& nro)
{
    return carpeta_dj(nro) + u"/testimonios"_s;
}

QString vaciar_testimonios(const QString& nro)
{
    const QString carpeta = carpeta_testimonios(nro);
    QString primero;
    const auto nombres = QDir(carpeta).entryList(QDir::Files | QDir::Hidden | QDir::System);
    for (const QString& nombre : nombres)
        if (const QString archivo = carpeta + u'/' + nombre; !borrar_archivo(archivo) && primero.isEmpty())
            primero = archivo;
    return primero;
}
