// SPDX-License-Identifier: GPL-3.0-or-later
// Whether the texts of catalogue and reference tables are what the program can work with.
#pragma once

#include "tabla_texto.h"

/// Whether a table comes from the authority, and is no work of the office.
[[nodiscard]] bool es_de_catalogo(const QString& tabla);

/// Reads the tables of some folders, each file once it is known that all of them are of a table of the store; with
/// `solo_catalogo` of one of the catalogue. All tables of the catalogue must be there. Throws ErrorTextos.
[[nodiscard]] TablasTexto leer_textos(Conexion& cn, const QStringList& carpetas, bool solo_catalogo);

/// Throws ErrorTextos with all that is wrong between the rows: references to nothing, brackets, what the program looks for
/// by name, laws, identifiers, attributes. `mas` are faults that were found elsewhere.
void revisar_textos(Conexion& cn, const TablasTexto& tablas, QList<FallaTexto> mas = {});

/// The rows of the catalogue that the store's deeds and agents point at and that the texts do not have.
[[nodiscard]] QList<FallaTexto> faltan_en_uso(Conexion& cn, const TablasTexto& tablas);

/// The tables of the store in the order of the schema.
[[nodiscard]] QStringList tablas_del_almacen(Conexion& cn);
