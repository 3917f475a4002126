// SPDX-License-Identifier: GPL-3.0-or-later
// A page as it is described, in millimetres: texts, lines, bars and the emblem. It knows nothing of
// printers; preview, printer and PDF paint the same one.
#pragma once

#include <QLineF>
#include <QRectF>
#include <QString>

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
    /// The same in a smaller letter when the text is wider than its place.
    void ajustado(QRectF lugar, const QString& texto, double puntos = 9, Alineacion alineacion = Alineacion::izquierda,
                  bool negrita = false);
    void linea(double x1, double y1, double x2, double y2, double grosor = 0.2, bool cortada = false);
    /// Adds another's elements, moved down.
    void agregar(const Pagina& otra, double abajo);
};

constexpr double ANCHO_A4 = 210;
constexpr double ALTO_A4 = 297;
constexpr double MM_POR_PULGADA = 25.4;
