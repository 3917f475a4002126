// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/archivos_disco.h"

#include <QFile>

#include <cstdio>

using namespace Qt::StringLiterals;

bool borrar_archivo(const QString& archivo)
{
    QFile f(archivo);
    f.setPermissions(f.permissions() | QFile::WriteOwner);
    return f.remove();
}

bool copiar_archivo(const QString& de, const QString& a)
{
    const QString aparte = a + u".nuevo"_s;
    QFile::remove(aparte);
    if (!QFile::copy(de, aparte))
        return false;
    QFile::setPermissions(aparte, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    if (std::rename(QFile::encodeName(aparte).constData(), QFile::encodeName(a).constData()) == 0)
        return true;
    QFile::remove(aparte);
    return false;
}
