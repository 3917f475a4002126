// SPDX-License-Identifier: GPL-3.0-or-later
// The stamp tax of one operation. It works on number fields and nothing else: an amount is
// rounded when it is written to a field, and every later use reads the field back.
#pragma once

#include "catalogue/subconcepto_memoria.h"
#include "computation/pasos.h"
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
    /// Others' texts, apart from them.
    explicit CamposSueltos(const CamposImpuesto& otros);
    CamposImpuesto campos();
};

/// What the calculation knows of the rest of the screen.
struct EstadoOperacion
{
    struct Parte
    {
        QString rol;                       ///< description of its role, empty without one
        std::optional<double> porcExento;  ///< its exemption per cent
        QString nombre{};                  ///< for the steps
    };

    const clsSubconcepto* subconcepto = nullptr;
    QList<Parte> partes;
    QString idMoneda;                       ///< of the currency selected
    bool obligAccesoria = false;            ///< the box is ticked
    std::optional<int> obligAccesoriaDato;  ///< item data of the mode: 1 adds to the base
    bool obligAccesoriaFijo = false;
    bool obligAccesoriaPorc = false;
    int ley = 0;             ///< of the deed's date, for the steps
    Pasos* pasos = nullptr;  ///< where the calculation takes its steps down, if anywhere

    QString titulo;           ///< caption of the screen, for messages
    QString lblMoA;           ///< written: "Módulos" or "Alícuota"
    bool enfocarMoA = false;  ///< written: no rate was found, the field gets the focus
};

/// The exemption of the operation, in per cent, from its item and the parties that bear the tax.
void CalcularExencionPartes(CamposImpuesto c, const EstadoOperacion& e);
/// The taxable base in pesos; what is wrong with the loan is told.
void CalcularBaseImponible(CamposImpuesto c, const EstadoOperacion& e, Dialogo& dialogo);
/// The number of modules, or the rate as a factor, of the bracket that holds the base; without one that is told.
/// Throws ErrorAlmacen.
void BuscarModulosOAlicuota(CamposImpuesto c, EstadoOperacion& e, Dialogo& dialogo);
/// The whole calculation, from the exemption to the tax of the operation. Throws ErrorAlmacen.
void CalcularImpuesto(CamposImpuesto c, EstadoOperacion& e, Dialogo& dialogo);

/// Value in pesos of the contract value on the panel. Gives nothing without a subconcepto.
void CalcularValorParcial(const clsSubconcepto* subconcepto, const QString& idMoneda, const Numero& nroValorContractual,
                          const Numero& nroPorcIVA, Numero& ctlValorCambio, Numero& nroBIParcial);
