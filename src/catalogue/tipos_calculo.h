// SPDX-License-Identifier: GPL-3.0-or-later
// How the tax and its base may be computed, and the masks that an item keeps.
#pragma once

#include "catalogue/subconcepto_memoria.h"
#include "core/almacen.h"
#include "core/listas.h"

/// The kinds of calculation of the tax: identifier, description, observations. Throws ErrorAlmacen.
[[nodiscard]] Recordset tipos_calculo();
/// The kinds of calculation of the base. Throws ErrorAlmacen.
[[nodiscard]] colTiposCalculoBI tipos_calculo_bi();

/// A table whose identifiers are bit values.
struct TablaMascara
{
    const char* tabla;
    const char* id;
    const char* descripcion;
};
constexpr TablaMascara MASCARA_OBLIGACION{"GLB_TB_TIPOS_OBLIG_ACCESORIAS", "GTOA_ID", "GTOA_DESCRIPCION"};
constexpr TablaMascara MASCARA_GARANTIA{"GLB_TB_TIPOS_GARANTIA_CUMPL", "GTGC_ID", "GTGC_DESCRIPCION"};
/// The rows of such a table, the bit value as item data. Throws ErrorAlmacen.
[[nodiscard]] Entradas elementos_mascara(const TablaMascara& t);
