// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/ctlVistaPrevia.h"

#include "printing/screens/pintar_pagina.h"
#include "printing/screens/rptInforme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

namespace {

constexpr int SEPARACION = 12;
constexpr int PAGINAS_POR_VEZ = 20;

}  // namespace

ctlVistaPrevia::ctlVistaPrevia(QWidget* padre) : QAbstractScrollArea(padre)
{
    viewport()->setBackgroundRole(QPalette::Dark);
    setFocusPolicy(Qt::StrongFocus);
    connect(&resto_, &QTimer::timeout, this, &ctlVistaPrevia::seguir);
}

ctlVistaPrevia::~ctlVistaPrevia() = default;

double ctlVistaPrevia::altoPagina() const
{
    return ALTO_A4 * escala_ + SEPARACION;
}

double ctlVistaPrevia::anchoPagina() const
{
    return ANCHO_A4 * escala_ + 2 * SEPARACION;
}

void ctlVistaPrevia::mostrar(std::shared_ptr<Informe> informe)
{
    informe_ = std::move(informe);
    paginas_ = 0;
    verticalScrollBar()->setValue(0);
    contar();
    resto_.start();
}

// The first page is there at once; the others come a few at a time.
void ctlVistaPrevia::contar()
{
    while (informe_ && informe_->pagina(paginas_))
        if (++paginas_ % PAGINAS_POR_VEZ == 1)
            break;
    acomodar();
}

void ctlVistaPrevia::seguir()
{
    if (!informe_ || informe_->completo())
        resto_.stop();
    else
        contar();
}

void ctlVistaPrevia::fijarZoom(double zoom)
{
    ajuste_ = Ajuste::ninguno;
    escala_ = zoom * logicalDpiX() / MM_POR_PULGADA;
    acomodar();
}

void ctlVistaPrevia::ajustar(Ajuste ajuste)
{
    ajuste_ = ajuste;
    acomodar();
}

void ctlVistaPrevia::acomodar()
{
    const int actual = paginaActual();
    const QSize v = viewport()->size();
    if (ajuste_ == Ajuste::ancho)
        escala_ = std::max(0.5, (v.width() - 2.0 * SEPARACION) / ANCHO_A4);
    else if (ajuste_ == Ajuste::pagina)
        escala_ = std::max(0.5, (v.height() - 2.0 * SEPARACION) / ALTO_A4);
    const int alto = int(paginas_ * altoPagina()) + SEPARACION;
    verticalScrollBar()->setRange(0, std::max(0, alto - v.height()));
    verticalScrollBar()->setPageStep(v.height());
    verticalScrollBar()->setSingleStep(40);
    horizontalScrollBar()->setRange(0, std::max(0, int(anchoPagina()) - v.width()));
    horizontalScrollBar()->setPageStep(v.width());
    viewport()->update();
    emit cambioPagina(actual, paginas_, !informe_ || informe_->completo());
}

int ctlVistaPrevia::paginaActual() const
{
    const int n = int((verticalScrollBar()->value() + viewport()->height() / 3) / altoPagina());
    return std::clamp(n, 0, std::max(0, paginas_ - 1));
}

void ctlVistaPrevia::irAPagina(int n)
{
    verticalScrollBar()->setValue(int(n * altoPagina()));
}

void ctlVistaPrevia::paintEvent(QPaintEvent*)
{
    QPainter p(viewport());
    if (!informe_)
        return;
    const int arriba = verticalScrollBar()->value();
    const double x = std::max<double>(SEPARACION, (viewport()->width() - ANCHO_A4 * escala_) / 2)
                     - horizontalScrollBar()->value();
    for (int n = int(arriba / altoPagina()); n < paginas_; ++n) {
        const double y = SEPARACION + n * altoPagina() - arriba;
        if (y > viewport()->height())
            break;
        const auto pagina = informe_->pagina(n);
        if (!pagina)
            break;
        p.fillRect(QRectF(x, y, ANCHO_A4 * escala_, ALTO_A4 * escala_), Qt::white);
        p.save();
        p.translate(x, y);
        pintar_pagina(p, *pagina, escala_);
        p.restore();
    }
}

void ctlVistaPrevia::resizeEvent(QResizeEvent* evento)
{
    QAbstractScrollArea::resizeEvent(evento);
    acomodar();
}

void ctlVistaPrevia::scrollContentsBy(int, int)
{
    viewport()->update();
    emit cambioPagina(paginaActual(), paginas_, !informe_ || informe_->completo());
}

void ctlVistaPrevia::wheelEvent(QWheelEvent* evento)
{
    if (!(evento->modifiers() & Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(evento);
        return;
    }
    const double zoom = escala_ * MM_POR_PULGADA / logicalDpiX();
    fijarZoom(std::clamp(zoom * (evento->angleDelta().y() > 0 ? 1.15 : 1 / 1.15), 0.2, 5.0));
}

void ctlVistaPrevia::keyPressEvent(QKeyEvent* evento)
{
    if (evento->key() == Qt::Key_Home) {
        verticalScrollBar()->setValue(0);
    } else if (evento->key() == Qt::Key_End) {
        while (informe_ && !informe_->completo())
            contar();
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    } else {
        QAbstractScrollArea::keyPressEvent(evento);
    }
}
