// SPDX-License-Identifier: GPL-3.0-or-later
// Drives real forms with key and mouse events.
#pragma once

#include "manejo/cajas.h"

#include <QWidget>

class Formulario;

namespace manejo {

/// A control of a form by its name; throws Inesperado when there is none.
[[nodiscard]] QWidget* control(QWidget* form, const QString& nombre);
/// The text that a control shows: a field, a combo, a label, a button.
[[nodiscard]] QString texto(QWidget* form, const QString& nombre);

/// Puts the focus on a field by a click, replaces its text key by key, and leaves it with Tab.
void escribir(QWidget* form, const QString& nombre, const QString& texto);
/// The same without leaving the field.
void teclear(QWidget* form, const QString& nombre, const QString& texto);
/// The keys of a text, where the caret stands.
void caracteres(QWidget* w, const QString& texto);
/// Puts a text on the clipboard and pastes it over the field's text, without leaving the field.
void pegar(QWidget* form, const QString& nombre, const QString& texto);
/// Alt and a letter, where the focus is; the access keys of bars and buttons are pressed so.
void acceso(QWidget* form, int letra);
/// Opens a combo and picks the first entry that begins with the text.
void elegir(QWidget* form, const QString& nombre, const QString& texto);
/// Clicks a button, a box or an option; throws Inesperado when it is disabled or hidden.
void clic(QWidget* form, const QString& nombre);
/// Clicks a button of a toolbar; throws Inesperado when it is disabled.
void pulsar(QWidget* form, const QString& barra, const QString& clave);
/// Whether a button of a toolbar is enabled.
[[nodiscard]] bool habilitado(QWidget* form, const QString& barra, const QString& clave);
void tecla(QWidget* form, const QString& nombre, int tecla);
/// The name of the control with the focus; a part of a composed control goes by the control's name.
[[nodiscard]] QString con_foco(QWidget* form);
/// Brings a page of a tab widget to the front by a click on its tab.
void solapa(QWidget* form, const QString& nombre, int indice);
/// Clicks a cell of a grid.
void celda(QWidget* form, const QString& grilla, int fila, int columna);
/// The text of a grid's cell.
[[nodiscard]] QString en_grilla(QWidget* form, const QString& grilla, int fila, int columna);
[[nodiscard]] int filas(QWidget* form, const QString& grilla);

/// The loaded form of a class, shown and active; throws Inesperado when there is none.
[[nodiscard]] Formulario* formulario(const char* clase);

/// Throws Inesperado unless both are equal.
void comprobar(const QString& que, const QString& valor, const QString& esperado);

}  // namespace manejo
