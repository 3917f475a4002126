// SPDX-License-Identifier: GPL-3.0-or-later
// A bracket of modules of an item.
#pragma once

#include "catalogue/screens/frmEditarRango.h"

#include <memory>

namespace Ui {
class frmEditarModulo;
}

class frmEditarModulo : public frmEditarRango
{
    Q_OBJECT

public:
    frmEditarModulo();
    ~frmEditarModulo() override;

    void Inicializar(Modo operacion, qint32 subconcepto, const clsModuloSellos& rango);

protected:
    QStringList valores() const override;

private:
    std::unique_ptr<Ui::frmEditarModulo> ui;
};
