// SPDX-License-Identifier: GPL-3.0-or-later
// The entries from which a party is described: types of company and of document, countries.
#pragma once

#include "core/almacen.h"
#include "core/listas.h"

/// Names of the types of document that have rules of their own.
namespace tipo_documento {
inline constexpr QStringView CUIT = u"CUIT";
inline constexpr QStringView CUIL = u"CUIL";
inline constexpr QStringView PASAPORTE = u"PASAPORTE";
inline constexpr QStringView SIN_IDENTIFICAR = u"SIN IDENTIFICAR";
}  // namespace tipo_documento

/// The type of company of a natural person.
inline constexpr QStringView UNIPERSONAL = u"UNIPERSONAL";

/// Whether the type, in capitals, is one of the two whose number is a CUIT.
[[nodiscard]] bool es_cuit_o_cuil(QStringView tipo);

/// The types of document, the most used first. Throws ErrorAlmacen.
[[nodiscard]] Entradas tipos_documento();

/// The types of company by name. Throws ErrorAlmacen.
[[nodiscard]] Entradas tipos_sociedad();
/// The same, each with the first digit that its companies' CUITs bear behind the name. Throws ErrorAlmacen.
[[nodiscard]] Entradas tipos_sociedad_con_digito();
/// The name in such an entry.
[[nodiscard]] QString nombre_sociedad(const QString& entrada);
/// The first digit of a CUIT in such an entry, empty without an entry.
[[nodiscard]] QString digito_sociedad(const QString& entrada);

/// The countries, as `texto_pais` shows them, without item data. Throws ErrorAlmacen.
[[nodiscard]] Entradas codigos_pais();
/// "PAÍS - Persona (código)" of a row with the columns of the countries.
[[nodiscard]] QString texto_pais(const Recordset& rs);
/// The code in such a text, empty without one.
[[nodiscard]] QString codigo_pais(const QString& texto);
