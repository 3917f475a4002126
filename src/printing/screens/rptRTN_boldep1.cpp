// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/rptRTN_boldep1.h"

#include "core/modNroALetras.h"
#include "core/modUtiles.h"
#include "core/redondeo.h"
#include "printing/screens/barras_codigo.h"
#include "printing/screens/estilo.h"
#include "printing/screens/letra.h"

#include <variant>

using namespace Qt::StringLiterals;
using namespace estilo;

namespace {

using B = BoletaImpresa;

constexpr const char* COPIAS[] = {"Para el Banco", "Para la Dirección General de Rentas", "Para el Agente de Retención",
                                  "Para la Casa Central del Banco"};
constexpr double ALTO_COPIA = (ALTO_A4 - 2 * MARGEN) / std::size(COPIAS);

// A field of the slip: its place from the margin and the top of the copy.
struct CampoBoleta
{
    double x, y, ancho;
    const char* titulo;
    std::variant<QString B::*, QDate B::*> valor;
    QString B::*trasTitulo = nullptr;  // a text that ends the title
};
const CampoBoleta CAMPOS[] = {
    {0, 11, 94, "Agente de Retención Nº ", &B::titular, &B::agenteNro},
    {98, 11, 34, "CUIT", &B::cuit},
    {0, 17.7, 60, "Posición", &B::posicion},
    {64, 17.7, 30, "Emisión", &B::emision},
    {98, 17.7, 34, "Vencimiento", &B::vencimiento},
    {0, 24.4, 60, "Banco", &B::banco},
    {64, 24.4, 30, "Cuenta", &B::cuenta},
    {98, 24.4, 34, "Filial", &B::filial},
};

// An amount: place from the margin, its title, and the amount at the right end of the width.
struct ImporteBoleta
{
    double x, y, ancho;
    const char* titulo;
    double B::*valor;
    bool fuerte = false;
};
constexpr ImporteBoleta IMPORTES[] = {
    {138, 11.2, 48, "Impuesto $", &B::importe}, {138, 14.8, 48, "Interés $", &B::interes},
    {138, 18.4, 48, "Multa $", &B::multa},      {138, 22.8, 48, "Total $", &B::total, true},
    {0, 31.6, 132, "Efectivo $", &B::efectivo},
};
constexpr double ANCHO_IMPORTE = 33;
constexpr double FILA_IMPORTE = 3.7;
constexpr double FILA_PAGO = 4.4;  // two lines, when a bank's name needs them
constexpr double SOBRE_TOTAL = 22.3;

constexpr double FILA_CHEQUES = 36;
constexpr double ANCHO_CHEQUE = 132;
constexpr QRectF LETRAS{0, 45.9, ANCHO_UTIL, 3.6};
constexpr QRectF SELLO{138, 27.6, 48, 17.6};
constexpr double FILA_BARRAS = 50.4;
constexpr double ALTO_BARRAS = 10;
constexpr double CORTE = 66.4;

QString como_texto(const QString& t)
{
    return t;
}
QString como_texto(const QDate& fecha)
{
    return fecha_corta(fecha);
}

void poner_importe(Pagina& p, double x, double y, double ancho, const QString& titulo, double importe,
                   bool fuerte = false)
{
    p.ajustado({MARGEN + x, y, ancho - ANCHO_IMPORTE, FILA_PAGO}, titulo, PUNTOS, Alineacion::izquierda, fuerte);
    p.ajustado({MARGEN + x + ancho - ANCHO_IMPORTE, y, ANCHO_IMPORTE, FILA_IMPORTE}, importe_agrupado(importe), PUNTOS,
               Alineacion::derecha, fuerte);
}

void poner_campos(Pagina& p, const B& b)
{
    for (const CampoBoleta& c : CAMPOS)
        campo(p, c.x, c.y, c.ancho, QString::fromUtf8(c.titulo) + (c.trasTitulo ? b.*c.trasTitulo : QString()),
              std::visit([&b](auto miembro) { return como_texto(b.*miembro); }, c.valor), COPIA);
    for (const ImporteBoleta& i : IMPORTES)
        poner_importe(p, i.x, i.y, i.ancho, QString::fromUtf8(i.titulo), b.*i.valor, i.fuerte);
    p.linea(MARGEN + SELLO.left(), SOBRE_TOTAL, MARGEN + ANCHO_UTIL, SOBRE_TOTAL, REGLA_GRUESA);
}

void poner_cheques(Pagina& p, const B& b)
{
    double y = FILA_CHEQUES;
    for (const auto& c : b.cheques) {
        if (c.monto != 0 || !c.nro.isEmpty())
            poner_importe(p, 0, y, ANCHO_CHEQUE, u"Cheque Nº %1 %2 $"_s.arg(c.nro, c.banco), c.monto);
        y += FILA_PAGO;
    }
}

// Room for what the bank stamps and signs; on an annulled slip there is none.
void poner_sello(Pagina& p, const QString& estado)
{
    const QRectF marco = SELLO.translated(MARGEN, 0);
    p.marco(marco, REGLA);
    const double pie = alto_linea(COPIA.rotulo);
    if (!estado.isEmpty())
        p.ajustado({marco.left() + 2, marco.center().y() - 4, marco.width() - 4, 8}, estado.toUpper(),
                   PUNTOS_DESTACADO + 4, Alineacion::centro, true);
    else
        p.texto({marco.left(), marco.bottom() - pie - 0.5, marco.width(), pie}, u"Sello y firma del Banco"_s,
                COPIA.rotulo, Alineacion::centro);
}

void poner_codigo(Pagina& p, const QString& codigo)
{
    const Barras barras = barras_de(codigo, Simbologia::intercalado2de5, ALTO_BARRAS);
    agregar_centradas(p, barras, FILA_BARRAS);
    if (!barras.negras.empty())
        p.texto({MARGEN, FILA_BARRAS + ALTO_BARRAS + 0.6, ANCHO_UTIL, FILA_IMPORTE},
                codigo_legible_boleta(codigo).trimmed(), COPIA.dato, Alineacion::centro);
}

Banda copia(const B& b, size_t cual)
{
    Banda banda = encabezado(u"BOLETA DE DEPÓSITO"_s, {u"Boleta Nº "_s + b.nro, QString::fromUtf8(COPIAS[cual])},
                             COPIA);
    banda.alto = ALTO_COPIA;
    Pagina& p = banda.contenido;
    poner_campos(p, b);
    poner_cheques(p, b);
    p.ajustado(LETRAS.translated(MARGEN, 0), u"SON PESOS: "_s + nro_a_letras(b.total, 2, false), PUNTOS);
    poner_sello(p, b.estado);
    poner_codigo(p, b.codigo);
    // The four copies stay on one page.
    banda.conLaSiguiente = cual + 1 < std::size(COPIAS);
    if (banda.conLaSiguiente)
        p.linea(4, CORTE, ANCHO_A4 - 4, CORTE, REGLA, true);
    return banda;
}

}  // namespace

bool rptRTN_boldep1::siguientes(std::vector<Banda>& bandas)
{
    if (siguiente_ >= boletas_.size())
        return false;
    for (size_t i = 0; i < std::size(COPIAS); ++i)
        bandas.push_back(copia(boletas_[siguiente_], i));
    return ++siguiente_ < boletas_.size();
}
