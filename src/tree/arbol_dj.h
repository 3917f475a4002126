// SPDX-License-Identifier: GPL-3.0-or-later
// The declaration tree: a DJ, its deeds, their parties, real estate and operations, with one
// field a column.
#pragma once

#include "core/columnas.h"

#include <QDate>
#include <QString>

/// State of a DJ.
inline constexpr int DJ_NORMAL = 0;
inline constexpr int DJ_SIN_MOVIMIENTOS = 1;

struct CabeceraDJ
{
    QString nro;
    int anio = 0;
    int mes = 0;
    int secuencia = 0;
    int estado = DJ_NORMAL;
    QString observaciones;
    double totalRetenido = 0;
    QDate vencimiento;
    int agente = 0;
    QString titular;
    std::optional<qint64> cuit;
    QString domicilio;
    QString codPostal;
    QString telefono;
    std::optional<int> localidad;
    QString adscripto1;
    std::optional<qint64> adscripto1Cuit;
    QString adscripto2;
    std::optional<qint64> adscripto2Cuit;
    QString email;
    double acredMonto = 0;
    QString acredResolucion;  ///< "0000/00"
};

struct Escritura
{
    QString dj;
    int id = 0;
    int dia = 0;
    qint64 nro = 0;
    qint64 folio = 0;
    double totalImpuesto = 0;
    QString observaciones;
    std::optional<double> certifAfip = 0;
    QString estado;             ///< "P", "N" or "E"
    QString alcanzado;          ///< "S" or "N"
    std::optional<int> motivo;  ///< why it is not reached
    QString motivoOtro;
    QString testimonio;
};

struct Inmueble
{
    QString dj;
    int renglon = 0;
    int id = 0;
    QString partida;
    double valFiscal = 0;
    QString observaciones;
    QString lote, manzana, uFuncional, circulacion, piso, dpto, calle, nro, barrio, ciudad, departamento, provincia;
    std::optional<int> caracter;
    QString ncSeccion, ncFraccion, ncLote, ncEjido, ncCircunscripcion, ncSector, ncManzana, ncParcela;
};

struct Parte
{
    int id = 0;
    QString dj;
    int renglon = 0;
    QString tipoDoc;
    QString nroDoc;
    std::optional<double> cuit;
    bool cuitEnTramite = false;
    QString razonSocial;
    std::optional<double> porcExento;
    QString observaciones;
    std::optional<int> tipoSociedad;
    QString domicilio;
    QString codPostal;
    std::optional<int> localidad;
    std::optional<int> provincia;
    QString nacionalidad;  ///< "A" or "E"
    QString codigoPais;
};

struct Operacion
{
    QString dj;
    int renglon = 0;
    int id = 0;
    int subconcepto = 0;
    std::optional<double> baseImponible, valuacionFiscal, modulos, alicuota, impuestoCalculado, porcExento, montoExento,
        montoInicial, montoFinal;
    QString nro;
    std::optional<double> adicionales;
    QString obligFop;  ///< "F" fixed, "P" per cent
    std::optional<double> obligValor;
    std::optional<int> obligModo;
    QString obligPoliza;
    std::optional<double> pagoACuenta, hipoteca;
    QString ley;
    QString observaciones;
};

struct ValorContractual
{
    QString dj;
    int renglon = 0;
    int operacion = 0;
    int id = 0;
    std::optional<double> valor, porcIva;
    QString moneda;
    std::optional<double> valorCambio, total;
};

struct RolOperacion
{
    QString dj;
    int renglon = 0;
    int operacion = 0;
    int parte = 0;
    qint64 rol = 0;
    QString observaciones;
};

/// The columns of each table, in the order of its insert.
[[nodiscard]] std::span<const Columna<CabeceraDJ>> columnas_cabecera();
[[nodiscard]] std::span<const Columna<Escritura>> columnas_escritura();
[[nodiscard]] std::span<const Columna<Inmueble>> columnas_inmueble();
[[nodiscard]] std::span<const Columna<Parte>> columnas_parte();
[[nodiscard]] std::span<const Columna<Operacion>> columnas_operacion();
[[nodiscard]] std::span<const Columna<ValorContractual>> columnas_valor();
[[nodiscard]] std::span<const Columna<RolOperacion>> columnas_rol();
