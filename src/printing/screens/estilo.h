// SPDX-License-Identifier: GPL-3.0-or-later
// The style that all printed forms share: margins, letters, rules, the head of a page, fields at their places.
// Lengths are millimetres, letters are points.
#pragma once

#include "printing/screens/rptPagina.h"

#include <QDate>

#include <span>
#include <variant>

namespace estilo {

constexpr double MARGEN = 12;
constexpr double ANCHO_UTIL = ANCHO_A4 - 2 * MARGEN;

constexpr double PUNTOS = 8;             // running text
constexpr double PUNTOS_TOTAL = 9;       // what is added up
constexpr double PUNTOS_DESTACADO = 13;  // what is to be seen at arm's length
constexpr double PUNTOS_NOTA = 7;        // what is there if one looks for it
constexpr double FILA = 3.7;             // a line of running text

constexpr double REGLA_FINA = 0.1;    // between fields and deeds
constexpr double REGLA = 0.2;         // where something is signed or stamped
constexpr double REGLA_GRUESA = 0.4;  // below the head, above totals

/// A line of a head: its top and its letter.
struct LineaEncabezado
{
    double y, puntos;
};
/// Head and fields in the measures of a whole page, or of one that carries four copies.
struct Medidas
{
    double emblema, textos;                       // width of the emblem, and where the texts begin
    LineaEncabezado autoridad, titulo, impuesto;  // one below the other
    double anchoTextos;                           // up to the right side
    double lados;                                 // letter of the right side
    double regla;                                 // where the head ends
    double rotulo, dato;                          // letters of a field: its title and what stands below it
};
constexpr Medidas HOJA{14, 18, {0, 9}, {4.6, 13}, {11.6, 9}, 96, 9, 18.5, 6.5, 9};
constexpr Medidas COPIA{7.6, 10, {0, 6.5}, {2.7, 10}, {6.9, 6}, 98, 8.5, 10.3, 6, 8.5};

/// Emblem, authority, title and kind of tax, and at the right the lines of `derecha`, the first of them bold. The band
/// ends with its rule.
[[nodiscard]] Banda encabezado(const QString& titulo, const QStringList& derecha, const Medidas& m = HOJA);

/// Puts a field: its title, and below it the value in as large a letter as has room in one line.
void campo(Pagina& p, double x, double y, double ancho, const QString& titulo, const QString& valor, const Medidas& m);

/// A field of a form: row, place from the margin, width, title, member.
template <class Datos>
struct Campo
{
    int fila;
    double x, ancho;
    const char* titulo;
    QString Datos::*valor;
};

struct Casilla
{
    double x, ancho;
    QString titulo, valor;
};
/// A row of fields over a thin rule, as high as its longest text.
[[nodiscard]] Banda fila_de_casillas(std::span<const Casilla> casillas);

/// The rows of a form's fields; a row where all is empty drops out.
template <class Datos, size_t N>
[[nodiscard]] std::vector<Banda> filas_de_campos(const Campo<Datos> (&campos)[N], const Datos& datos)
{
    std::vector<Banda> filas;
    for (size_t i = 0; i < N;) {
        std::vector<Casilla> casillas;
        bool vacia = true;
        for (const int fila = campos[i].fila; i < N && campos[i].fila == fila; ++i) {
            const QString& valor = datos.*campos[i].valor;
            casillas.push_back({campos[i].x, campos[i].ancho, QString::fromUtf8(campos[i].titulo), valor});
            vacia = vacia && valor.isEmpty();
        }
        if (!vacia)
            filas.push_back(fila_de_casillas(casillas));
    }
    return filas;
}

/// A text of any length under its title, over a thin rule: a band a line. On a new page it names itself again.
void campo_largo(std::vector<Banda>& bandas, const QString& titulo, const QString& texto);

}  // namespace estilo
