// SPDX-License-Identifier: GPL-3.0-or-later
// The text boxes of a form joined once to the fields of a plain struct: showing and reading walk them.
#pragma once

#include <QLineEdit>

#include <cstddef>

/// A text box, by its name, and the field that it shows.
template <class T>
struct Enlace
{
    const char* control;
    QString T::*campo;
};

/// Puts the fields into the form's boxes.
template <class T, size_t N>
void mostrar_textos(const QWidget* formulario, const Enlace<T> (&enlaces)[N], const T& datos)
{
    for (const Enlace<T>& e : enlaces)
        formulario->findChild<QLineEdit*>(QString::fromUtf8(e.control))->setText(datos.*e.campo);
}

/// Takes the fields from the form's boxes.
template <class T, size_t N>
void leer_textos(const QWidget* formulario, const Enlace<T> (&enlaces)[N], T& datos)
{
    for (const Enlace<T>& e : enlaces)
        datos.*e.campo = formulario->findChild<QLineEdit*>(QString::fromUtf8(e.control))->text();
}
