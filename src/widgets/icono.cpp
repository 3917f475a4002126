// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/icono.h"

#include "widgets/colores.h"

#include <QDir>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

// One drawing, or, where the toolkit draws none, its pictures.
QIcon leer(const QString& nombre)
{
    const QDir imagenes(nombre);
    if (!imagenes.exists())
        return QIcon(nombre + u".svg"_s);
    QIcon icono;
    for (const QString& imagen : imagenes.entryList(QDir::Files))
        icono.addFile(imagenes.filePath(imagen));
    return icono;
}

class MotorIcono : public QIconEngine
{
public:
    explicit MotorIcono(const QString& nombre)
        : claro_(leer(u":/iconos/"_s + nombre)), oscuro_(leer(u":/iconos/oscuro/"_s + nombre))
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
