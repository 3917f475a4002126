// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/rptPagina.h"

#include <zint.h>

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QPainter>
#include <QPainterPath>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

// A text is not set smaller than this.
constexpr double PUNTOS_MINIMOS = 3.25;

// Texts are laid out in hundredths of a millimetre, so that a font measures the same everywhere.
constexpr double UNIDADES = 100;
constexpr double MM_POR_PUNTO = 25.4 / 72;
constexpr double INTERLINEA = 1.25;

// A font with the widths of the letters that were measured: without kerning a text is as wide as
// its letters, and adding them up is far cheaper than shaping the text.
struct Letra
{
    QFont fuente;
    double subida = 0;
    QHash<char16_t, double> anchos;

    double ancho(QChar c)
    {
        auto it = anchos.find(c.unicode());
        if (it == anchos.end())
            it = anchos.insert(c.unicode(), QFontMetricsF(fuente).horizontalAdvance(c));
        return *it;
    }
    double ancho(QStringView texto)
    {
        double suma = 0;
        for (const QChar c : texto)
            suma += ancho(c);
        return suma;
    }
};

Letra& letra(double puntos, bool negrita)
{
    static QHash<int, Letra> letras;
    const int clave = int(puntos * 100) * 2 + negrita;
    auto it = letras.find(clave);
    if (it == letras.end()) {
        QFont f(u"DejaVu Sans"_s);
        f.setStyleHint(QFont::SansSerif);
        f.setPixelSize(int(puntos * MM_POR_PUNTO * UNIDADES + 0.5));
        f.setBold(negrita);
        f.setHintingPreference(QFont::PreferNoHinting);
        f.setKerning(false);
        it = letras.insert(clave, {f, QFontMetricsF(f).ascent(), {}});
    }
    return *it;
}

// The emblem drawn for this program: a shield with a ship under a sun.
void pintar_emblema(QPainter& p, const QRectF& r)
{
    const auto punto = [&r](double x, double y) { return QPointF(r.left() + r.width() * x, r.top() + r.height() * y); };
    QPainterPath escudo;
    escudo.moveTo(punto(0.08, 0.05));
    escudo.lineTo(punto(0.92, 0.05));
    escudo.lineTo(punto(0.92, 0.55));
    escudo.quadTo(punto(0.9, 0.82), punto(0.5, 0.97));
    escudo.quadTo(punto(0.1, 0.82), punto(0.08, 0.55));
    escudo.closeSubpath();
    p.setPen(QPen(Qt::black, r.width() * 0.03));
    p.setBrush(Qt::NoBrush);
    p.drawPath(escudo);
    p.drawEllipse(punto(0.5, 0.26), r.width() * 0.1, r.width() * 0.1);
    for (int i = 0; i < 8; ++i) {
        const double a = i * 3.14159265 / 4;
        p.drawLine(punto(0.5, 0.26) + QPointF(std::cos(a), std::sin(a)) * r.width() * 0.13,
                   punto(0.5, 0.26) + QPointF(std::cos(a), std::sin(a)) * r.width() * 0.18);
    }
    QPainterPath casco;
    casco.moveTo(punto(0.25, 0.62));
    casco.lineTo(punto(0.75, 0.62));
    casco.lineTo(punto(0.65, 0.72));
    casco.lineTo(punto(0.35, 0.72));
    casco.closeSubpath();
    p.fillPath(casco, Qt::black);
    p.drawLine(punto(0.5, 0.62), punto(0.5, 0.44));
    p.drawPolyline(QPolygonF{punto(0.52, 0.45), punto(0.66, 0.58), punto(0.52, 0.58)});
    for (const double y : {0.78, 0.84}) {
        QPainterPath ola;
        ola.moveTo(punto(0.26, y));
        for (int i = 0; i < 4; ++i)
            ola.quadTo(punto(0.26 + 0.12 * i + 0.06, y + (i % 2 ? 0.03 : -0.03)), punto(0.26 + 0.12 * (i + 1), y));
        p.drawPath(ola);
    }
}

}  // namespace

void Pagina::texto(QRectF lugar, const QString& t, double puntos, Alineacion alineacion, bool negrita)
{
    if (!t.isEmpty())
        textos.push_back({lugar, t, puntos, negrita, alineacion});
}

