// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/icono.h"

#include "widgets/colores.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

class MotorIcono : public QIconEngine
{
public:
    explicit MotorIcono(const QString& nombre)
        : claro_(u":/iconos/%1.svg"_s.arg(nombre)), oscuro_(u":/iconos/oscuro/%1.svg"_s.arg(nombre))
    {
    }

    void paint(QPainter* pintor, const QRect& lugar, QIcon::Mode modo, QIcon::State estado) override
    {
        actual().paint(pintor, lugar, Qt::AlignCenter, modo, estado);
    }
    QPixmap pixmap(const QSize& medida, QIcon::Mode modo, QIcon::State estado) override
    {
        return scaledPixmap(medida, modo, estado, 1);
    }
    QPixmap scaledPixmap(const QSize& medida, QIcon::Mode modo, QIcon::State estado, qreal escala) override
    {
        return actual().pixmap(medida / escala, escala, modo, estado);
    }
    QList<QSize> availableSizes(QIcon::Mode modo, QIcon::State estado) override
    {
        return actual().availableSizes(modo, estado);
    }
    [[nodiscard]] QIconEngine* clone() const override { return new MotorIcono(*this); }

private:
    [[nodiscard]] const QIcon& actual() const { return es_oscura(QGuiApplication::palette()) ? oscuro_ : claro_; }

    QIcon claro_;
    QIcon oscuro_;
};

}  // namespace

QIcon icono(const QString& nombre)
{
    return QIcon(new MotorIcono(nombre));
}
