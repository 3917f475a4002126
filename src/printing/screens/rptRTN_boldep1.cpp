// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/rptRTN_boldep1.h"

#include "core/modNroALetras.h"
#include "core/modUtiles.h"
#include "core/redondeo.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double ALTO_COPIA = 66;
constexpr double MODULO = 0.253;  // narrow bar: the widest that leaves its quiet zones on the page
constexpr double ALTO_BARRAS = 11;
constexpr const char* COPIAS[] = {"Para el Banco", "Para la Dirección General de Rentas", "Para el Agente de Retención",
                                  "Para la Casa Central del Banco"};

}  // namespace

bool rptRTN_boldep1::siguientes(std::vector<Banda>& bandas)
{
    for (int i = 0; i < 4; ++i)
        bandas.push_back(copia(QString::fromUtf8(COPIAS[i]), i == 3));
    return false;
}

Banda rptRTN_boldep1::copia(const QString& para, bool ultima) const
{
    Banda banda;
    banda.alto = ALTO_COPIA;
    Pagina& p = banda.contenido;
    const auto fila = [&](double x, double y, double ancho, const QString& titulo, const QString& valor) {
        p.texto({x, y, ancho, 4}, titulo, 7);
        p.ajustado({x, y + 3, ancho, 4}, valor, 8.5, Alineacion::izquierda, true);
    };
    const auto monto = [&](double x, double y, const QString& titulo, double importe, bool negrita = false) {
        p.texto({x, y, 30, 4}, titulo, 8);
        p.ajustado({x + 26, y, 32, 4}, importe_agrupado(importe), 8.5, Alineacion::derecha, negrita);
    };
    const double x = MARGEN;
    p.texto({x, 0, 110, 5}, u"IMPUESTO DE SELLOS - BOLETA DE DEPÓSITO"_s, 10, Alineacion::izquierda, true);
    p.texto({x + 96, 0.6, 90, 4}, para, 8, Alineacion::derecha);
    if (!b_.estado.isEmpty())
        p.texto({x + 76, 0, 34, 5}, b_.estado.toUpper(), 11, Alineacion::centro, true);
    p.linea(x, 5.2, x + ANCHO_UTIL, 5.2);

    fila(x, 6, 62, u"Boleta Nº"_s, b_.nro);
    fila(x + 64, 6, 84, u"Agente de Retención Nº "_s + b_.agenteNro, b_.titular);
    fila(x + 150, 6, 36, u"CUIT"_s, b_.cuit);
    fila(x, 14, 62, u"Banco"_s, b_.banco);
    fila(x + 64, 14, 30, u"Cuenta"_s, b_.cuenta);
    fila(x + 96, 14, 31, u"Filial"_s, b_.filial);
    fila(x, 22, 62, u"Posición"_s, b_.posicion);
    fila(x + 64, 22, 30, u"Emisión"_s, fecha_corta(b_.emision));
    fila(x + 96, 22, 31, u"Vencimiento"_s, fecha_corta(b_.vencimiento));

    monto(x + 128, 14, u"Impuesto $"_s, b_.importe);
    monto(x + 128, 18, u"Interés $"_s, b_.interes);
    monto(x + 128, 22, u"Multa $"_s, b_.multa);
    p.linea(x + 128, 26.2, x + ANCHO_UTIL, 26.2);
    monto(x + 128, 26.8, u"Total $"_s, b_.total, true);
    monto(x, 31, u"Efectivo $"_s, b_.efectivo);
    for (int i = 0; i < 2; ++i) {
        const auto& c = b_.cheques[i];
        const double y = 31 + 4.0 * i;
        if (c.monto == 0 && c.nro.isEmpty())
            continue;
        p.ajustado({x + 64, y, 88, 4}, u"Cheque Nº %1 %2"_s.arg(c.nro, c.banco), 8);
        monto(x + 128, y, {}, c.monto);
    }
    double y = 39;
    for (const QString& linea : en_lineas(u"SON PESOS: "_s + nro_a_letras(b_.total, 2, false), ANCHO_UTIL, 8)) {
        p.texto({x, y, ANCHO_UTIL, 4}, linea, 8);
        y += 3.4;
    }
    double ancho = 0;
    const auto barras = barras_de(b_.codigo, Simbologia::intercalado2de5, MODULO, ALTO_BARRAS, ancho);
    for (const QRectF& b : barras)
        p.barras.push_back(b.translated((ANCHO_A4 - ancho) / 2, 46));
    if (!barras.empty())
        p.texto({0, 46 + ALTO_BARRAS + 0.6, ANCHO_A4, 4}, codigo_legible_boleta(b_.codigo), 7.5, Alineacion::centro);
    if (!ultima)
        p.linea(4, ALTO_COPIA - 2.5, ANCHO_A4 - 4, ALTO_COPIA - 2.5, 0.15, true);
    return banda;
}
