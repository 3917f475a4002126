// SPDX-License-Identifier: GPL-3.0-or-later
// What the printed forms show, read from the store.
#pragma once

#include <QDate>
#include <QList>
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
[[nodiscard]] std::optional<BoletaImpresa> leer_boleta(const QString& nro);

struct CabeceraImpresa
{
    QString nro, posicion, rectificativa, agenteNro, titular, cuit, localidad, codPostal, domicilio, telefono, email;
    QString adscripto1, adscripto1Cuit, adscripto2, adscripto2Cuit, observaciones, resolucion;
    double totalRetenido = 0, acreditado = 0;
};

struct OperacionImpresa
{
    QString descripcion, ley, observaciones;
    std::optional<double> base, modulos, alicuota, porcExento, montoExento, pagoACuenta, adicionales, calculado,
        valuacion, hipoteca, final;
};

struct EscrituraImpresa
{
    QString nro, folio, dia, estado, motivo, partes, inmuebles, observaciones;
    double impuesto = 0;
    bool alcanzada = false;
    QList<OperacionImpresa> operaciones;
};

struct DJImpresa
{
    CabeceraImpresa cabecera;
    QList<EscrituraImpresa> escrituras;
    bool sinMovimientos = false;  ///< it has no deeds in the store
};
/// A header without a locality drops out of the printed DJ, and its deeds with it: header and deeds
/// are empty then. Throws ErrorAlmacen.
[[nodiscard]] DJImpresa leer_dj_impresa(const QString& nro);
/// Fills SEL_TMP_DJ_OPER with the texts of the parties and the real estate of each deed of a DJ.
void cargar_tmp_dj_oper(const QString& nro);

struct ReciboImpreso
{
    QString nro, dj, escritura, folio, fechaRetencion, fechaEscritura, titular, adscripto1, adscripto2, partes,
        inmuebles;
    double monto = 0;
};
/// Nothing for an annulled receipt or one of a deed that did not pass; the texts of its DJ are filled
/// before. Throws ErrorAlmacen.
[[nodiscard]] std::optional<ReciboImpreso> leer_recibo(const QString& nro);

/// The digits of a slip's code for reading: eight pairs of five, each pair with two blanks behind it.
[[nodiscard]] QString codigo_legible_boleta(const QString& codigo);
/// The integrity code for reading: eight groups of four, each with a blank behind it.
[[nodiscard]] QString codigo_legible_dj(const QString& codigo);
