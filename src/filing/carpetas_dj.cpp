// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/carpetas_dj.h"

#include "core/modGlobales.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

QString carpeta_de_todas()
{
    return carpeta_programa() + u"/data"_s;
}

}  // namespace

QString carpeta_dj(const QString& nro)
{
    return carpeta_de_todas() + u'/' + nro;
}

QString carpeta_testimonios(const QString& nro)
{
    return carpeta_dj(nro) + u"/testimonios"_s;
}

void hacer_carpeta_dj(const QString& nro)
{
    carpeta_privada(carpeta_de_todas());
    carpeta_privada(carpeta_dj(nro));
}

void hacer_carpeta_testimonios(const QString& nro)
{
    hacer_carpeta_dj(nro);
    carpeta_privada(carpeta_testimonios(nro));
}

std::optional<ErrorDisco> vaciar_testimonios(const QString& nro)
{
    const QString carpeta = carpeta_testimonios(nro);
    std::optional<ErrorDisco> primera;
    const auto nombres = QDir(carpeta).entryList(QDir::Files | QDir::Hidden | QDir::System);
    for (const QString& nombre : nombres) {
        try {
            borrar_archivo(carpeta + u'/' + nombre);
        } catch (const ErrorDisco& e) {
            if (!primera)
                primera = e;
        }
    }
    return primera;
}
