// SPDX-License-Identifier: GPL-3.0-or-later

#include "application/buscar_manual.h"

#include <QStringList>

namespace {

constexpr qsizetype MINIMO = 2;
constexpr int CONTEXTO = 110;
constexpr int CONTEXTO_ANTES = 30;

// As long as the text, so that places in one are places in the other.
QString plegar(const QString& texto)
{
    QString llano;
    llano.reserve(texto.size());
    for (const QChar c : texto) {
        const QString partes = c.decomposition();
        llano += (partes.isEmpty() ? c : partes.front()).toLower();
    }
    return llano;
}

QStringList palabras_de(const QString& buscado)
{
    return plegar(buscado.simplified()).split(u' ', Qt::SkipEmptyParts);
}

QString contexto_de(const QString& linea, int posicion)
{
    const int desde = linea.size() <= CONTEXTO ? 0 : std::max(0, posicion - CONTEXTO_ANTES);
    const QString parte = linea.mid(desde, CONTEXTO);
    return (desde > 0 ? QStringLiteral("…") : QString()) + parte.trimmed()
           + (desde + CONTEXTO < linea.size() ? QStringLiteral("…") : QString());
}

}  // namespace

QList<Tramo> apariciones(const QString& texto, const QString& buscado)
{
    const QString llano = plegar(texto);
    QList<Tramo> tramos;
    for (const QString& palabra : palabras_de(buscado))
        for (qsizetype i = llano.indexOf(palabra); i >= 0; i = llano.indexOf(palabra, i + palabra.size()))
            tramos << Tramo{int(i), int(palabra.size())};
    return tramos;
}

QList<LineaHallada> lineas_con(const QString& texto, const QString& buscado)
{
    const QStringList palabras = palabras_de(buscado);
    QList<LineaHallada> halladas;
    if (palabras.join(QString()).size() < MINIMO)
        return halladas;
    int desde = 0;
    for (const QString& linea : texto.split(u'\n')) {
        const QString llana = plegar(linea);
        const auto esta = [&llana](const QString& palabra) { return llana.contains(palabra); };
        if (std::all_of(palabras.begin(), palabras.end(), esta)) {
            const int lugar = int(llana.indexOf(palabras.constFirst()));
            halladas << LineaHallada{desde + lugar, contexto_de(linea, lugar)};
        }
        desde += int(linea.size()) + 1;
    }
    return halladas;
}
