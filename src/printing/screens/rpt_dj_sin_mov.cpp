// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/rpt_dj_sin_mov.h"

#include "core/redondeo.h"
#include "printing/screens/barras_codigo.h"
#include "printing/screens/letra.h"
#include "printing/screens/lineas_texto.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double MODULO = 0.33;
constexpr double ALTO_BARRAS = 14;

}  // namespace

// The agent stands on the first page only.
Banda rpt_dj_sin_mov::cabecera(int pagina) const
{
    Banda b;
    Pagina& p = b.contenido;
    const double x = MARGEN;
    p.emblemas.emplace_back(x, 0, 14, 17);
    p.texto({x + 18, 0, 120, 5}, u"PROVINCIA DE MARVEN - DIRECCIÓN GENERAL DE RENTAS"_s, 9);
    p.texto({x + 18, 5, 120, 6}, u"DECLARACIÓN JURADA"_s, 13, Alineacion::izquierda, true);
    p.texto({x + 18, 11.5, 120, 5}, u"Impuesto de Sellos - Agentes de Retención - Escribanos"_s, 9);
    p.texto({x + 120, 0, 66, 5}, u"DJ Nº "_s + dj_.cabecera.nro, 9, Alineacion::derecha, true);
    p.texto({x + 120, 5, 66, 5}, u"Posición "_s + dj_.cabecera.posicion, 9, Alineacion::derecha);
    p.texto({x + 120, 10, 66, 5}, dj_.cabecera.rectificativa, 9, Alineacion::derecha);
    p.linea(x, 18.5, x + ANCHO_UTIL, 18.5, 0.4);
    b.alto = 20.5;
    if (pagina == 0) {
        const Banda datos = agente();
        p.agregar(datos.contenido, b.alto);
        b.alto += datos.alto;
    }
    return b;
}

Banda rpt_dj_sin_mov::agente() const
{
    const CabeceraImpresa& c = dj_.cabecera;
    Banda b;
    double y = 0;
    const auto dato = [&](double x, double ancho, const char* titulo, const QString& valor) {
        const QString t = QString::fromUtf8(titulo);
        const double sangria = ancho_texto(t, PUNTOS) + 1.5;
        b.contenido.texto({MARGEN + x, y, ancho, FILA}, t, PUNTOS);
        b.contenido.ajustado({MARGEN + x + sangria, y, ancho - sangria, FILA}, valor, PUNTOS, Alineacion::izquierda,
                             true);
    };
    const auto largo = [&](const char* titulo, const QString& valor) {
        for (const Pagina& linea :
             lineas_tituladas(QString::fromUtf8(titulo), valor,
                              {.x = MARGEN, .ancho = ANCHO_UTIL, .puntos = PUNTOS, .textoNegrita = true})) {
            b.contenido.agregar(linea, y);
            y += FILA;
        }
    };
    dato(0, 40, "Agente Nº", c.agenteNro);
    dato(42, 102, "Titular", c.titular);
    dato(146, 40, "CUIT", c.cuit);
    y += FILA;
    largo("Domicilio", c.domicilio);
    dato(0, 80, "Localidad", c.localidad);
    dato(82, 40, "Cód. Postal", c.codPostal);
    dato(124, 62, "Teléfono", c.telefono);
    y += FILA;
    if (!c.email.isEmpty())
        largo("e-mail", c.email);
    for (const auto& [nombre, cuit] : {std::pair{c.adscripto1, c.adscripto1Cuit}, {c.adscripto2, c.adscripto2Cuit}})
        if (!nombre.isEmpty()) {
            dato(0, 144, "Adscripto", nombre);
            dato(146, 40, "CUIT", cuit);
            y += FILA;
        }
    if (!c.observaciones.isEmpty())
        largo("Observaciones", c.observaciones);
    b.contenido.linea(MARGEN, y + 1, MARGEN + ANCHO_UTIL, y + 1);
    b.alto = y + 3;
    return b;
}

Banda rpt_dj_sin_mov::totales() const
{
    const CabeceraImpresa& c = dj_.cabecera;
    Banda total;
    total.conLaSiguiente = true;
    double y = 2;
    total.contenido.linea(MARGEN + 96, 1, MARGEN + ANCHO_UTIL, 1, 0.4);
    const auto importe = [&](const QString& titulo, double valor) {
        total.contenido.texto({MARGEN + 71, y, 77, FILA}, titulo, 9, Alineacion::derecha, true);
        total.contenido.texto({MARGEN + 150, y, 36, FILA}, importe_agrupado(valor), 9, Alineacion::derecha, true);
        y += 5;
    };
    importe(u"Importe total retenido $"_s, c.totalRetenido);
    if (c.acreditado != 0)
        importe(u"Acreditado por Resolución Nº "_s + c.resolucion + u" $"_s, c.acreditado);
    importe(u"Total a depositar $"_s, c.totalRetenido - c.acreditado);
    total.alto = y + 4;
    return total;
}

Banda rpt_dj_sin_mov::firmas() const
{
    Banda firma;
    firma.conLaSiguiente = true;
    firma.alto = 28;
    firma.contenido.texto(
        {MARGEN, 0, ANCHO_UTIL, FILA},
        u"Declaro bajo juramento que los datos consignados son correctos y completos, sin omitir ni falsear dato alguno."_s,
        PUNTOS);
    for (const auto& [x, titulo] : {std::pair{0.0, "Lugar y fecha"}, {66.0, "Firma"}, {132.0, "Aclaración y sello"}}) {
        firma.contenido.linea(MARGEN + x, 20, MARGEN + x + 54, 20);
        firma.contenido.texto({MARGEN + x, 21, 54, FILA}, QString::fromUtf8(titulo), PUNTOS, Alineacion::centro);
    }
    return firma;
}

Banda rpt_dj_sin_mov::codigo() const
{
    Banda b;
    b.contenido.texto({MARGEN, 0, ANCHO_UTIL, FILA}, u"Código de verificación de la integridad"_s, PUNTOS,
                      Alineacion::centro);
    agregar_centradas(b.contenido, barras_de(codigo_, Simbologia::code128, MODULO, ALTO_BARRAS), FILA + 1);
    b.contenido.texto({MARGEN, FILA + ALTO_BARRAS + 2, ANCHO_UTIL, FILA}, codigo_legible_dj(codigo_), 10,
                      Alineacion::centro, true);
    b.contenido.texto({MARGEN, FILA + ALTO_BARRAS + 7, ANCHO_UTIL, FILA}, version_, 7, Alineacion::centro);
    b.alto = FILA + ALTO_BARRAS + 12;
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
    aviso.contenido.texto({MARGEN, 5, ANCHO_UTIL, 6}, u"SIN MOVIMIENTOS"_s, 13, Alineacion::centro, true);
    bandas.push_back(aviso);
    cierre(bandas);
    return false;
}
