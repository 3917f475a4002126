// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/letra.h"

#include "printing/screens/rptPagina.h"
#include "widgets/letras.h"

#include <QFontMetricsF>

using namespace Qt::StringLiterals;

namespace {

constexpr double MM_POR_PUNTO = MM_POR_PULGADA / 72;
constexpr double INTERLINEA = 1.25;

}  // namespace

double Letra::ancho(QChar c)
{
    auto it = anchos.find(c.unicode());
    if (it == anchos.end())
        it = anchos.insert(c.unicode(), QFontMetricsF(fuente).horizontalAdvance(c));
    return *it;
}

double Letra::ancho(QStringView texto)
{
    double suma = 0;
    for (const QChar c : texto)
        suma += ancho(c);
    return suma;
}

Letra& letra(double puntos, bool negrita)
{
    static QHash<int, Letra> letras;
    const int clave = int(puntos * 100) * 2 + negrita;
    auto it = letras.find(clave);
    if (it == letras.end()) {
        iniciar_letras();
        QFont f(LETRA_PROPIA.toString());
        f.setStyleHint(QFont::SansSerif);
        f.setPixelSize(int(puntos * MM_POR_PUNTO * UNIDADES + 0.5));
        f.setBold(negrita);
        f.setHintingPreference(QFont::PreferNoHinting);
        f.setKerning(false);
        // A spacing that nobody sees keeps letters from being joined to one: a text is as wide as its letters, and a
        // PDF's can be searched.
        f.setLetterSpacing(QFont::AbsoluteSpacing, 1.0 / 64);
        it = letras.insert(clave, {f, QFontMetricsF(f).ascent(), {}});
    }
    return *it;
}

double alto_linea(double puntos)
{
    return puntos * MM_POR_PUNTO * INTERLINEA;
}

double ancho_texto(const QString& texto, double puntos, bool negrita)
{
    return letra(puntos, negrita).ancho(texto) / UNIDADES;
}
