// SPDX-License-Identifier: GPL-3.0-or-later
// Start-up: the store is opened, the parameters and the law in force are loaded.
#pragma once

#include "core/dialogo.h"

/// Reads the path of the store from `vedra_rtn.cfg` beside the program into `RutaBaseDatos`. Throws ErrorAlmacen.
void leer_configuracion();

/// Reads the configuration, takes the store's lock and opens it. False after a failure,
/// which has been told (who has the store open, or the reason, as details) and ends the program. A relative path stands
/// below the program's folder.
[[nodiscard]] bool abrir_base(Dialogo& dialogo);

/// Closes the connections and lets go of the store's lock.
void cerrar_base();

/// Sets the bank's constants and loads the parameters of the tax. Throws std::runtime_error
/// on a value that is not a number.
void cargar_parametros(Dialogo& dialogo);

/// Looks up the law without an end. Without one `LeyVigente` stays as it is, silently.
void cargar_ley_vigente(Dialogo& dialogo);

/// Name of the store's file as it is opened, for the status bar.
[[nodiscard]] QString ruta_abierta();
