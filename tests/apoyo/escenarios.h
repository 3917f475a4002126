// SPDX-License-Identifier: GPL-3.0-or-later
// Every form with something to type into, as a notary gets to it, and the button that stores what was typed.
#pragma once

#include "apoyo/pantallas.h"

#include <QTimer>

#include <functional>

struct Escenario
{
    const char* nombre;
    std::function<QWidget*()> abrir;
    const char* barra;
    const char* clave;
    int letra;               // access key of the button, 0 for a bar without them
    bool enter;              // whether Enter presses it
    const char* marco = "";  // the fields below it, those of the whole form without one
};

/// A DJ with one deed and all that hangs from it; boxes are taken down and answered by Yes.
class Escenarios : public Pantallas
{
protected:
    void SetUp() override;

    /// The scenarios of agents and DJs, of one deed, and of the catalogue.
    [[nodiscard]] QList<Escenario> deLaDJ();
    [[nodiscard]] QList<Escenario> deLaEscritura();
    [[nodiscard]] static QList<Escenario> delCatalogo();

    /// The fields that can be typed into, by name.
    static QStringList campos(QWidget* form, const QString& marco);
    /// Presses the scenario's button by a click.
    static void clicEn(QWidget* form, const Escenario& e);
    /// Deletes all forms, whatever they hold.
    static void cerrarTodo();
    static QWidget* editorDJ(const char* boton);

    QString dj_;
    QStringList cajas_;

private:
    void responder();

    QTimer reloj_;
    Cajas::Turno turno_de_cajas_;
};
