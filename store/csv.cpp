// SPDX-License-Identifier: GPL-3.0-or-later

#include "csv.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

LectorCSV::LectorCSV(const QString& ruta) : archivo_(ruta)
{
    if (!archivo_.open(QIODevice::ReadOnly))
        throw std::runtime_error((u"No se puede leer "_s + ruta).toStdString());
}

std::optional<FilaCSV> LectorCSV::siguiente()
{
    if (archivo_.atEnd())
        return {};
    FilaCSV campos{{{}, leidas_ + 1, 1}};
    do {
        QString texto = QString::fromUtf8(archivo_.readLine());
        ++leidas_;
        while (!citado_ && (texto.endsWith(u'\n') || texto.endsWith(u'\r')))
            texto.chop(1);
        for (qsizetype i = 0; i < texto.size(); ++i) {
            const QChar c = texto[i];
            if (citado_ && c == u'"' && i + 1 < texto.size() && texto[i + 1] == u'"')
                campos.back().texto += texto[++i];
            else if (c == u'"')
                citado_ = !citado_;
            else if (c == u',' && !citado_)
                campos << CampoCSV{{}, leidas_, int(i) + 2};
            else if (citado_ || (c != u'\n' && c != u'\r'))
                campos.back().texto += c;
        }
    } while (citado_ && !archivo_.atEnd());
    return campos;
}
