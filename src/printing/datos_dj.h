// SPDX-License-Identifier: GPL-3.0-or-later
// What the printed DJ shows, read from the store.
#pragma once

#include <QList>
#include <QString>

#include <optional>

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

/// The integrity code for reading: eight groups of four, each with a blank behind it.
[[nodiscard]] QString codigo_legible_dj(const QString& codigo);
