// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/preferencias.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

const QString ULTIMA_CARPETA = u"emision/carpeta"_s;

QString archivo()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + u"/preferencias.ini"_s;
}

}  // namespace

QString ultima_carpeta()
{
    const QString ultima = QSettings(archivo(), QSettings::IniFormat).value(ULTIMA_CARPETA).toString();
    if (!ultima.isEmpty() && QDir(ultima).exists())
        return ultima;
    const QString documentos = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(documentos).exists() ? documentos : QDir::homePath();
}

void recordar_carpeta(const QString& carpeta)
{
    QSettings(archivo(), QSettings::IniFormat).setValue(ULTIMA_CARPETA, carpeta);
}
