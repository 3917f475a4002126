// SPDX-License-Identifier: GPL-3.0-or-later
// A role of an item: how a party takes part in its operations.
#pragma once

#include "catalogue/clsRol.h"
#include "widgets/formulario.h"

#include <memory>

namespace Ui {
class frmEditarRol;
}

class frmEditarRol : public Formulario
{
    Q_OBJECT

public:
    frmEditarRol();
    ~frmEditarRol() override;

    void Inicializar(Modo operacion, qint32 subconcepto, const clsRol& rol);

private:
    void aceptar();
    void habilitarAtributo();
    [[nodiscard]] clsRol leer_controles() const;

    std::unique_ptr<Ui::frmEditarRol> ui;
    qint32 IdSubconcepto_ = 0;
};
