// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/preferencias.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

QString fijado;

QString archivo()
{
    return !fijado.isEmpty()
               ? fijado
               : QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + u"/preferencias.ini"_s;
}

}  // namespace

void fijar_preferencias(const QString& archivo)
{
    fijado = archivo;
}

QVariant preferencia(const QString& clave)
{
    return QSettings(archivo(), QSettings::IniFormat).value(clave);
}

void recordar(const QString& clave, const QVariant& valor)
{
    QSettings(archivo(), QSettings::IniFormat).setValue(clave, valor);
}

QString ultima_carpeta(const QString& de)
{
    const QString ultima = preferencia(de + u"/carpeta"_s).toString();
    if (!ultima.isEmpty() && QDir(ultima).exists())
        return ultima;
    const QString documentos = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(documentos).exists() ? documentos : QDir::homePath();
}

void recordar_carpeta(const QString& de, const QString& archivo_elegido)
{
    recordar(de + u"/carpeta"_s, QFileInfo(archivo_elegido).absolutePath());
}
