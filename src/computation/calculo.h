// SPDX-License-Identifier: GPL-3.0-or-later
// The stamp tax of one operation. It works on number fields and nothing else: an amount is
// rounded when it is written to a field, and every later use reads the field back.
#pragma once

#include "catalogue/subconcepto_memoria.h"
#include "core/dialogo.h"
#include "core/numero.h"

#include <QList>

/// The fields of an operation; on the screen they are the models of its controls.
struct CamposImpuesto
{
    Numero& nroTotalVC;
    Numero& nroValuacionFiscal;
    Numero& nroHipoteca;
    Numero& nroObligAccesoria;
    Numero& nroBaseImponible;
    Numero& ctlBaseImponiblePesos;
    Numero& nroAux;
    Numero& nroMoA;
    Numero& nroExencionPorc;
    Numero& nroMontoExento;
    Numero& ctlImpuestoCalculado;
    Numero& ctlImporteMinimo;
    Numero& nroPagoACuenta;
    Numero& nroAdicionales;
    Numero& nroImpuesto;
    Numero& ctlValorCambio;
};

/// The same fields standing alone, all with 2 decimals but the modules or rate with 4.
struct CamposSueltos
{
    Numero n[16];
    CamposSueltos();
    CamposImpuesto campos();
};

/// What the calculation knows of the rest of the screen.
struct EstadoOperacion
{
    struct Parte
    {
        QString rol;                       ///< description of its role, empty without one
        std::optional<double> porcExento;  ///< its exemption per cent
    };

    const clsSubconcepto* subconcepto = nullptr;
    QList<Parte> partes;
    QString idMoneda;             ///< of the currency selected
    bool obligAccesoria = false;  ///< the box is ticked
    int obligAccesoriaDato = -1;  ///< item data of the mode, -1 without a selection
    bool obligAccesoriaFijo = false;
    bool obligAccesoriaPorc = false;

    QString titulo;           ///< caption of the screen, for messages
    QString lblMoA;           ///< written: "Módulos" or "Alícuota"
    bool enfocarMoA = false;  ///< written: no rate was found, the field gets the focus
};

/// The law that applies on a date, 0 without one, which is told. The value of the module of that
/// law replaces the process-wide one.
int DeterminarLey(const QString& dia, const QString& posicion, Dialogo& dialogo);

void CalcularExencionPartes(CamposImpuesto c, const EstadoOperacion& e);
void CalcularBaseImponible(CamposImpuesto c, const EstadoOperacion& e, Dialogo& dialogo);
void BuscarModulosOAlicuota(CamposImpuesto c, EstadoOperacion& e, Dialogo& dialogo);
/// The whole calculation, from the exemption to the tax of the operation.
void CalcularImpuesto(CamposImpuesto c, EstadoOperacion& e, Dialogo& dialogo);

/// Value in pesos of the contract value on the panel. Gives nothing without a subconcepto.
void CalcularValorParcial(const clsSubconcepto* subconcepto, const QString& idMoneda, const Numero& nroValorContractual,
                          const Numero& nroPorcIVA, Numero& ctlValorCambio, Numero& nroBIParcial);

/// The currency that needs no exchange value.
[[nodiscard]] QString id_pesos();
