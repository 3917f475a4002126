// SPDX-License-Identifier: GPL-3.0-or-later

#include "computation/screens/rpt_pasos.h"

#include "printing/screens/estilo.h"
#include "printing/screens/lineas_texto.h"

using namespace Qt::StringLiterals;
using namespace estilo;

namespace {

constexpr double ALTO_TITULO = 6.5;
constexpr double ENTRE_FILAS = 1;

// The columns from the margin; the last one is of amounts.
struct Columna
{
    double x, ancho;
    QString FilaPaso::*texto;
};
const Columna COLUMNAS[] = {
    {0, 8, &FilaPaso::numero},      {9, 42, &FilaPaso::titulo},      {52, 78, &FilaPaso::cuenta},
    {131, 22, &FilaPaso::redondeo}, {154, 32, &FilaPaso::resultado},
};

// A row of the table over a thin rule, as high as its longest text.
Banda fila_impresa(const FilaPaso& f, bool negrita = false)
{
    Banda b;
    qsizetype alto = 1;
    for (const Columna& c : COLUMNAS) {
        const Alineacion lado = c.texto == &FilaPaso::resultado ? Alineacion::derecha : Alineacion::izquierda;
        const QStringList lineas = en_lineas(f.*c.texto, c.ancho, PUNTOS, negrita);
        for (qsizetype i = 0; i < lineas.size(); ++i)
            b.contenido.texto({MARGEN + c.x, double(i) * FILA, c.ancho, FILA}, lineas[i], PUNTOS, lado, negrita);
        alto = std::max(alto, lineas.size());
    }
    b.alto = double(alto) * FILA + ENTRE_FILAS;
    b.contenido.linea(MARGEN, b.alto - ENTRE_FILAS / 2, MARGEN + ANCHO_UTIL, b.alto - ENTRE_FILAS / 2, REGLA_FINA);
    return b;
}

}  // namespace

Banda rpt_pasos::cabecera(int) const
{
    Banda b;
    b.contenido.texto({MARGEN, 0, ANCHO_UTIL, ALTO_TITULO}, u"Cómo se calculó el impuesto"_s, PUNTOS_DESTACADO,
                      Alineacion::izquierda, true);
    b.contenido.texto({MARGEN, ALTO_TITULO, ANCHO_UTIL, FILA}, operacion_, PUNTOS_TOTAL);
    const QStringList t = titulos_de_pasos();
    const Banda titulos = fila_impresa({t[0], t[1], t[2], t[3], t[4]}, true);
    const double y = ALTO_TITULO + 2 * FILA;
    b.contenido.linea(MARGEN, y, MARGEN + ANCHO_UTIL, y, REGLA_GRUESA);
    b.contenido.agregar(titulos.contenido, y + ENTRE_FILAS);
    b.alto = y + ENTRE_FILAS + titulos.alto;
    return b;
}

bool rpt_pasos::siguientes(std::vector<Banda>& bandas)
{
    for (const FilaPaso& f : std::as_const(filas_))
        bandas.push_back(fila_impresa(f));
    for (const QString& linea : en_lineas(aviso_, ANCHO_UTIL, PUNTOS_NOTA)) {
        Banda b;
        b.contenido.texto({MARGEN, ENTRE_FILAS, ANCHO_UTIL, FILA}, linea, PUNTOS_NOTA);
        b.alto = FILA;
        bandas.push_back(b);
    }
    return false;
}
