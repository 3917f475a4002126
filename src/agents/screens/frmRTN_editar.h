// SPDX-License-Identifier: GPL-3.0-or-later
// The register of agents: one agent.
#pragma once

#include "widgets/formulario.h"

#include <memory>

namespace Ui {
class frmRTN_editar;
}

class frmRTN_editar : public Formulario
{
    Q_OBJECT

public:
    frmRTN_editar();
    ~frmRTN_editar() override;

    /// Sets the form up for a new agent, or loads the agent of this number.
    void Inicializar(Modo operacion, int nro);

private:
    void aceptar();
    [[nodiscard]] struct Agente leer_controles() const;
    void mostrarAgente(const struct Agente& a);

    std::unique_ptr<Ui::frmRTN_editar> ui;
    int nro_ = 0;
};
