// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/letras.h"

#include <QDir>
#include <QFontDatabase>

using namespace Qt::StringLiterals;

void iniciar_letras()
{
    static const bool hecho = [] {
        const QDir propias(u":/letras"_s);
        for (const QString& archivo : propias.entryList(QDir::Files))
            QFontDatabase::addApplicationFont(propias.filePath(archivo));
        return true;
    }();
    (void)hecho;
}