void Pagina::linea(double x1, double y1, double x2, double y2, double grosor, bool cortada)
{
    lineas.push_back({QLineF(x1, y1, x2, y2), grosor, cortada});
}

void Pagina::agregar(const Pagina& otra, double abajo)
{
    for (TextoImpreso t : otra.textos) {
        t.lugar.translate(0, abajo);
        textos.push_back(std::move(t));
    }
    for (LineaImpresa l : otra.lineas) {
        l.linea.translate(0, abajo);
        lineas.push_back(l);
    }
    for (const QRectF& b : otra.barras)
        barras.push_back(b.translated(0, abajo));
    for (const QRectF& e : otra.emblemas)
        emblemas.push_back(e.translated(0, abajo));
}

double alto_linea(double puntos)
{
    return puntos * MM_POR_PUNTO * INTERLINEA;
}

double ancho_texto(const QString& texto, double puntos, bool negrita)
{
    return letra(puntos, negrita).ancho(texto) / UNIDADES;
}

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

void Pagina::ajustado(QRectF lugar, const QString& texto_, double puntos, Alineacion alineacion, bool negrita)
{
    while (puntos > PUNTOS_MINIMOS && ancho_texto(texto_, puntos, negrita) > lugar.width())
        puntos -= 0.25;
    texto(lugar, texto_, puntos, alineacion, negrita);
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

void pintar_pagina(QPainter& p, const Pagina& pagina, double escala)
{
    p.save();
    p.scale(escala / UNIDADES, escala / UNIDADES);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.setPen(Qt::black);
    double puntos = -1;
    bool negrita = false;
    Letra* actual = nullptr;
    for (const TextoImpreso& t : pagina.textos) {
        if (t.puntos != puntos || t.negrita != negrita) {
            puntos = t.puntos;
            negrita = t.negrita;
            actual = &letra(puntos, negrita);
            p.setFont(actual->fuente);
        }
        double x = t.lugar.left() * UNIDADES;
        if (t.alineacion != Alineacion::izquierda) {
            const double sobra = t.lugar.width() * UNIDADES - actual->ancho(t.texto);
            x += t.alineacion == Alineacion::derecha ? sobra : sobra / 2;
        }
        p.drawText(QPointF(x, t.lugar.top() * UNIDADES + actual->subida), t.texto);
    }
    for (const LineaImpresa& l : pagina.lineas) {
        p.setPen(QPen(Qt::black, l.grosor * UNIDADES, l.cortada ? Qt::DashLine : Qt::SolidLine, Qt::FlatCap));
        p.drawLine(QLineF(l.linea.p1() * UNIDADES, l.linea.p2() * UNIDADES));
    }
    for (const QRectF& b : pagina.barras)
        p.fillRect(QRectF(b.topLeft() * UNIDADES, b.size() * UNIDADES), Qt::black);
    for (const QRectF& e : pagina.emblemas)
        pintar_emblema(p, QRectF(e.topLeft() * UNIDADES, e.size() * UNIDADES));
    p.restore();
}

std::vector<QRectF> barras_de(const QString& texto, Simbologia s, double modulo, double alto, double& ancho)
{
    ancho = 0;
    const std::unique_ptr<zint_symbol, void (*)(zint_symbol*)> simbolo(ZBarcode_Create(), ZBarcode_Delete);
    simbolo->symbology = s == Simbologia::intercalado2de5 ? BARCODE_C25INTER : BARCODE_CODE128;
    const QByteArray datos = texto.toLatin1();
    if (datos.isEmpty()
        || ZBarcode_Encode(simbolo.get(), reinterpret_cast<const unsigned char*>(datos.constData()), int(datos.size()))
               >= ZINT_ERROR)
        return {};
    ancho = simbolo->width * modulo;
    const auto negro = [&](int i) { return (simbolo->encoded_data[0][i / 8] >> (i % 8)) & 1; };
    std::vector<QRectF> barras;
    for (int i = 0; i < simbolo->width; ++i) {
        if (!negro(i))
            continue;
        const int desde = i;
        while (i + 1 < simbolo->width && negro(i + 1))
            ++i;
        barras.emplace_back(desde * modulo, 0, (i + 1 - desde) * modulo, alto);
    }
    return barras;
}
