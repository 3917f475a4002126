// SPDX-License-Identifier: GPL-3.0-or-later

#include "application/screens/rotulo_ruta.h"

RotuloRuta::RotuloRuta(const QString& titulo, const QString& ruta) : QLabel(titulo + ruta), titulo_(titulo), ruta_(ruta)
{
    setTextFormat(Qt::PlainText);
    setToolTip(ruta);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void RotuloRuta::resizeEvent(QResizeEvent* evento)
{
    QLabel::resizeEvent(evento);
    const QFontMetrics letra = fontMetrics();
    const int lugar = contentsRect().width() - letra.horizontalAdvance(titulo_);
    setText(titulo_ + letra.elidedText(ruta_, Qt::ElideMiddle, lugar));
}
