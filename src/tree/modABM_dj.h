// SPDX-License-Identifier: GPL-3.0-or-later
// One insert routine for each table of the declaration tree. Each gives true on success; a
// failure is told and gives false. With `generar_id` the routine finds the next identifier
// itself and leaves it in the row; otherwise it uses the one of the row.
#pragma once

#include "core/dialogo.h"
#include "tree/arbol_dj.h"

[[nodiscard]] bool alta_cabecera_dj(const CabeceraDJ& dj, Dialogo& dialogo);
[[nodiscard]] bool alta_detalle_dj(Escritura& e, bool generar_id, Dialogo& dialogo);
[[nodiscard]] bool alta_inmueble(Inmueble& i, bool generar_id, Dialogo& dialogo);
[[nodiscard]] bool alta_parte(Parte& p, bool generar_id, Dialogo& dialogo);
[[nodiscard]] bool alta_operacion(Operacion& o, bool generar_id, Dialogo& dialogo);
[[nodiscard]] bool alta_valor_contractual(ValorContractual& v, bool generar_id, Dialogo& dialogo);
[[nodiscard]] bool alta_rol(const RolOperacion& r, Dialogo& dialogo);
