// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/emblema.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

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
