// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/rpt_recibo.h"

#include "core/modNroALetras.h"
#include "core/redondeo.h"
#include "printing/screens/estilo.h"

using namespace Qt::StringLiterals;
using namespace estilo;

namespace {

using R = ReciboImpreso;

const Campo<R> CAMPOS[] = {
    {0, 0, 46, "Fecha de retención", &R::fechaRetencion},
    {0, 48, 46, "Escritura Nº", &R::escritura},
    {0, 96, 46, "Folio", &R::folio},
    {0, 144, 42, "Fecha de la escritura", &R::fechaEscritura},
    {1, 0, ANCHO_UTIL, "Escribano titular", &R::titular},
    {2, 0, 94, "Adscripto", &R::adscripto1},
    {2, 96, 90, "Adscripto", &R::adscripto2},
};

constexpr double FILA_MONTO = 6.5;
constexpr QRectF LETRAS{0, FILA_MONTO, ANCHO_UTIL, 7.5};

// The line that is signed.
constexpr double FIRMA = 110;
constexpr double RENGLON_FIRMA = 26;

Banda monto_y_firma(double monto)
{
    Banda b;
    Pagina& p = b.contenido;
    p.texto({MARGEN, 2, ANCHO_UTIL, FILA_MONTO}, u"Importe retenido $ "_s + importe_agrupado(monto), PUNTOS_DESTACADO,
            Alineacion::izquierda, true);
    p.ajustado(LETRAS.translated(MARGEN, 2), u"SON PESOS: "_s + nro_a_letras(monto, 2, false), PUNTOS);
    const double y = LETRAS.bottom() + RENGLON_FIRMA;
    p.linea(MARGEN + FIRMA, y, MARGEN + ANCHO_UTIL, y, REGLA);
    p.texto({MARGEN + FIRMA, y + 1, ANCHO_UTIL - FIRMA, FILA}, u"Firma y sello del escribano"_s, PUNTOS,
            Alineacion::centro);
    b.alto = y + FILA + 2;
    return b;
}

// Instead of a form that could be filled in by hand.
Banda sin_efecto(const QString& nro)
{
    Banda b;
    b.contenido.texto({MARGEN, 6, ANCHO_UTIL, 6}, u"COMPROBANTE SIN VALOR"_s, PUNTOS_DESTACADO, Alineacion::centro,
                      true);
    b.contenido.texto(
        {MARGEN, 14, ANCHO_UTIL, FILA},
        u"El comprobante Nº %1 está anulado, o su escritura no tiene el estado PASO: no se imprime."_s.arg(nro),
        PUNTOS_TOTAL, Alineacion::centro);
    b.alto = 24;
    return b;
}

}  // namespace

Banda rpt_recibo::cabecera(int) const
{
    QStringList derecha{u"Comprobante Nº "_s + nro_};
    if (r_)
        derecha << u"DJ Nº "_s + r_->dj;
    return encabezado(u"COMPROBANTE DE RETENCIÓN"_s, derecha);
}

bool rpt_recibo::siguientes(std::vector<Banda>& bandas)
{
    if (!r_) {
        bandas.push_back(sin_efecto(nro_));
        return false;
    }
    for (Banda& fila : filas_de_campos(CAMPOS, *r_))
        bandas.push_back(std::move(fila));
    campo_largo(bandas, u"Partes"_s, r_->partes);
    if (!r_->inmuebles.isEmpty())
        campo_largo(bandas, u"Inmuebles"_s, r_->inmuebles);
    bandas.push_back(monto_y_firma(r_->monto));
    return false;
}
