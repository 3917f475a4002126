// SPDX-License-Identifier: GPL-3.0-or-later
// The operation of a deed in the store: its row, and the totals that hang on it.
#pragma once

#include "catalogue/subconcepto_memoria.h"
#include "computation/calculo.h"
#include "core/dialogo.h"
#include "tree/arbol_dj.h"
#include "tree/renglon.h"

/// Which operation.
struct ClaveOperacion
{
    QString dj;
    QString renglon;
    QString operacion;
    [[nodiscard]] RenglonDJ deRenglon() const { return {dj, renglon}; }
    /// " where SEDJ_NRO='…' and SEDD_ID=… and SEDO_ID=…"
    [[nodiscard]] QString donde() const;
};

/// What the row of an operation takes from the screen besides its number fields.
struct DatosOperacion
{
    int ley = 0;
    int codigo = 0;
    const clsSubconcepto* subconcepto = nullptr;
    bool obligAccesoria = false;
    bool obligFijo = false;
    std::optional<int> obligModo;  ///< item data of the mode, written as 0 without a selection
    QString obligModoTexto;
    QString obligPoliza;
    QString observaciones;
};
/// Writes the row. Throws ErrorAlmacen.
void actualizar_operacion(const ClaveOperacion& clave, CamposImpuesto c, const DatosOperacion& d);
/// Reads the row, nothing without one. Throws ErrorAlmacen.
[[nodiscard]] std::optional<Operacion> cargar_operacion(const ClaveOperacion& clave);

/// The sums that "guardar_det" leaves in the deed and in the DJ, in pesos.
struct Totales
{
    double renglon = 0;
    double dj = 0;
};
/// Nothing after a failure, which is told.
[[nodiscard]] std::optional<Totales> guardar_totales(const ClaveOperacion& clave, Dialogo& dialogo);
