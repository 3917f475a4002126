// SPDX-License-Identifier: GPL-3.0-or-later
// How the tax of an operation was calculated, step by step.
#pragma once

#include "computation/textos_pasos.h"
#include "widgets/formulario.h"

#include <memory>

namespace Ui {
class frmPasos;
}

/// What is shown: which operation, what the steps are of, the steps.
struct DatosPasos
{
    QString operacion;
    OrigenPasos origen;
    std::vector<Paso> pasos;
};

class frmPasos : public Formulario
{
    Q_OBJECT

public:
    frmPasos();
    ~frmPasos() override;

    void mostrarPasos(const DatosPasos& datos);

signals:
    /// The user wants a calculation beside the fields of the operation.
    void calculoPedido();

private:
    void copiar();
    void imprimir();

    std::unique_ptr<Ui::frmPasos> ui;
    QList<FilaPaso> filas_;
};
