// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/pintor_celda.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>

namespace {

QPalette::ColorGroup grupo_de(QStyle::State estado)
{
    if (!(estado & QStyle::State_Enabled))
        return QPalette::Disabled;
    return estado & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
}

}  // namespace

const QStaticText& PintorCelda::letras(const QString& texto, const QFont& fuente, int ancho) const
{
    if (fuente != fuente_) {
        letras_.clear();
        fuente_ = fuente;
    }
    const std::pair clave(texto, ancho);
    if (const QStaticText* conocidas = letras_.object(clave))
        return *conocidas;
    // A cell is one line.
    QString linea = texto;
    linea.replace(u'\n', QChar::LineSeparator);
    auto* nuevas = new QStaticText(QFontMetrics(fuente).elidedText(linea, Qt::ElideRight, ancho));
    nuevas->setTextFormat(Qt::PlainText);
    nuevas->prepare({}, fuente);
    letras_.insert(clave, nuevas);
    return *nuevas;
}

void PintorCelda::paint(QPainter* pintor, const QStyleOptionViewItem& opcion, const QModelIndex& indice) const
{
    if (opcion.features & QStyleOptionViewItem::WrapText) {
        QStyledItemDelegate::paint(pintor, opcion, indice);
        return;
    }
    const QStyle* estilo = opcion.widget ? opcion.widget->style() : QApplication::style();
    const bool elegida = opcion.state & QStyle::State_Selected;
    const QVariant fondo = indice.data(Qt::BackgroundRole);
    if (elegida || fondo.isValid()) {
        QStyleOptionViewItem panel = opcion;
        panel.backgroundBrush = fondo.isValid() ? QBrush(fondo.value<QColor>()) : QBrush();
        estilo->drawPrimitive(QStyle::PE_PanelItemViewItem, &panel, pintor, opcion.widget);
    }
    if (const QString texto = indice.data().toString(); !texto.isEmpty()) {
        const int margen = estilo->pixelMetric(QStyle::PM_FocusFrameHMargin, &opcion, opcion.widget) + 1;
        const QRect lugar = opcion.rect.adjusted(margen, 0, -margen, 0);
        const QVariant color = elegida ? QVariant() : indice.data(Qt::ForegroundRole);
        pintor->setFont(opcion.font);
        pintor->setPen(color.isValid() ? color.value<QColor>()
                                       : opcion.palette.color(grupo_de(opcion.state),
                                                              elegida ? QPalette::HighlightedText : QPalette::Text));
        const QStaticText& t = letras(texto, opcion.font, lugar.width());
        const bool derecha = indice.data(Qt::TextAlignmentRole).value<Qt::Alignment>() & Qt::AlignRight;
        const qreal x = derecha ? lugar.right() + 1 - t.size().width() : lugar.left();
        pintor->drawStaticText(QPointF(x, lugar.top() + (lugar.height() - t.size().height()) / 2), t);
    }
    if (opcion.state & QStyle::State_HasFocus) {
        QStyleOptionFocusRect foco;
        foco.QStyleOption::operator=(opcion);
        foco.state |= QStyle::State_KeyboardFocusChange | QStyle::State_Item;
        foco.backgroundColor = opcion.palette.color(grupo_de(opcion.state),
                                                    elegida ? QPalette::Highlight : QPalette::Window);
        estilo->drawPrimitive(QStyle::PE_FrameFocusRect, &foco, pintor, opcion.widget);
    }
}
