// SPDX-License-Identifier: GPL-3.0-or-later
// What forms do alike with text boxes and combos.
#pragma once

#include "core/listas.h"

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

class QAbstractButton;
class QComboBox;
class QLineEdit;
class QWidget;

/// A screen reader says the name of the whole control, its own or that of its label, also where a part of it has the
/// focus.
void nombrar_por(QWidget* control, QWidget* parte);

/// Turns what is typed, pasted or set to capitals at once, the caret staying where it was.
void a_mayusculas(QLineEdit* texto);
/// Ticks or clears a box or an option, also the last option of its group.
void marcar_boton(QAbstractButton* boton, bool si);
/// Lets only digits be typed or pasted.
void solo_digitos_en(QLineEdit* texto);
/// Back colour of a window or of a face, and the enabled state.
void habilitar_texto(QLineEdit* texto, bool si);
void habilitar_combo(QComboBox* combo, bool si);

/// Replaces the entries; nothing is selected afterwards, and no change is reported.
void llenar_combo(QComboBox* combo, const Entradas& entradas);
/// The first entry with this item data, or none.
void seleccionar_item(QComboBox* combo, qint64 dato);
/// The first entry with this text, or none.
void seleccionar_texto(QComboBox* combo, const QString& texto);
/// The first entry that matches is selected, or none: criterion 0 compares `largo` characters of
/// the item data from `inicio` (from 1), criterion 1 looks for the text anywhere in the entry, case
/// included. A `formato` of zeros ("000", "0.00") is put on the text first.
void buscar_en_combo(QComboBox* combo, int criterio, const QString& texto, int inicio = 1, int largo = 0,
                     const QString& formato = {});
/// Item data of the selection, nothing without one.
[[nodiscard]] std::optional<int> elegido(const QComboBox* combo);
/// The same in a list that begins with "(sin filtro)", which stands for nothing.
[[nodiscard]] std::optional<int> filtro_elegido(const QComboBox* combo);
/// Item data of the entry that the text of a combo with typing stands for, nothing for any other text.
[[nodiscard]] std::optional<int> elegido_por_texto(const QComboBox* combo);
/// Watches a combo for choices by a key or the wheel with its list closed, which go on while one types.
class Tecleo : public QObject
{
public:
    explicit Tecleo(QComboBox* combo);
    /// Whether the choice that the combo reports right now is one of these.
    [[nodiscard]] bool enCurso() const { return enCurso_; }
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    bool enCurso_ = false;
};
/// What is to run when the combo is left, by the keyboard or the mouse.
void al_salir(QComboBox* combo, const std::function<void()>& accion);
/// A combo with typing: in capitals, and on leaving it the text goes to the first entry that
/// starts with it.
void combo_con_texto(QComboBox* combo);
