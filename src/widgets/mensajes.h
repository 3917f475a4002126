// SPDX-License-Identifier: GPL-3.0-or-later
// Message boxes over a window.
#pragma once

#include "core/dialogo.h"

#include <memory>

class QWidget;
class VentanaProgreso;

/// Shows what the logic says in boxes over a window.
class DialogoPantalla : public Dialogo
{
public:
    explicit DialogoPantalla(QWidget* padre);
    ~DialogoPantalla() override;
    void avisar(const Mensaje& mensaje) override;
    [[nodiscard]] bool preguntar(const Mensaje& mensaje) override;
    /// A window with a bar comes up when it takes long.
    void progresar(const QString& que, qint64 hecho, qint64 total) override;
    /// The same window with a button "Cancelar"; the program lives while it stands.
    [[nodiscard]] bool seguir(const QString& que, qint64 hecho, qint64 total) override;
    /// Takes the window away; the next progress brings it back.
    void ocultarProgreso();

    /// How many notices have been shown since the program began.
    [[nodiscard]] static int avisos() { return avisos_; }

private:
    static int avisos_;
    VentanaProgreso& progreso(bool cancelable);

    QWidget* padre_;
    std::unique_ptr<VentanaProgreso> progreso_;
};
