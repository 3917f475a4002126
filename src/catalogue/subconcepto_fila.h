// SPDX-License-Identifier: GPL-3.0-or-later
// An item of the catalogue as its editor holds it: which control stands for which column, and the
// statements.
#pragma once

#include <QHash>
#include <QVariant>

#include <optional>
#include <span>

/// What the editor holds, by the control's name: a box or an option is a bool, a text or a number its text
/// (a number as a statement takes it), a list the identifier chosen, a date a QDate.
using ControlesSubconcepto = QHash<QString, QVariant>;

/// The identifier that is kept under a name, nothing without one.
[[nodiscard]] std::optional<int> id_elegido(const ControlesSubconcepto& c, const QString& control);

/// How a control's value stands in its column.
enum class Forma {
    codigo,
    texto,  ///< empty is null
    fecha,  ///< none is null
    logico,
    numero,   ///< null when empty, and while its box is clear
    modo,     ///< 'F' with the first option, 'P' with the second, null with neither
    lista,    ///< identifier, null without one
    mascara,  ///< sum of bit values
    usuario,
    hoy
};

struct CampoSubconcepto
{
    const char* columna;
    Forma forma;
    const char* control;             ///< or the name under which the form keeps what no control shows
    const char* asociado = nullptr;  ///< the box of a number, the second option of a mode
};

/// The columns in the order of the insert.
[[nodiscard]] std::span<const CampoSubconcepto> campos_subconcepto();

// What the form keeps without a control of its own.
extern const QString TIPO_CALCULO_BI;
extern const QString USOS;

/// What a new item starts with: its code, the pattern of its law, its date, and its concept when there is one.
/// Throws ErrorAlmacen.
[[nodiscard]] ControlesSubconcepto subconcepto_nuevo(std::optional<int> concepto);
/// A stored item, or nothing. Throws ErrorAlmacen.
[[nodiscard]] std::optional<ControlesSubconcepto> cargar_subconcepto(int id);

/// Writes the item; its roles and brackets have their own routines. Throws ErrorAlmacen.
void alta_subconcepto(const ControlesSubconcepto& c);
void modificar_subconcepto(const ControlesSubconcepto& c);
