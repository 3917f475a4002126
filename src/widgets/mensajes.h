// SPDX-License-Identifier: GPL-3.0-or-later
// Message boxes over a window.
#pragma once

#include "core/dialogo.h"

class QWidget;

/// Shows what the logic says in boxes over a window.
class DialogoPantalla : public Dialogo
{
public:
    explicit DialogoPantalla(QWidget* padre) : padre_(padre) {}
    void avisar(const Mensaje& mensaje) override;
    [[nodiscard]] bool preguntar(const Mensaje& mensaje) override;

    /// How many notices have been shown since the program began.
    [[nodiscard]] static int avisos() { return avisos_; }

private:
    static int avisos_;
    QWidget* padre_;
};
