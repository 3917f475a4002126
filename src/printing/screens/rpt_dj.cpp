// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/rpt_dj.h"

#include "core/redondeo.h"
#include "printing/screens/letra.h"
#include "printing/screens/lineas_texto.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double SANGRIA = 8;

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

}  // namespace

Banda rpt_dj::cabecera(int pagina) const
{
    Banda b = rpt_dj_sin_mov::cabecera(pagina);
    for (const ColumnaDJ& c : COLUMNAS)
        b.contenido.texto({MARGEN + c.x, b.alto, c.ancho, FILA}, QString::fromUtf8(c.titulo), PUNTOS, c.lado, true);
    b.contenido.linea(MARGEN, b.alto + FILA + 0.6, MARGEN + ANCHO_UTIL, b.alto + FILA + 0.6);
    b.alto += FILA + 2;
    return b;
}

bool rpt_dj::siguientes(std::vector<Banda>& bandas)
{
    if (siguiente_ < dj_.escrituras.size())
        escritura(dj_.escrituras[siguiente_], bandas);
    else
        cierre(bandas);
    return siguiente_++ < dj_.escrituras.size();
}

void rpt_dj::renglones(std::vector<Banda>& bandas, const QString& titulo, const QString& texto)
{
    if (texto.isEmpty())
        return;
    for (Pagina& p : lineas_tituladas(
             titulo, texto,
             {.x = MARGEN + SANGRIA, .ancho = ANCHO_UTIL - SANGRIA, .puntos = PUNTOS, .tituloNegrita = true}))
        bandas.push_back({alto_linea(PUNTOS), std::move(p)});
}

// The line of the deed is not parted from the first line behind it.
void rpt_dj::escritura(const EscrituraImpresa& e, std::vector<Banda>& bandas) const
{
    const auto primera = bandas.size();
    Banda titulo;
    titulo.alto = FILA + 0.4;
    const QString textos[] = {e.nro,
                              e.folio,
                              e.dia,
                              e.estado,
                              e.alcanzada ? u"Alcanzada"_s : u"No alcanzada"_s,
                              importe_agrupado(e.impuesto)};
    for (size_t i = 0; i < std::size(COLUMNAS); ++i)
        titulo.contenido.texto({MARGEN + COLUMNAS[i].x, 0.4, COLUMNAS[i].ancho, FILA}, textos[i], PUNTOS + 0.5,
                               COLUMNAS[i].lado, true);
    bandas.push_back(titulo);
    renglones(bandas, u"Motivo:"_s, e.motivo);
    for (const OperacionImpresa& o : e.operaciones)
        operacion(o, bandas);
    renglones(bandas, u"Partes:"_s, e.partes);
    renglones(bandas, u"Inmuebles:"_s, e.inmuebles);
    renglones(bandas, u"Observaciones:"_s, e.observaciones);
    bandas[primera].conLaSiguiente = bandas.size() > primera + 1;
    Banda fin;
    fin.alto = 1.2;
    fin.contenido.linea(MARGEN, 0.6, MARGEN + ANCHO_UTIL, 0.6, 0.1);
    bandas.back().conLaSiguiente = true;
    bandas.push_back(fin);
}

void rpt_dj::operacion(const OperacionImpresa& o, std::vector<Banda>& bandas) const
{
    renglones(bandas, u"Operación:"_s, o.descripcion + (o.ley.isEmpty() ? QString() : u" ("_s + o.ley + u")"_s));
    QStringList datos;
    const auto dato = [&](const char* titulo, const std::optional<double>& valor, int decimales = 2) {
        if (valor && (*valor != 0 || decimales != 2))
            datos << QString::fromUtf8(titulo) + QChar(0xa0)
                         + importe_agrupado(*valor, decimales).replace(u' ', QChar(0xa0));
    };
    dato("Base imponible $", o.base);
    dato("Val. fiscal $", o.valuacion);
    dato("Hipoteca $", o.hipoteca);
    dato("Módulos", o.modulos, 4);
    dato("Alícuota", o.alicuota, 4);
    dato("Calculado $", o.calculado);
    dato("Exento %", o.porcExento);
    dato("Monto exento $", o.montoExento);
    dato("Pago a cuenta $", o.pagoACuenta);
    dato("Adicionales $", o.adicionales);
    if (o.final)
        datos << u"Impuesto"_s + QChar(0xa0) + u'$' + QChar(0xa0) + importe_agrupado(*o.final);
    renglones(bandas, {}, datos.join(u"; "_s));
    renglones(bandas, {}, o.observaciones);
}
