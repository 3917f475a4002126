// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/pintar_pagina.h"

#include "printing/screens/emblema.h"
#include "printing/screens/letra.h"

#include <QPainter>

namespace {

void pintar_textos(QPainter& p, const std::vector<TextoImpreso>& textos)
{
    double puntos = -1;
    bool negrita = false;
    Letra* actual = nullptr;
    for (const TextoImpreso& t : textos) {
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
}

}  // namespace

void pintar_pagina(QPainter& p, const Pagina& pagina, double escala)
{
    p.save();
    p.scale(escala / UNIDADES, escala / UNIDADES);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.setPen(Qt::black);
    pintar_textos(p, pagina.textos);
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
