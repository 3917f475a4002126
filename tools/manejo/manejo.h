// SPDX-License-Identifier: GPL-3.0-or-later
// Drives real forms with key and mouse events, and answers their message boxes.
#pragma once

#include <QList>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <stdexcept>

class Formulario;

/// What a window showed is not what was expected.
class Inesperado : public std::runtime_error
{
public:
    explicit Inesperado(const QString& que) : std::runtime_error(que.toStdString()) {}
};

/// A message box that is to come: its text (or how it begins), its title, and the button pressed.
struct CajaEsperada
{
    QString texto;
    QString titulo = {};
    bool si = true;       ///< Yes or OK, else No
    int icono = -1;       ///< QMessageBox::Icon, -1 for any
    bool exacto = false;  ///< the text is the whole text
};

/// Answers the boxes that come while an action runs, in their order. A box that is not expected
/// is closed and is an error, and so is an expected one that does not come.
class Cajas
{
public:
    /// Runs the action; throws Inesperado. A file dialog that comes gets the next of `archivos` typed,
    /// or is cancelled for an empty one.
    static void durante(const QList<CajaEsperada>& cajas, const std::function<void()>& accion,
                        const QStringList& archivos = {});

private:
    Cajas(const QList<CajaEsperada>& cajas, const QStringList& archivos);
    void mirar();
    void elegirArchivo(class QFileDialog* dialogo);

    QList<CajaEsperada> pendientes_;
    QStringList archivos_;
    QString falla_;
    QTimer reloj_;
};

namespace manejo {

/// A control of a form by its name; throws Inesperado when there is none.
[[nodiscard]] QWidget* control(QWidget* form, const QString& nombre);
/// The text that a control shows: a field, a combo, a label, a button.
[[nodiscard]] QString texto(QWidget* form, const QString& nombre);

/// Puts the focus on a field by a click, replaces its text key by key, and leaves it with Tab.
void escribir(QWidget* form, const QString& nombre, const QString& texto);
/// The same without leaving the field.
void teclear(QWidget* form, const QString& nombre, const QString& texto);
/// Opens a combo and picks the first entry that begins with the text.
void elegir(QWidget* form, const QString& nombre, const QString& texto);
/// Clicks a button, a box or an option; throws Inesperado when it is disabled or hidden.
void clic(QWidget* form, const QString& nombre);
/// Clicks a button of a toolbar; throws Inesperado when it is disabled.
void pulsar(QWidget* form, const QString& barra, const QString& clave);
/// Whether a button of a toolbar is enabled.
[[nodiscard]] bool habilitado(QWidget* form, const QString& barra, const QString& clave);
void tecla(QWidget* form, const QString& nombre, int tecla);
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
