// SPDX-License-Identifier: GPL-3.0-or-later
// The rules by which a taxable base is computed; one is handed back.
#pragma once

#include "widgets/formulario.h"

#include <memory>
#include <optional>

namespace Ui {
class frmTiposCalculoBI;
}

/// What takes the rule that was chosen.
class ReceptorTCBI
{
public:
    virtual ~ReceptorTCBI() = default;
    virtual void TCBI(int id, const QString& descripcion) = 0;
};

class frmTiposCalculoBI : public Formulario
{
    Q_OBJECT

public:
    frmTiposCalculoBI();
    ~frmTiposCalculoBI() override;

    /// The row to begin with, the first one without it.
    void fijarTCBI(std::optional<int> id);

private:
    void mostrarFila();
    void seleccionar();

    std::unique_ptr<Ui::frmTiposCalculoBI> ui;
    int IdTCBI_ = 0;
};
