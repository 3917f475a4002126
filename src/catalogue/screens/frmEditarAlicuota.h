// SPDX-License-Identifier: GPL-3.0-or-later
// A bracket of rates of an item.
#pragma once

#include "catalogue/screens/frmEditarRango.h"

#include <memory>

namespace Ui {
class frmEditarAlicuota;
}

class frmEditarAlicuota : public frmEditarRango
{
    Q_OBJECT

public:
    frmEditarAlicuota();
    ~frmEditarAlicuota() override;

    void Inicializar(Modo operacion, qint32 subconcepto, const clsAlicuotaSellos& rango);

protected:
    void preparar() override { calcularFraccion(); }
    QStringList valores() const override;

private:
    void calcularFraccion();

    std::unique_ptr<Ui::frmEditarAlicuota> ui;
};
