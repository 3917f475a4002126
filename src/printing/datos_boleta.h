// SPDX-License-Identifier: GPL-3.0-or-later
// What the printed deposit slip shows, read from the store.
#pragma once

#include <QDate>
#include <QString>

#include <optional>

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
/// Nothing without such a slip. Throws ErrorAlmacen.
[[nodiscard]] std::optional<BoletaImpresa> leer_boleta(const QString& nro);

/// The digits of a slip's code for reading: eight pairs of five, each pair with two blanks behind it.
[[nodiscard]] QString codigo_legible_boleta(const QString& codigo);
