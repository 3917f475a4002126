// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/modNroALetras.h"

#include "core/numero.h"

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array CENTENAS{"",
                              "ciento ",
                              "doscientos ",
                              "trescientos ",
                              "cuatrocientos ",
                              "quinientos ",
                              "seiscientos ",
                              "setecientos ",
                              "ochocientos ",
                              "novecientos "};
constexpr std::array DIEZ{"diez ",   "once ", "doce ", "trece ", "catorce ",
                          "quince ", "dieci", "dieci", "dieci",  "dieci"};
constexpr std::array DECENAS{"",           "",         "",         "treinta ", "cuarenta ",
                             "cincuenta ", "sesenta ", "setenta ", "ochenta ", "noventa "};
constexpr std::array UNIDADES{"", "un ", "dos ", "tres ", "cuatro ", "cinco ", "seis ", "siete ", "ocho ", "nueve "};

struct Grupo
{
    int c, d, u;
    [[nodiscard]] int suma() const { return c + d + u; }
};

QByteArray en_palabras(const Grupo& g)
{
    QByteArray t = g.c == 1 && g.d == 0 && g.u == 0 ? "cien " : CENTENAS[size_t(g.c)];
    if (g.d == 1)
        t += DIEZ[size_t(g.u)];
    else if (g.d == 2)
        t += g.u == 0 ? "veinte " : "veinti";
    else if (g.d >= 3)
        t += QByteArray(DECENAS[size_t(g.d)]) + (g.u > 0 ? "y " : "");
    if (g.d != 1 || g.u > 5)
        t += UNIDADES[size_t(g.u)];
    return t;
}

// The capitals of these names, and "un Mil" for one thousand, are the system's own words.
const char* nombre_grupo(int posicion, const Grupo& g, const Grupo& siguiente)
{
    switch (posicion) {
    case 0: return g.suma() == 0 ? "" : g.suma() == 1 ? "Billon " : "Billones ";
    case 1: return g.suma() == 0 ? "" : siguiente.suma() == 0 ? "Mil Millones " : "Mil ";
    case 2: return g.suma() == 0 ? "" : g.c == 0 && g.d == 0 && g.u == 1 ? "Millon " : "Millones ";
    case 3: return g.suma() == 0 ? "" : "Mil ";
    default: return "";
    }
}

QString con_capitales(const QString& texto)
{
    QString salida = texto.toLower();
    for (qsizetype i = 0; i < salida.size(); ++i)
        if (i == 0 || salida[i - 1] == u' ')
            salida[i] = salida[i].toUpper();
    return salida;
}

}  // namespace

QString nro_a_letras(double importe, int modo, bool entre_parentesis)
{
    const double monto = std::fabs(importe);
    const double entera = std::floor(monto);
    const QString cifras = formato_decimal(entera, 0).rightJustified(15, u'0');
    // A fraction that comes to 100 when formatted has three digits, and only two are read.
    const QString centavos =
        formato_decimal(numero_sql(monto - entera).toDouble() * 100, 0).rightJustified(2, u'0').left(2);

    std::array<Grupo, 6> grupos{};
    for (int i = 0; i < 5; ++i)
        grupos[size_t(i)] = {cifras[i * 3].digitValue(), cifras[i * 3 + 1].digitValue(),
                             cifras[i * 3 + 2].digitValue()};
    QByteArray palabras;
    for (int i = 0; i < 5; ++i)
        palabras += en_palabras(grupos[size_t(i)]) + nombre_grupo(i, grupos[size_t(i)], grupos[size_t(i) + 1]);

    const QString texto = QString::fromLatin1(palabras)
                          + (entre_parentesis ? u"( "_s + centavos + u"/100)"_s : u" con "_s + centavos + u"/100"_s);
    switch (modo) {
    case 1: return texto.toUpper();
    case 2: return texto.toLower();
    case 3: return con_capitales(texto);
    default: return texto;
    }
}
