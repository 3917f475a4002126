// SPDX-License-Identifier: GPL-3.0-or-later

#include "csv.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

LectorCSV::LectorCSV(const QString& ruta) : archivo_(ruta)
{
    if (!archivo_.open(QIODevice::ReadOnly))
        throw std::runtime_error((u"No se puede leer "_s + ruta).toStdString());
}

std::optional<QStringList> LectorCSV::siguiente()
{
    if (archivo_.atEnd())
        return {};
    linea_ = leidas_ + 1;
    QStringList campos{QString()};
    bool citado = false;
    do {
        QString texto = QString::fromUtf8(archivo_.readLine());
        ++leidas_;
        while (!citado && (texto.endsWith(u'\n') || texto.endsWith(u'\r')))
            texto.chop(1);
        for (qsizetype i = 0; i < texto.size(); ++i) {
            const QChar c = texto[i];
            if (citado && c == u'"' && i + 1 < texto.size() && texto[i + 1] == u'"')
                campos.back() += texto[++i];
            else if (c == u'"')
                citado = !citado;
            else if (c == u',' && !citado)
                campos << QString();
            else if (citado || (c != u'\n' && c != u'\r'))
                campos.back() += c;
        }
    } while (citado && !archivo_.atEnd());
    return campos;
}
