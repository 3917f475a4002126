// SPDX-License-Identifier: GPL-3.0-or-later
// The search among the parties of earlier deeds: the only directory of persons that there is.
#pragma once

#include "core/dialogo.h"
#include "core/filas.h"
#include "tree/arbol_dj.h"

/// How a name is compared; the place in the list of criteria.
enum class Criterio { sin_filtro = 0, exacta = 1, comienza = 2, contiene = 3, termina = 4 };

struct FiltroPartes
{
    QString dj = {};       ///< parties of this DJ are left out,
    QString renglon = {};  ///< and so are those of this deed's number in any DJ
    std::optional<int> tipoSociedad = {};
    Criterio criterio = Criterio::sin_filtro;
    QString razonSocial = {};
    std::optional<int> tipoDoc = {};  ///< the type 0 filters as little as none
    QString tipoDocTexto = {};
    QString nroDoc = {};
};

/// The name without commas, semicolons and parentheses, each run of blanks as one.
[[nodiscard]] QString limpiar_nombre(QString nombre);

/// The statement of a search. The name is cleaned in the filter itself when it is searched for. A CUIT
/// that is no number is told under `titulo` and finds nothing.
[[nodiscard]] QString consulta_busqueda_partes(FiltroPartes& filtro, const QString& titulo, Dialogo& dialogo);

/// The rows of such a statement: type of document, its name, number, name of the person.
/// Throws ErrorAlmacen.
void leer_partes_halladas(const QString& consulta, const AgregarFilaUtf8& fila);

/// The first stored party with this document, or nothing. Throws ErrorAlmacen.
[[nodiscard]] std::optional<Parte> parte_con_documento(const QString& tipoDoc, const QString& nroDoc);
