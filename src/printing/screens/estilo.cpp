// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/estilo.h"

#include "printing/screens/letra.h"
#include "printing/screens/lineas_texto.h"

using namespace Qt::StringLiterals;

namespace estilo {

namespace {

constexpr double PROPORCION_EMBLEMA = 17.0 / 14;
constexpr double SOBRE_REGLA = 0.8;  // white above a rule, and below it
constexpr double ENTRE_CAMPOS = 2;

void regla_fina(Pagina& p, double y)
{
    p.linea(MARGEN, y, MARGEN + ANCHO_UTIL, y, REGLA_FINA);
}

}  // namespace

Banda encabezado(const QString& titulo, const QStringList& derecha, const Medidas& m)
{
    Banda b;
    Pagina& p = b.contenido;
    p.emblemas.emplace_back(MARGEN, 0, m.emblema, m.emblema * PROPORCION_EMBLEMA);
    const auto linea = [&](const LineaEncabezado& l, const QString& texto, bool negrita) {
        p.ajustado({MARGEN + m.textos, l.y, m.anchoTextos, alto_linea(l.puntos)}, texto, l.puntos,
                   Alineacion::izquierda, negrita);
    };
    linea(m.autoridad, u"PROVINCIA DE MARVEN - DIRECCIÓN GENERAL DE RENTAS"_s, false);
    linea(m.titulo, titulo, true);
    linea(m.impuesto, u"Impuesto de Sellos - Agentes de Retención - Escribanos"_s, false);
    const double lado = m.textos + m.anchoTextos;
    const double fila = alto_linea(m.lados) * 1.2;
    double y = 0;
    for (const QString& texto : derecha) {
        p.ajustado({MARGEN + lado, y, ANCHO_UTIL - lado, fila}, texto, m.lados, Alineacion::derecha, y == 0);
        y += fila;
    }
    p.linea(MARGEN, m.regla, MARGEN + ANCHO_UTIL, m.regla, REGLA_GRUESA);
    b.alto = m.regla + SOBRE_REGLA;
    return b;
}

void campo(Pagina& p, double x, double y, double ancho, const QString& titulo, const QString& valor, const Medidas& m)
{
    const double rotulo = alto_linea(m.rotulo);
    p.ajustado({MARGEN + x, y, ancho, rotulo}, titulo, m.rotulo);
    p.ajustado({MARGEN + x, y + rotulo, ancho, alto_linea(m.dato)}, valor, m.dato, Alineacion::izquierda, true);
}

Banda fila_de_casillas(std::span<const Casilla> casillas)
{
    Banda b;
    const double rotulo = alto_linea(HOJA.rotulo);
    double alto = 0;
    for (const Casilla& c : casillas) {
        const double ancho = c.ancho - ENTRE_CAMPOS;
        b.contenido.ajustado({MARGEN + c.x, SOBRE_REGLA, ancho, rotulo}, c.titulo, HOJA.rotulo);
        double y = SOBRE_REGLA + rotulo;
        for (const QString& linea : en_lineas(c.valor, ancho, HOJA.dato, true)) {
            b.contenido.texto({MARGEN + c.x, y, ancho, alto_linea(HOJA.dato)}, linea, HOJA.dato, Alineacion::izquierda,
                              true);
            y += alto_linea(HOJA.dato);
        }
        alto = std::max(alto, y);
    }
    b.alto = alto + SOBRE_REGLA;
    regla_fina(b.contenido, b.alto);
    return b;
}

void campo_largo(std::vector<Banda>& bandas, const QString& titulo, const QString& texto)
{
    const auto rotulo = [](const QString& t) {
        Banda b;
        b.contenido.texto({MARGEN, SOBRE_REGLA, ANCHO_UTIL, alto_linea(HOJA.rotulo)}, t, HOJA.rotulo);
        b.alto = SOBRE_REGLA + alto_linea(HOJA.rotulo);
        return b;
    };
    bandas.push_back(rotulo(titulo));
    const QStringList lineas = en_lineas(texto, ANCHO_UTIL, HOJA.dato);
    bandas.back().conLaSiguiente = !lineas.isEmpty();
    const auto continuacion = std::make_shared<const Banda>(rotulo(titulo + u" (continuación)"_s));
    for (const QString& linea : lineas) {
        Banda renglon;
        renglon.contenido.texto({MARGEN, 0, ANCHO_UTIL, alto_linea(HOJA.dato)}, linea, HOJA.dato);
        renglon.alto = alto_linea(HOJA.dato);
        renglon.alAbrir = continuacion;
        bandas.push_back(std::move(renglon));
    }
    // The rule goes with the last line.
    Banda& ultima = bandas.back();
    ultima.alto += SOBRE_REGLA;
    regla_fina(ultima.contenido, ultima.alto);
}

}  // namespace estilo
