// SPDX-License-Identifier: GPL-3.0-or-later
// A page as it is described, in millimetres: texts, lines, bars and the emblem. It knows nothing of
// printers; preview, printer and PDF paint the same one.
#pragma once

#include <QLineF>
#include <QRectF>
#include <QString>

#include <memory>
#include <vector>

enum class Alineacion { izquierda, centro, derecha };

struct TextoImpreso
{
    QRectF lugar;
    QString texto;
    double puntos = 9;
    bool negrita = false;
    Alineacion alineacion = Alineacion::izquierda;
};

struct LineaImpresa
{
    QLineF linea;
    double grosor = 0.2;
    bool cortada = false;
};

/// Elements at their places; a band of a report, and a whole page.
struct Pagina
{
    std::vector<TextoImpreso> textos;
    std::vector<LineaImpresa> lineas;
    std::vector<QRectF> barras;  ///< black rectangles
    std::vector<QRectF> emblemas;

    void texto(QRectF lugar, const QString& texto, double puntos = 9, Alineacion alineacion = Alineacion::izquierda,
               bool negrita = false);
    /// The same in a smaller letter when the text is wider than its place; in the lines that the place has room for.
    void ajustado(QRectF lugar, const QString& texto, double puntos = 9, Alineacion alineacion = Alineacion::izquierda,
                  bool negrita = false);
    /// The four sides of a rectangle.
    void marco(QRectF lugar, double grosor);
    void linea(double x1, double y1, double x2, double y2, double grosor = 0.2, bool cortada = false);
    /// Adds another's elements, moved down.
    void agregar(const Pagina& otra, double abajo);
};

/// A piece of a report that is not parted.
struct Banda
{
    double alto = 0;
    Pagina contenido;                        ///< from its own top
    bool conLaSiguiente = false;             ///< is not parted from the band behind it
    std::shared_ptr<const Banda> alAbrir{};  ///< stands above the band when it is the first of a page
};

constexpr double ANCHO_A4 = 210;
constexpr double ALTO_A4 = 297;
constexpr double MM_POR_PULGADA = 25.4;
