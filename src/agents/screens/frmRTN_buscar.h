// SPDX-License-Identifier: GPL-3.0-or-later
// The register of agents: its list.
#pragma once

#include "widgets/formulario.h"

#include <memory>

namespace Ui {
class frmRTN_buscar;
}

class frmRTN_buscar : public Formulario
{
    Q_OBJECT

public:
    frmRTN_buscar();
    ~frmRTN_buscar() override;

    void alActivar() override { cargar_padron(); }

private:
    void cargar_padron();
    void tlbRTN_pulsada(const QString& clave);

    std::unique_ptr<Ui::frmRTN_buscar> ui;
};
