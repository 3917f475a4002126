// SPDX-License-Identifier: GPL-3.0-or-later
// The search in a page of the manual: accents and case count for nothing.
#pragma once

#include <QList>
#include <QString>

/// A part of a text.
struct Tramo
{
    int desde;
    int largo;
};

/// Where the words of `buscado` stand in the text, each for itself.
[[nodiscard]] QList<Tramo> apariciones(const QString& texto, const QString& buscado);

struct LineaHallada
{
    int posicion;      ///< of the first word found
    QString contexto;  ///< the line around it
};

/// The lines of the text that have all words of `buscado`; none for one of less than two letters.
[[nodiscard]] QList<LineaHallada> lineas_con(const QString& texto, const QString& buscado);
