// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/rptRTN_boldep1.h"

#include "core/modNroALetras.h"
#include "core/modUtiles.h"
#include "core/redondeo.h"
#include "printing/screens/barras_codigo.h"
#include "printing/screens/lineas_texto.h"

#include <variant>

using namespace Qt::StringLiterals;

namespace {

constexpr double ALTO_COPIA = 66;
constexpr double MODULO = 0.253;  // narrow bar: the widest that leaves its quiet zones on the page
constexpr double ALTO_BARRAS = 11;
constexpr const char* COPIAS[] = {"Para el Banco", "Para la Dirección General de Rentas", "Para el Agente de Retención",
                                  "Para la Casa Central del Banco"};

enum class Estilo {
    bajoTitulo,     // the title in a small letter, the value below it
    importe,        // an amount to the right of its title
    importeFuerte,  // the same in bold
};

using B = BoletaImpresa;

// A field of the slip: its place from the margin and the top of the copy, in millimetres.
struct CampoBoleta
{
    double x, y, ancho;
    const char* titulo;
    std::variant<QString B::*, QDate B::*, double B::*> valor;
    Estilo estilo = Estilo::bajoTitulo;
    QString B::*trasTitulo = nullptr;  // a text that ends the title
};

const CampoBoleta CAMPOS[] = {
    {0, 6, 62, "Boleta Nº", &B::nro},
    {64, 6, 84, "Agente de Retención Nº ", &B::titular, Estilo::bajoTitulo, &B::agenteNro},
    {150, 6, 36, "CUIT", &B::cuit},
    {0, 14, 62, "Banco", &B::banco},
    {64, 14, 30, "Cuenta", &B::cuenta},
    {96, 14, 31, "Filial", &B::filial},
    {0, 22, 62, "Posición", &B::posicion},
    {64, 22, 30, "Emisión", &B::emision},
    {96, 22, 31, "Vencimiento", &B::vencimiento},
    {128, 14, 58, "Impuesto $", &B::importe, Estilo::importe},
    {128, 18, 58, "Interés $", &B::interes, Estilo::importe},
    {128, 22, 58, "Multa $", &B::multa, Estilo::importe},
    {128, 26.8, 58, "Total $", &B::total, Estilo::importeFuerte},
    {0, 31, 58, "Efectivo $", &B::efectivo, Estilo::importe},
};

constexpr double FILA_CHEQUES = 31;
constexpr double FILA_LETRAS = 39;
constexpr double FILA_BARRAS = 46;

QString como_texto(const QString& t)
{
    return t;
}
QString como_texto(const QDate& fecha)
{
    return fecha_corta(fecha);
}
QString como_texto(double importe)
{
    return importe_agrupado(importe);
}

void poner_importe(Pagina& p, double x, double y, double ancho, const QString& titulo, const QString& importe,
                   bool negrita)
{
    constexpr double DEL_TITULO = 26;
    p.texto({x, y, 30, 4}, titulo, 8);
    p.ajustado({x + DEL_TITULO, y, ancho - DEL_TITULO, 4}, importe, 8.5, Alineacion::derecha, negrita);
}

void poner_campo(Pagina& p, double margen, const CampoBoleta& c, const BoletaImpresa& b)
{
    const QString titulo = QString::fromUtf8(c.titulo) + (c.trasTitulo ? b.*c.trasTitulo : QString());
    const QString valor = std::visit([&b](auto miembro) { return como_texto(b.*miembro); }, c.valor);
    const double x = margen + c.x;
    if (c.estilo != Estilo::bajoTitulo) {
        poner_importe(p, x, c.y, c.ancho, titulo, valor, c.estilo == Estilo::importeFuerte);
        return;
    }
    p.texto({x, c.y, c.ancho, 4}, titulo, 7);
    p.ajustado({x, c.y + 3, c.ancho, 4}, valor, 8.5, Alineacion::izquierda, true);
}

void poner_cheques(Pagina& p, double margen, const BoletaImpresa& b)
{
    double y = FILA_CHEQUES;
    for (const auto& c : b.cheques) {
        if (c.monto != 0 || !c.nro.isEmpty()) {
            p.ajustado({margen + 64, y, 88, 4}, u"Cheque Nº %1 %2"_s.arg(c.nro, c.banco), 8);
            poner_importe(p, margen + 128, y, 58, {}, como_texto(c.monto), false);
        }
        y += 4;
    }
}

void poner_codigo(Pagina& p, const QString& codigo)
{
    const Barras barras = barras_de(codigo, Simbologia::intercalado2de5, MODULO, ALTO_BARRAS);
    agregar_centradas(p, barras, FILA_BARRAS);
    if (!barras.negras.empty())
        p.texto({0, FILA_BARRAS + ALTO_BARRAS + 0.6, ANCHO_A4, 4}, codigo_legible_boleta(codigo), 7.5,
                Alineacion::centro);
}

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
    const double x = MARGEN;
    p.texto({x, 0, 110, 5}, u"IMPUESTO DE SELLOS - BOLETA DE DEPÓSITO"_s, 10, Alineacion::izquierda, true);
    p.texto({x + 96, 0.6, 90, 4}, para, 8, Alineacion::derecha);
    if (!b_.estado.isEmpty())
        p.texto({x + 76, 0, 34, 5}, b_.estado.toUpper(), 11, Alineacion::centro, true);
    p.linea(x, 5.2, x + ANCHO_UTIL, 5.2);
    p.linea(x + 128, 26.2, x + ANCHO_UTIL, 26.2);
    for (const CampoBoleta& campo : CAMPOS)
        poner_campo(p, x, campo, b_);
    poner_cheques(p, x, b_);
    double y = FILA_LETRAS;
    for (const QString& linea : en_lineas(u"SON PESOS: "_s + nro_a_letras(b_.total, 2, false), ANCHO_UTIL, 8)) {
        p.texto({x, y, ANCHO_UTIL, 4}, linea, 8);
        y += 3.4;
    }
    poner_codigo(p, b_.codigo);
    if (!ultima)
        p.linea(4, ALTO_COPIA - 2.5, ANCHO_A4 - 4, ALTO_COPIA - 2.5, 0.15, true);
    return banda;
}
