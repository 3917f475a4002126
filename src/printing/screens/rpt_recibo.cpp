// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/rpt_recibo.h"

#include "core/modNroALetras.h"
#include "core/redondeo.h"
#include "printing/screens/lineas_texto.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double PUNTOS = 9;
constexpr double FILA = 5;

}  // namespace

Banda rpt_recibo::cabecera(int) const
{
    Banda b;
    b.contenido.texto({MARGEN, 0, ANCHO_UTIL, 5}, u"PROVINCIA DE MARVEN - DIRECCIÓN GENERAL DE RENTAS"_s, 9,
                      Alineacion::centro);
    b.contenido.texto({MARGEN, 6, ANCHO_UTIL, 6}, u"COMPROBANTE DE RETENCIÓN"_s, 14, Alineacion::centro, true);
    b.contenido.texto({MARGEN, 13, ANCHO_UTIL, 5}, u"Impuesto de Sellos - Escribanos"_s, 9, Alineacion::centro);
    b.contenido.linea(MARGEN, 19, MARGEN + ANCHO_UTIL, 19, 0.4);
    b.alto = 22;
    return b;
}

bool rpt_recibo::siguientes(std::vector<Banda>& bandas)
{
    const ReciboImpreso r = r_.value_or(ReciboImpreso());
    const auto dato = [&](const char* titulo, const QString& valor, bool negrita = false) {
        auto lineas = lineas_tituladas(
            QString::fromUtf8(titulo), valor,
            {.x = MARGEN, .ancho = ANCHO_UTIL, .puntos = PUNTOS, .sangria = 46, .textoNegrita = negrita});
        for (Pagina& linea : lineas)
            bandas.push_back({lineas.size() < 2 ? FILA + 1 : FILA, std::move(linea)});
    };
    dato("Comprobante Nº", r.nro, true);
    dato("Fecha de retención", r.fechaRetencion);
    dato("DJ Nº", r.dj);
    dato("Escritura Nº", r.escritura);
    dato("Folio", r.folio);
    dato("Fecha de la escritura", r.fechaEscritura);
    dato("Partes", r.partes);
    dato("Inmuebles", r.inmuebles);
    dato("Escribano titular", r.titular);
    dato("Adscriptos", r.adscripto1 + (r.adscripto2.isEmpty() ? QString() : u"; "_s + r.adscripto2));
    dato("Importe retenido $", r_ ? importe_agrupado(r.monto) : QString(), true);
    dato("", r_ ? u"SON PESOS: "_s + nro_a_letras(r.monto, 2, false) : QString());
    Banda firma;
    firma.alto = 34;
    firma.contenido.linea(MARGEN + 110, 26, MARGEN + ANCHO_UTIL, 26);
    firma.contenido.texto({MARGEN + 110, 27, ANCHO_UTIL - 110, FILA}, u"Firma y sello del escribano"_s, 8,
                          Alineacion::centro);
    bandas.push_back(firma);
    return false;
}
