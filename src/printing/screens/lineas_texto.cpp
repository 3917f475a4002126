// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/lineas_texto.h"

#include "printing/screens/letra.h"

using namespace Qt::StringLiterals;

QStringList en_lineas(const QString& texto, double ancho, double puntos, bool negrita)
{
    Letra& medidas = letra(puntos, negrita);
    QStringList lineas;
    QString linea;
    double usado = 0;
    const double limite = ancho * UNIDADES;
    const double blanco = medidas.ancho(QChar(u' '));
    const auto cerrar = [&] {
        if (!linea.isEmpty())
            lineas << linea;
        linea.clear();
        usado = 0;
    };
    const auto palabras = texto.split(u' ', Qt::SkipEmptyParts);
    for (QString palabra : palabras) {
        double largo = medidas.ancho(palabra);
        if (!linea.isEmpty() && usado + blanco + largo > limite)
            cerrar();
        while (largo > limite) {
            qsizetype n = palabra.size() - 1;
            while (n > 1 && medidas.ancho(QStringView(palabra).left(n)) > limite)
                --n;
            lineas << palabra.left(n);
            palabra.remove(0, n);
            largo = medidas.ancho(palabra);
        }
        usado += (linea.isEmpty() ? 0 : blanco) + largo;
        linea += (linea.isEmpty() ? QString() : u" "_s) + palabra;
    }
    cerrar();
    return lineas;
}

std::vector<Pagina> lineas_tituladas(const QString& titulo, const QString& texto, const Titulado& como)
{
    const double propia = titulo.isEmpty() ? 0 : ancho_texto(titulo, como.puntos, como.tituloNegrita) + 1.5;
    const double sangria = como.sangria < 0 ? propia : como.sangria;
    const double alto = alto_linea(como.puntos);
    QStringList lineas = en_lineas(texto, como.ancho - sangria, como.puntos, como.textoNegrita);
    if (lineas.isEmpty())
        lineas << QString();
    std::vector<Pagina> paginas(size_t(lineas.size()));
    paginas.front().texto({como.x, 0, sangria, alto}, titulo, como.puntos, Alineacion::izquierda, como.tituloNegrita);
    for (size_t i = 0; i < paginas.size(); ++i)
        paginas[i].texto({como.x + sangria, 0, como.ancho - sangria, alto}, lineas[qsizetype(i)], como.puntos,
                         Alineacion::izquierda, como.textoNegrita);
    return paginas;
}
