// An item of the catalogue as its editor holds it: which control stands for which column, what hangs on
// which box, the checks, and the statements.
#pragma once

#include "core/dialogo.h"

#include <QHash>
#include <QVariant>

#include <optional>
#include <span>

/// What the editor holds, by the control's name: a box or an option is a bool, a text or a number its text
/// (a number as a statement takes it), a list the identifier chosen, a date a QDate.
using ControlesSubconcepto = QHash<QString, QVariant>;

/// How a control's value stands in its column.
enum class Forma
{
    codigo,
    texto,    ///< empty is null
    fecha,
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

/// A control that works only while a box is ticked.
struct DependenciaSubconcepto
{
    const char* control;
    const char* casilla;
    bool vaciar = true;  ///< whether clearing the box empties the control
};
[[nodiscard]] std::span<const DependenciaSubconcepto> dependencias_subconcepto();
/// Whether all boxes on which a control hangs, near or far, are ticked.
[[nodiscard]] bool habilitado_por_casillas(const QString& control, const ControlesSubconcepto& c);

// What the form keeps without a control of its own.
inline const QString TIPO_CALCULO_BI = QStringLiteral("SCBI_ID");
inline const QString USOS = QStringLiteral("SSUB_USOS");

/// What to tell when this type of calculation of the base holds the box ticked, or nothing; `titulo` is the
/// form's caption.
[[nodiscard]] std::optional<Mensaje> casilla_sujeta(const QString& casilla, int tipoCalculoBI, const QString& titulo);

/// Boxes that a type of calculation of the base ticks (true) or clears.
[[nodiscard]] QHash<QString, bool> casillas_de_tipo_bi(int tipoCalculoBI);

/// What a new item starts with: its code, the pattern of its law, its date. Throws ErrorAlmacen.
[[nodiscard]] ControlesSubconcepto subconcepto_nuevo(int concepto);
/// A stored item, or nothing. Throws ErrorAlmacen.
[[nodiscard]] std::optional<ControlesSubconcepto> cargar_subconcepto(int id);

/// Which brackets a kind of calculation works on.
enum class Rangos { ningunos, alicuotas, modulos };
[[nodiscard]] Rangos rangos_de_tipo(const QString& tipoCalculo);
/// Why an item with such brackets can't go over to this kind of calculation; empty when it can.
[[nodiscard]] QString impedimento_de_tipo(const QString& tipoCalculo, bool conAlicuotas, bool conModulos);

/// Trims the texts and fills the names and masks left empty; gives the first thing wrong.
[[nodiscard]] std::optional<Falla> validar_subconcepto(ControlesSubconcepto& c);
/// Throws ErrorAlmacen.
void alta_subconcepto(const ControlesSubconcepto& c);
void modificar_subconcepto(const ControlesSubconcepto& c);
/// What to tell of an error on a write.
[[nodiscard]] QString motivo_de_escritura(const class ErrorAlmacen& e);
