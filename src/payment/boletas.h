// SPDX-License-Identifier: GPL-3.0-or-later
// Deposit slips of a DJ: numbering, checks, rows, and the text of their bar code.
#pragma once

#include "core/dialogo.h"
#include "core/filas.h"
#include "core/numero.h"

#include <QDate>
#include <QStringList>

/// One of the two cheques of a slip.
struct ChequeBoleta
{
    QString nro;
    QString banco;
    Numero monto{2};
};

/// The slip as the screen holds it. Amounts are the fields' texts.
struct ControlesBoleta
{
    QString dj;
    QString agenteNro;
    QString agenteNombre;
    QString anio;
    int mes = 0;
    int secuencia = 0;
    QDate emision;
    QDate vencimiento;
    Numero impuesto{2};
    Numero interes{2};
    Numero totalDepositar{2};
    Numero efectivo{2};
    ChequeBoleta cheques[2];
    Numero totalBoleta{2};
    QString filial;
};

/// Digits of a slip's bar code.
constexpr int LARGO_CODIGO_BOLETA = 80;

/// Trims the texts of the cheques; gives the first thing wrong.
[[nodiscard]] std::optional<Falla> validar_boleta(ControlesBoleta& c);

/// "202", the DJ's number and its next sequence. Only the highest number counts.
[[nodiscard]] QString proximo_nro_boleta(const QString& dj);
/// The 80 digits that the bank reads: agreement, slip, due date, amounts and the check digit. Amounts that do not fit
/// make it longer; `validar_boleta` refuses them.
[[nodiscard]] QString codigo_barras_boleta(const QString& nroBoleta, const ControlesBoleta& c);
/// Stores the slip and, in a second step, its code; gives its number, empty when no row went in.
/// Throws ErrorAlmacen; then there is no slip.
[[nodiscard]] QString insertar_boleta(const ControlesBoleta& c);
/// Rows deleted.
int borrar_boleta(const QString& nro);
/// The slips of a DJ, one call a row: number and total.
void leer_boletas(const QString& dj, const AgregarFila& fila);
