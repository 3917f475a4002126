// SPDX-License-Identifier: GPL-3.0-or-later

#include "application/screens/paginaManual.h"

#include "application/buscar_manual.h"

#include <QDesktopServices>
#include <QImage>
#include <QTextBlock>

PaginaManual::PaginaManual(QWidget* padre) : QTextBrowser(padre)
{
    setOpenExternalLinks(false);
    connect(this, &QTextBrowser::sourceChanged, this, &PaginaManual::ponerMarcas);
}

void PaginaManual::marcar(const QString& buscado)
{
    buscado_ = buscado;
    ponerMarcas();
}

void PaginaManual::ponerMarcas()
{
    QList<ExtraSelection> marcas;
    for (const Tramo& t : apariciones(toPlainText(), buscado_)) {
        ExtraSelection marca;
        marca.cursor = QTextCursor(document());
        marca.cursor.setPosition(t.desde);
        marca.cursor.setPosition(t.desde + t.largo, QTextCursor::KeepAnchor);
        marca.format.setBackground(palette().highlight());
        marca.format.setForeground(palette().highlightedText());
        marcas << marca;
    }
    setExtraSelections(marcas);
}

void PaginaManual::irA(int posicion)
{
    QTextCursor cursor(document());
    cursor.setPosition(std::min(posicion, document()->characterCount() - 1));
    setTextCursor(cursor);
    ensureCursorVisible();
}

// The width that a picture may take.
int PaginaManual::lugar() const
{
    return std::max(50, viewport()->width() - 2 * int(document()->documentMargin()) - 2);
}

QVariant PaginaManual::loadResource(int tipo, const QUrl& nombre)
{
    if (tipo != QTextDocument::ImageResource)
        return QTextBrowser::loadResource(tipo, nombre);
    const QImage imagen(QLatin1Char(':') + nombre.path());
    const int ancho = std::min(imagen.width(), lugar());
    imagenes_[nombre] = ancho;
    return ancho < imagen.width() ? imagen.scaledToWidth(ancho, Qt::SmoothTransformation) : imagen;
}

void PaginaManual::resizeEvent(QResizeEvent* evento)
{
    QTextBrowser::resizeEvent(evento);
    bool otras = false;
    const auto nombres = imagenes_.keys();
    for (const QUrl& nombre : nombres) {
        const int antes = imagenes_[nombre];
        const QVariant imagen = loadResource(QTextDocument::ImageResource, nombre);
        if (imagenes_[nombre] == antes)
            continue;
        document()->addResource(QTextDocument::ImageResource, nombre, imagen);
        otras = true;
    }
    if (otras)
        document()->markContentsDirty(0, document()->characterCount());
}
