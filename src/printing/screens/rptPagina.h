// SPDX-License-Identifier: GPL-3.0-or-later
// A page as it is described, in millimetres: texts, lines, bars and the emblem. It knows nothing of
// printers; preview, printer and PDF paint the same one.
#pragma once

#include <QLineF>
#include <QRectF>
#include <QStringList>

#include <vector>

class QPainter;

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

/// Paints a page; `escala` is device units a millimetre.
void pintar_pagina(QPainter& p, const Pagina& pagina, double escala);

/// Height of a line of text, in millimetres.
[[nodiscard]] double alto_linea(double puntos);
[[nodiscard]] double ancho_texto(const QString& texto, double puntos, bool negrita = false);
/// The text in lines no wider than `ancho`; a word that is wider is parted.
[[nodiscard]] QStringList en_lineas(const QString& texto, double ancho, double puntos, bool negrita = false);

/// How a text with a title in front of it stands: the lines behind the first begin where the text does.
struct Titulado
{
    double x = 0;
    double ancho = 0;
    double puntos = 9;
    double sangria = -1;  ///< from the title's left edge; negative is right behind the title
    bool tituloNegrita = false;
    bool textoNegrita = false;
};
/// The lines of such a text, each from its own top; an empty text has one, with the title alone.
[[nodiscard]] std::vector<Pagina> lineas_tituladas(const QString& titulo, const QString& texto, const Titulado& como);

/// The bars of Interleaved 2 of 5 or Code 128, with the narrow bar so many millimetres wide, from
/// the left edge; `ancho` takes their whole width. Empty when the text can't be encoded.
enum class Simbologia { intercalado2de5, code128 };
[[nodiscard]] std::vector<QRectF> barras_de(const QString& texto, Simbologia s, double modulo, double alto,
                                            double& ancho);
