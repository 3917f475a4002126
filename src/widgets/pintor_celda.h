// SPDX-License-Identifier: GPL-3.0-or-later
// How the cells of a grid are drawn.
#pragma once

#include <QCache>
#include <QFont>
#include <QStaticText>
#include <QStyledItemDelegate>

/// Draws the cells of a grid as the style would, and keeps the letters of those that it drew: a list that is read again
/// or scrolled shows the same texts, and laying them out is most of the work.
class PintorCelda : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* pintor, const QStyleOptionViewItem& opcion, const QModelIndex& indice) const override;

private:
    [[nodiscard]] const QStaticText& letras(const QString& texto, const QFont& fuente, int ancho) const;

    mutable QCache<std::pair<QString, int>, QStaticText> letras_{4096};
    mutable QFont fuente_;
};
