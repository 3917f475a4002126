// SPDX-License-Identifier: GPL-3.0-or-later
// What the printed deposit slip shows, read from the store.
#pragma once

#include <QDate>
#include <QList>
#include <QString>

struct BoletaImpresa
{
    QString nro, titular, cuit, agenteNro, posicion, banco, cuenta, filial, estado;
    QDate vencimiento, emision;
    double importe = 0, interes = 0, multa = 0, total = 0, efectivo = 0;
    struct Cheque
    {
        QString nro, banco;
        double monto = 0;
    } cheques[2];
    QString codigo;
};
/// The slips of this number in the order in which they were made: several where numbers repeat, none
/// without such a slip or its DJ. Throws ErrorAlmacen.
[[nodiscard]] QList<BoletaImpresa> leer_boleta(const QString& nro);

/// The digits of a slip's code for reading: eight pairs of five, each pair with two blanks behind it.
[[nodiscard]] QString codigo_legible_boleta(const QString& codigo);
