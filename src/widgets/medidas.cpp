// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/medidas.h"

#include <QFontMetricsF>
#include <QLayout>
#include <QToolBar>
#include <QWidget>

namespace {

constexpr double DIGITO_DIBUJADO = 7.625;  // pixels of a digit

int ampliada(int medida, double escala)
{
    return medida > 0 && medida < QWIDGETSIZE_MAX ? int(medida * escala + 0.5) : medida;
}

QSize ampliada(const QSize& medida, double escala)
{
    return {ampliada(medida.width(), escala), ampliada(medida.height(), escala)};
}

}  // namespace

double escala_letra(const QWidget* w)
{
    return std::max(1.0, QFontMetricsF(w->font()).horizontalAdvance(u'0') / DIGITO_DIBUJADO);
}

void ajustar_a_letra(QWidget* form)
{
    const double escala = escala_letra(form);
    const auto controles = form->findChildren<QWidget*>();
    for (QWidget* w : controles) {
        w->setMaximumSize(ampliada(w->maximumSize(), escala));
        w->setMinimumSize(ampliada(w->minimumSize(), escala));
        if (auto* barra = qobject_cast<QToolBar*>(w))
            barra->setIconSize(ampliada(barra->iconSize(), escala));
    }
    // What is not in view yet does not tell its layouts, one within the other, of a new size.
    for (QWidget* w : controles)
        w->updateGeometry();
    const auto disposiciones = form->findChildren<QLayout*>();
    for (QLayout* d : disposiciones)
        d->invalidate();
    form->resize(ampliada(form->size(), escala));
}
