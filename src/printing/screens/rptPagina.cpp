// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/rptPagina.h"

#include "printing/screens/letra.h"

namespace {

// A text is not set smaller than this.
constexpr double PUNTOS_MINIMOS = 3.25;

}  // namespace

void Pagina::texto(QRectF lugar, const QString& t, double puntos, Alineacion alineacion, bool negrita)
{
    if (!t.isEmpty())
        textos.push_back({lugar, t, puntos, negrita, alineacion});
}

void Pagina::ajustado(QRectF lugar, const QString& texto_, double puntos, Alineacion alineacion, bool negrita)
{
    while (puntos > PUNTOS_MINIMOS && ancho_texto(texto_, puntos, negrita) > lugar.width())
        puntos -= 0.25;
    texto(lugar, texto_, puntos, alineacion, negrita);
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
