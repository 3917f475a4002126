// SPDX-License-Identifier: GPL-3.0-or-later
// iconos SVG CARPETA LADO...: the picture as CARPETA/LADO.png for each side in pixels.
// iconos SVG NAME.ico LADO...: all of them in one icon of Windows.

#include <QBuffer>
#include <QDataStream>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>
#include <cstdlib>

namespace {

QByteArray png(QSvgRenderer& svg, int lado)
{
    QImage imagen(lado, lado, QImage::Format_ARGB32_Premultiplied);
    imagen.fill(Qt::transparent);
    {
        QPainter p(&imagen);
        svg.render(&p);
    }
    QBuffer salida;
    return imagen.save(&salida, "PNG") ? salida.data() : QByteArray();
}

bool guardar(const QString& archivo, const QByteArray& bytes)
{
    QFile f(archivo);
    return f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size();
}

// A head, one line for each picture, the pictures: https://learn.microsoft.com/previous-versions/ms997538(v=msdn.10)
QByteArray ico(const QList<QByteArray>& imagenes, const QList<int>& lados)
{
    constexpr int CABEZA = 6, LINEA = 16;
    QByteArray bytes;
    QDataStream s(&bytes, QIODevice::WriteOnly);
    s.setByteOrder(QDataStream::LittleEndian);
    s << quint16(0) << quint16(1) << quint16(imagenes.size());
    quint32 lugar = quint32(CABEZA + LINEA * imagenes.size());
    for (qsizetype i = 0; i < imagenes.size(); ++i) {
        const auto lado = quint8(lados[i]);  // 0 stands for 256
        s << lado << lado << quint8(0) << quint8(0) << quint16(1) << quint16(32) << quint32(imagenes[i].size())
          << lugar;
        lugar += quint32(imagenes[i].size());
    }
    return bytes + QByteArrayList(imagenes).join();
}

}  // namespace

int main(int argc, char** argv)
{
    QSvgRenderer svg;
    if (argc < 4 || !svg.load(QString::fromLocal8Bit(argv[1]))) {
        std::fputs("Uso: iconos SVG CARPETA|ARCHIVO.ico LADO...\n", stderr);
        return 2;
    }
    const QString salida = QString::fromLocal8Bit(argv[2]);
    QList<QByteArray> imagenes;
    QList<int> lados;
    for (int i = 3; i < argc; ++i) {
        lados << std::atoi(argv[i]);
        imagenes << png(svg, lados.last());
    }
    bool bien = true;
    if (salida.endsWith(QStringLiteral(".ico")))
        bien = guardar(salida, ico(imagenes, lados));
    else
        for (qsizetype i = 0; i < imagenes.size(); ++i)
            bien = guardar(QStringLiteral("%1/%2.png").arg(salida).arg(lados[i]), imagenes[i]) && bien;
    return bien ? EXIT_SUCCESS : EXIT_FAILURE;
}
