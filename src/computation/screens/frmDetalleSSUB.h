// SPDX-License-Identifier: GPL-3.0-or-later
// The details of an item of the catalogue.
#pragma once

#include "widgets/formulario.h"

#include <memory>

namespace Ui {
class frmDetalleSSUB;
}

class frmDetalleSSUB : public Formulario
{
    Q_OBJECT

public:
    frmDetalleSSUB();
    ~frmDetalleSSUB() override;

    /// Shows the item.
    void mostrarSubconcepto(const class clsSubconcepto& s);

private:
    std::unique_ptr<Ui::frmDetalleSSUB> ui;
};
