// SPDX-License-Identifier: GPL-3.0-or-later
// The list of the catalogue's items: its filters, its order, and what is done with one of them.
#pragma once

#include "core/filas.h"

#include <QString>

#include <optional>
#include <span>

struct FiltroSubconceptos
{
    /// Place in the list of exemptions.
    enum class Exenciones { sin_filtro = 0, no_exentos = 1, exentos = 2, subjetivas = 3 };
    /// Place in the list of criteria.
    enum class Criterio { ninguno = -1, comienza = 0, contiene = 1, termina = 2 };

    bool uso = false;  ///< only what this program may use
    std::optional<int> concepto = {};
    std::optional<int> ley = {};
    Criterio criterio = Criterio::ninguno;
    QString texto = {};
    bool porLey = false;
    QString textoLey = {};
    bool porArticulo = false;
    QString textoArticulo = {};
    bool porInciso = false;
    QString textoInciso = {};
    bool selladoMultiple = false;
    Exenciones exenciones = Exenciones::sin_filtro;
    QString porcExencion = {};  ///< as a statement takes it, empty for none
    QString orden = {};         ///< field of the column clicked, empty for the law
};

/// One column of the list.
struct ColumnaSubconceptos
{
    const char* titulo;  ///< null for a column that is not shown
    const char* campo;
    bool texto;  ///< sorts by the Spanish alphabet
    int ancho;   ///< twips
};

/// The columns in the order of the list; the two last hold the identifier and the concept.
[[nodiscard]] std::span<const ColumnaSubconceptos> columnas_subconceptos();
constexpr int COLUMNA_ID = 8;
constexpr int COLUMNA_CONCEPTO = 9;

/// The statement that lists the items of a filter in its order.
[[nodiscard]] QString consulta_subconceptos(const FiltroSubconceptos& filtro);
/// The rows of such a statement, a cell for each column. Throws ErrorAlmacen.
void leer_subconceptos(const QString& consulta, const AgregarFilaUtf8& fila);

/// Sets or clears the item's use by this program; the whole value is written. Throws ErrorAlmacen.
void marcar_subconcepto(const QString& id, bool si);
/// Deletes the item with its brackets and roles. Throws ErrorAlmacen, also when a deed uses it.
void borrar_subconcepto(const QString& id);
