// SPDX-License-Identifier: GPL-3.0-or-later
// Builds a mask, the sum of the bit values of the items that are ticked.
#pragma once

#include "widgets/formulario.h"

#include <memory>

namespace Ui {
class frmCrearMascara;
}
class QLineEdit;
struct TablaMascara;

class frmCrearMascara : public Formulario
{
    Q_OBJECT

public:
    frmCrearMascara();
    ~frmCrearMascara() override;

    /// Where "aceptar" writes the mask.
    void volcar_en(QLineEdit* control);
    /// Fills the list from a table of bit values. Throws ErrorAlmacen.
    void cargar_elementos(const TablaMascara& tabla);
    /// Ticks the items that share a bit with the value.
    void mostrar_mascara(int valor);

private:
    void sumar();

    std::unique_ptr<Ui::frmCrearMascara> ui;
    QPointer<QLineEdit> destino_;
};
