// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/rptPagina.h"

#include "printing/screens/letra.h"
#include "printing/screens/lineas_texto.h"

namespace {

// A text is not set smaller than this.
constexpr double PUNTOS_MINIMOS = 3.25;
// What lines may be higher than their place by rounding, in millimetres.
constexpr double HOLGURA = 0.01;

// From the top of a line to the base that its letters stand on.
double base(double puntos)
{
    return letra(puntos, false).subida / UNIDADES;
}

}  // namespace

void Pagina::texto(QRectF lugar, const QString& t, double puntos, Alineacion alineacion, bool negrita)
{
    if (!t.isEmpty())
        textos.push_back({lugar, t, puntos, negrita, alineacion});
}

void Pagina::ajustado(QRectF lugar, const QString& texto_, double puntos, Alineacion alineacion, bool negrita)
{
    const double pedidos = puntos;
    QStringList renglones = en_lineas(texto_, lugar.width(), puntos, negrita);
    // One line always has its place, however low that is.
    while (puntos > PUNTOS_MINIMOS && renglones.size() > 1
           && double(renglones.size()) * alto_linea(puntos) > lugar.height() + HOLGURA) {
        puntos -= 0.25;
        renglones = en_lineas(texto_, lugar.width(), puntos, negrita);
    }
    // A single line stands on the same base as its neighbours.
    double y = lugar.top() + (renglones.size() == 1 ? base(pedidos) - base(puntos) : 0);
    for (const QString& renglon : renglones) {
        texto({lugar.left(), y, lugar.width(), alto_linea(puntos)}, renglon, puntos, alineacion, negrita);
        y += alto_linea(puntos);
    }
}

void Pagina::marco(QRectF lugar, double grosor)
{
    linea(lugar.left(), lugar.top(), lugar.right(), lugar.top(), grosor);
    linea(lugar.left(), lugar.bottom(), lugar.right(), lugar.bottom(), grosor);
    linea(lugar.left(), lugar.top(), lugar.left(), lugar.bottom(), grosor);
    linea(lugar.right(), lugar.top(), lugar.right(), lugar.bottom(), grosor);
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
