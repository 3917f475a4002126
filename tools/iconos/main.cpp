// SPDX-License-Identifier: GPL-3.0-or-later
// iconos SVG CARPETA LADO...: the picture as CARPETA/LADO.png for each side in pixels.

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv)
{
    QSvgRenderer svg;
    if (argc < 3 || !svg.load(QString::fromLocal8Bit(argv[1]))) {
        std::fputs("Uso: iconos SVG CARPETA LADO...\n", stderr);
        return 2;
    }
    for (int i = 3; i < argc; ++i) {
        const int lado = std::atoi(argv[i]);
        QImage imagen(lado, lado, QImage::Format_ARGB32_Premultiplied);
        imagen.fill(Qt::transparent);
        {
            QPainter p(&imagen);
            svg.render(&p);
        }
        if (!imagen.save(QStringLiteral("%1/%2.png").arg(QString::fromLocal8Bit(argv[2])).arg(lado)))
            return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
