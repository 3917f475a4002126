// SPDX-License-Identifier: GPL-3.0-or-later
// Answers the message boxes and file dialogs that a window brings up.
#pragma once

#include <QList>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <stdexcept>

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

    /// Runs an action of somebody who agrees to every box, and who answers file dialogs with `archivo`, or cancels them
    /// when it is empty; each box's text is told.
    static void aceptando(const std::function<void()>& accion, const std::function<void(const QString&)>& vista,
                          const QString& archivo = {});

    /// While one lives somebody answers the boxes.
    struct Turno
    {
        Turno();
        ~Turno();
        Turno(const Turno&) = delete;
        Turno& operator=(const Turno&) = delete;
    };

    /// Runs an action during which no box is expected, unless somebody already answers the boxes.
    static void vigilar(const std::function<void()>& accion);

private:
    Cajas(const QList<CajaEsperada>& cajas, const QStringList& archivos);
    void mirar();
    void elegirArchivo(class QFileDialog* dialogo);

    std::function<void(const QString&)> vista_;  ///< hears of each box, when all are agreed to
    QList<CajaEsperada> pendientes_;
    QStringList archivos_;
    QString falla_;
    QTimer reloj_;
};
