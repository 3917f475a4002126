// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/rpt_dj_sin_mov.h"

#include "core/redondeo.h"
#include "printing/screens/barras_codigo.h"
#include "printing/screens/estilo.h"

using namespace Qt::StringLiterals;
using namespace estilo;

namespace {

using C = CabeceraImpresa;

const Campo<C> CAMPOS[] = {
    {0, 0, 34, "Agente de Retención Nº", &C::agenteNro},
    {0, 36, 108, "Escribano titular", &C::titular},
    {0, 146, 40, "CUIT", &C::cuit},
    {1, 0, 94, "Domicilio", &C::domicilio},
    {1, 96, 48, "Localidad", &C::localidad},
    {1, 146, 40, "Cód. postal", &C::codPostal},
    {2, 0, 94, "e-mail", &C::email},
    {2, 96, 90, "Teléfono", &C::telefono},
    {3, 0, 144, "Adscripto", &C::adscripto1},
    {3, 146, 40, "CUIT", &C::adscripto1Cuit},
    {4, 0, 144, "Adscripto", &C::adscripto2},
    {4, 146, 40, "CUIT", &C::adscripto2Cuit},
    {5, 0, ANCHO_UTIL, "Observaciones", &C::observaciones},
};

// The amounts at the end: where their titles end and they themselves begin, from the margin.
constexpr double IMPORTE = 150;
constexpr double ANCHO_IMPORTE = ANCHO_UTIL - IMPORTE;
constexpr double ANCHO_TITULO = 100;
constexpr double FILA_TOTAL = 5;

// What is signed: place of the line from the margin, and what stands below it.
struct LugarFirma
{
    double x;
    const char* titulo;
};
constexpr LugarFirma FIRMAS[] = {{0, "Lugar y fecha"}, {66, "Firma"}, {132, "Aclaración y sello"}};
constexpr double ANCHO_FIRMA = 54;
constexpr double RENGLON_FIRMA = 18;

constexpr double BAJO_TITULO = 1;  // of the code
constexpr double ALTO_BARRAS = 12;

}  // namespace

// The agent stands on the first page only.
Banda rpt_dj_sin_mov::cabecera(int pagina) const
{
    const C& c = dj_.cabecera;
    Banda b = encabezado(u"DECLARACIÓN JURADA"_s, {u"DJ Nº "_s + c.nro, u"Posición "_s + c.posicion, c.rectificativa});
    if (pagina == 0)
        for (const Banda& fila : filas_de_campos(CAMPOS, c)) {
            b.contenido.agregar(fila.contenido, b.alto);
            b.alto += fila.alto;
        }
    b.alto += 2;
    return b;
}

Banda rpt_dj_sin_mov::totales() const
{
    const C& c = dj_.cabecera;
    Banda total;
    total.conLaSiguiente = true;
    double y = 1;
    const auto importe = [&](const QString& titulo, double valor) {
        total.contenido.ajustado({MARGEN + IMPORTE - ANCHO_TITULO, y, ANCHO_TITULO - 2, FILA_TOTAL}, titulo,
                                 PUNTOS_TOTAL, Alineacion::derecha, true);
        total.contenido.ajustado({MARGEN + IMPORTE, y, ANCHO_IMPORTE, FILA_TOTAL}, importe_agrupado(valor),
                                 PUNTOS_TOTAL, Alineacion::derecha, true);
        y += FILA_TOTAL;
    };
    importe(u"Importe total retenido $"_s, c.totalRetenido);
    if (c.acreditado != 0)
        importe(u"Acreditado por Resolución Nº "_s + c.resolucion + u" $"_s, c.acreditado);
    total.contenido.linea(MARGEN + IMPORTE, y, MARGEN + ANCHO_UTIL, y, REGLA_GRUESA);
    y += 1;
    importe(u"Total a depositar $"_s, c.totalRetenido - c.acreditado);
    total.alto = y + 3;
    return total;
}

Banda rpt_dj_sin_mov::firmas() const
{
    Banda firma;
    firma.conLaSiguiente = true;
    firma.alto = RENGLON_FIRMA + 7;
    firma.contenido.texto(
        {MARGEN, 0, ANCHO_UTIL, FILA},
        u"Declaro bajo juramento que los datos consignados son correctos y completos, sin omitir ni falsear dato alguno."_s,
        PUNTOS);
    for (const LugarFirma& f : FIRMAS) {
        const double x = MARGEN + f.x;
        firma.contenido.linea(x, RENGLON_FIRMA, x + ANCHO_FIRMA, RENGLON_FIRMA, REGLA);
        firma.contenido.texto({x, RENGLON_FIRMA + 1, ANCHO_FIRMA, FILA}, QString::fromUtf8(f.titulo), PUNTOS,
                              Alineacion::centro);
    }
    return firma;
}

Banda rpt_dj_sin_mov::codigo() const
{
    Banda b;
    double y = 0;
    const auto linea = [&](const QString& texto, double puntos, bool negrita) {
        b.contenido.texto({MARGEN, y, ANCHO_UTIL, FILA}, texto, puntos, Alineacion::centro, negrita);
        y += FILA + 0.8;
    };
    linea(u"Código de verificación de la integridad"_s, PUNTOS, false);
    agregar_centradas(b.contenido, barras_de(codigo_, Simbologia::code128, ALTO_BARRAS), y + BAJO_TITULO);
    y += BAJO_TITULO + ALTO_BARRAS + BAJO_TITULO;
    linea(codigo_legible_dj(codigo_).trimmed(), PUNTOS_TOTAL + 1, true);
    linea(version_, PUNTOS_NOTA, false);
    b.alto = y;
    return b;
}

void rpt_dj_sin_mov::cierre(std::vector<Banda>& bandas) const
{
    bandas.push_back(totales());
    bandas.push_back(firmas());
    bandas.push_back(codigo());
}

bool rpt_dj_sin_mov::siguientes(std::vector<Banda>& bandas)
{
    Banda aviso;
    aviso.alto = 16;
    aviso.contenido.texto({MARGEN, 5, ANCHO_UTIL, 6}, u"SIN MOVIMIENTOS"_s, PUNTOS_DESTACADO, Alineacion::centro, true);
    bandas.push_back(aviso);
    cierre(bandas);
    return false;
}
