// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/rpt_dj.h"

#include "core/redondeo.h"
#include "printing/screens/estilo.h"
#include "printing/screens/letra.h"
#include "printing/screens/lineas_texto.h"

#include <numeric>
#include <span>

using namespace Qt::StringLiterals;
using namespace estilo;

namespace {

constexpr double SANGRIA = 8;
constexpr double FILA_ESCRITURA = 4.6;
constexpr double SIN_PARTIR = 40;  // a deed up to this height goes to the next page as a whole
constexpr double SOBRE_REGLA = 0.6;

// The columns of a deed's line, from the margin: place, width, title, side.
struct ColumnaDJ
{
    double x;
    double ancho;
    const char* titulo;
    Alineacion lado;
};
constexpr ColumnaDJ COLUMNAS[] = {
    {0, 20, "Escritura", Alineacion::derecha},  {22, 16, "Folio", Alineacion::derecha},
    {40, 10, "Día", Alineacion::derecha},       {54, 40, "Estado", Alineacion::izquierda},
    {96, 52, "Alcance", Alineacion::izquierda}, {150, 36, "Impuesto $", Alineacion::derecha},
};

// A line of the columns, in the height of its band.
void poner_fila(Banda& b, const QStringList& textos, double puntos)
{
    for (size_t i = 0; i < std::size(COLUMNAS); ++i)
        b.contenido.ajustado({MARGEN + COLUMNAS[i].x, b.alto, COLUMNAS[i].ancho, FILA}, textos.value(qsizetype(i)),
                             puntos, COLUMNAS[i].lado, true);
    b.alto += FILA_ESCRITURA;
}

void poner_regla(Banda& b, double grosor)
{
    b.alto += SOBRE_REGLA;
    b.contenido.linea(MARGEN, b.alto, MARGEN + ANCHO_UTIL, b.alto, grosor);
    b.alto += SOBRE_REGLA;
}

// The titles of the columns, above what opens a page.
Banda titulos()
{
    Banda b;
    QStringList textos;
    for (const ColumnaDJ& c : COLUMNAS)
        textos << QString::fromUtf8(c.titulo);
    poner_fila(b, textos, PUNTOS);
    poner_regla(b, REGLA);
    return b;
}

// The same with the deed, above what is left of it on a new page.
Banda titulos_y_continuacion(const EscrituraImpresa& e)
{
    Banda b = titulos();
    poner_fila(b, {e.nro, e.folio, e.dia, u"(continuación)"_s}, PUNTOS_TOTAL);
    return b;
}

/// Indented lines; none without a text.
void renglones(std::vector<Banda>& bandas, const QString& titulo, const QString& texto)
{
    if (texto.isEmpty())
        return;
    for (Pagina& p : lineas_tituladas(
             titulo, texto,
             {.x = MARGEN + SANGRIA, .ancho = ANCHO_UTIL - SANGRIA, .puntos = PUNTOS, .tituloNegrita = true}))
        bandas.push_back({FILA, std::move(p)});
}

// With as many decimals as it needs, up to four.
QString cantidad(double valor)
{
    QString t = importe_agrupado(valor, 4);
    while (t.endsWith(u'0'))
        t.chop(1);
    return t.back().isDigit() ? t : t.chopped(1);
}

// An amount is told when it is not zero, a number of modules or a rate when it is there. What belongs together
// is not parted by a line's end.
QString datos_de(const OperacionImpresa& o)
{
    QStringList datos;
    const auto decir = [&](const char* titulo, const QString& valor, const char* unidad = "") {
        QString dato = QString::fromUtf8(titulo) + u' ' + valor + QString::fromUtf8(unidad);
        datos << dato.replace(u' ', QChar(0xa0));
    };
    const auto importe = [&](const char* titulo, const std::optional<double>& valor) {
        if (valor && *valor != 0)
            decir(titulo, importe_agrupado(*valor));
    };
    importe("Base imponible $", o.base);
    importe("Val. fiscal $", o.valuacion);
    importe("Hipoteca $", o.hipoteca);
    if (o.modulos)
        decir("Módulos", cantidad(*o.modulos));
    if (o.alicuota)
        decir("Alícuota", cantidad(*o.alicuota * 100), " %");
    importe("Calculado $", o.calculado);
    if (o.porcExento && *o.porcExento != 0)
        decir("Exento", cantidad(*o.porcExento), " %");
    importe("Monto exento $", o.montoExento);
    importe("Pago a cuenta $", o.pagoACuenta);
    importe("Adicionales $", o.adicionales);
    if (o.final)
        decir("Impuesto $", importe_agrupado(*o.final));
    return datos.join(u"; "_s);
}

// The law's text ends with a parenthesis of its own.
QString nombre_de(const OperacionImpresa& o)
{
    return o.ley.isEmpty() ? o.descripcion : o.descripcion + u" - "_s + o.ley;
}

// A short deed stays together. Of a long one the first two lines do, and on a new page it names itself again.
void poner_escritura(std::vector<Banda>& bandas, const EscrituraImpresa& e)
{
    const auto primera = bandas.size();
    Banda fila;
    fila.alto = SOBRE_REGLA;
    poner_fila(fila,
               {e.nro, e.folio, e.dia, e.estado, e.alcanzada ? u"Alcanzada"_s : u"No alcanzada"_s,
                importe_agrupado(e.impuesto)},
               PUNTOS_TOTAL);
    bandas.push_back(std::move(fila));
    renglones(bandas, u"Motivo:"_s, e.motivo);
    for (const OperacionImpresa& o : e.operaciones) {
        renglones(bandas, u"Operación:"_s, nombre_de(o));
        renglones(bandas, {}, datos_de(o));
        renglones(bandas, {}, o.observaciones);
    }
    renglones(bandas, u"Partes:"_s, e.partes);
    renglones(bandas, u"Inmuebles:"_s, e.inmuebles);
    renglones(bandas, u"Observaciones:"_s, e.observaciones);
    poner_regla(bandas.back(), REGLA_FINA);
    static const auto TITULOS = std::make_shared<const Banda>(titulos());
    bandas[primera].alAbrir = TITULOS;
    const std::span propias(bandas.begin() + qsizetype(primera), bandas.end());
    const double alto = std::accumulate(propias.begin(), propias.end(), 0.0,
                                        [](double suma, const Banda& b) { return suma + b.alto; });
    for (Banda& b : propias.first(alto <= SIN_PARTIR ? propias.size() - 1 : 1))
        b.conLaSiguiente = true;
    if (alto <= SIN_PARTIR)
        return;
    const auto continuacion = std::make_shared<const Banda>(titulos_y_continuacion(e));
    for (Banda& b : propias.subspan(1))
        b.alAbrir = continuacion;
}

}  // namespace

bool rpt_dj::siguientes(std::vector<Banda>& bandas)
{
    if (siguiente_ < dj_.escrituras.size())
        poner_escritura(bandas, dj_.escrituras[siguiente_]);
    else
        cierre(bandas);
    return siguiente_++ < dj_.escrituras.size();
}
