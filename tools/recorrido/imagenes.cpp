// SPDX-License-Identifier: GPL-3.0-or-later

#include "recorrido/imagenes.h"

#include "manejo/cajas.h"
#include "widgets/formulario.h"

#include <QApplication>
#include <QDir>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype COLORES = 256;
const QString CARPETA_MOSTRADA = u"/home/escribana/VEDRA-RTN"_s;

// A form with the frame that it has in the main window, or a window of its own.
QWidget* ventana_de(const char* clase, QWidget* principal)
{
    const auto es = [clase](const QWidget* w) { return qstrcmp(w->metaObject()->className(), clase) == 0; };
    if (es(principal))
        return principal;
    for (Formulario* f : Formulario::cargados())
        if (es(f) && f->isVisible())
            return f->isWindow() ? f : f->parentWidget();
    for (QWidget* w : QApplication::topLevelWidgets())
        if (es(w) && w->isVisible())
            return w;
    throw Inesperado(u"no está a la vista "_s + QLatin1StringView(clase));
}

// While it lives, no field of the window shows the folder in which the month works.
class SinCarpeta
{
public:
    SinCarpeta(const QWidget* ventana, const QString& carpeta)
    {
        for (auto* linea : ventana->findChildren<QLineEdit*>())
            cambiar(linea, carpeta);
        for (auto* rotulo : ventana->findChildren<QLabel*>())
            cambiar(rotulo, carpeta);
    }
    ~SinCarpeta()
    {
        for (const auto& [w, texto] : antes_)
            poner(w, texto);
    }
    SinCarpeta(const SinCarpeta&) = delete;
    SinCarpeta& operator=(const SinCarpeta&) = delete;

private:
    void cambiar(QWidget* w, const QString& carpeta)
    {
        const QString texto = w->property("text").toString();
        if (!texto.contains(carpeta))
            return;
        antes_ << std::pair(w, texto);
        poner(w, QString(texto).replace(carpeta, CARPETA_MOSTRADA));
    }
    static void poner(QWidget* w, const QString& texto)
    {
        const QSignalBlocker callado(w);
        const QVariant tecleado = w->property("modified");
        w->setProperty("text", texto);
        if (tecleado.isValid())
            w->setProperty("modified", tecleado);
    }

    QList<std::pair<QWidget*, QString>> antes_;
};

int distancia(QRgb a, QRgb b)
{
    const int r = qRed(a) - qRed(b), v = qGreen(a) - qGreen(b), z = qBlue(a) - qBlue(b);
    return r * r + v * v + z * z;
}

// A window has few colours, and many that hardly differ where letters are smoothed: those take the nearest of the most
// frequent ones.
QImage con_paleta(const QImage& imagen)
{
    QHash<QRgb, int> veces;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            ++veces[imagen.pixel(x, y)];
    QList<QRgb> colores = veces.keys();
    std::sort(colores.begin(), colores.end(),
              [&](QRgb a, QRgb b) { return std::pair(-veces[a], a) < std::pair(-veces[b], b); });
    const QList<QRgb> paleta = colores.mid(0, COLORES);
    QHash<QRgb, uchar> indices;
    for (const QRgb color : std::as_const(colores)) {
        const auto cerca = std::min_element(paleta.begin(), paleta.end(), [color](QRgb a, QRgb b) {
            return distancia(a, color) < distancia(b, color);
        });
        indices[color] = uchar(cerca - paleta.begin());
    }
    QImage chica(imagen.size(), QImage::Format_Indexed8);
    chica.setColorTable(paleta);
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            chica.scanLine(y)[x] = indices[imagen.pixel(x, y)];
    return chica;
}

}  // namespace

ImagenesManual::ImagenesManual(const QString& carpeta, const QString& datos) : carpeta_(carpeta), datos_(datos)
{
    if (!carpeta_.isEmpty())
        QDir().mkpath(carpeta_);
}

void ImagenesManual::tomar(const QString& momento, QWidget* principal)
{
    if (carpeta_.isEmpty())
        return;
    for (const ImagenManual& i : IMAGENES_MANUAL) {
        const QString nombre = QLatin1StringView(i.nombre);
        if (momento != QLatin1StringView(i.momento) || tomadas_.contains(nombre))
            continue;
        guardar(ventana_de(i.ventana, principal), nombre);
        tomadas_ << nombre;
    }
}

void ImagenesManual::guardar(QWidget* ventana, const QString& nombre) const
{
    const SinCarpeta sin(ventana, datos_);
    const QImage imagen = ventana->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QString archivo = carpeta_ + u'/' + nombre + u".png"_s;
    if (!con_paleta(imagen).save(archivo, "PNG", 0))
        throw Inesperado(u"no se pudo guardar "_s + archivo);
}

QStringList ImagenesManual::faltan() const
{
    QStringList faltan;
    for (const ImagenManual& i : IMAGENES_MANUAL)
        if (!carpeta_.isEmpty() && !tomadas_.contains(QLatin1StringView(i.nombre)))
            faltan << QLatin1StringView(i.nombre);
    return faltan;
}
