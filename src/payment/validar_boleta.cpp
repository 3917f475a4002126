// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/reloj.h"
#include "payment/boletas.h"

using namespace Qt::StringLiterals;

std::optional<Falla> validar_boleta(ControlesBoleta& c)
{
    ChequeBoleta& uno = c.cheques[0];
    ChequeBoleta& dos = c.cheques[1];
    for (ChequeBoleta* cheque : {&uno, &dos}) {
        cheque->nro = cheque->nro.trimmed();
        cheque->banco = cheque->banco.trimmed();
    }
    const double m1 = uno.monto.Value();
    const double m2 = dos.monto.Value();
    auto falla = primera_falla({
        {c.efectivo.Value() == 0 && m1 == 0 && m2 == 0, "Ingrese la forma de pago en la boleta de depósito.",
         "nroEfectivo"},
        {!uno.nro.isEmpty() && m1 == 0, "Ingrese el monto del primer cheque", "txtCheque1_nro"},
        {m1 > 0 && uno.nro.isEmpty(), "Ingrese el Nº del primer cheque", "txtCheque1_nro"},
        {m1 > 0 && uno.banco.isEmpty(), "Ingrese el banco del primer cheque", "txtCheque1_banco"},
        {!dos.nro.isEmpty() && m2 == 0, "Ingrese el monto del segundo cheque", "txtCheque2_nro"},
        {m2 > 0 && dos.nro.isEmpty(), "Ingrese el Nº del segundo cheque", "txtCheque2_nro"},
        {m2 > 0 && dos.banco.isEmpty(), "Ingrese el banco del segundo cheque", "txtCheque2_banco"},
        // Only the dates count: whether interest was typed is not looked at.
        {hoy() > c.vencimiento, "El periodo se encuentra vencido. Ingrese el interes", "nroInteres"},
        {c.totalDepositar.Value() != c.totalBoleta.Value(),
         "El monto total de la boleta no coincide con el total retenido mas intereses", "nroTotalBoleta"},
        {codigo_barras_boleta({}, c).size() > LARGO_CODIGO_BOLETA, "Los importes no entran en el código de barras",
         "nroEfectivo"},
    });
    if (falla)
        falla->titulo = u"Generar boleta de deposito"_s;
    return falla;
}
