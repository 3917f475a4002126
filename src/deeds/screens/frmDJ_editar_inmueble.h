// SPDX-License-Identifier: GPL-3.0-or-later
// One piece of real estate of a deed.
#pragma once

#include "widgets/formulario.h"

#include <memory>

namespace Ui {
class frmDJ_editar_inmueble;
}

class frmDJ_editar_inmueble : public Formulario
{
    Q_OBJECT

public:
    frmDJ_editar_inmueble();
    ~frmDJ_editar_inmueble() override;

    /// Sets the form up for a new property of the deed whose number the form shows, or loads one.
    void Inicializar(Modo operacion, int id);
    void fijarRenglon(const QString& dj, const QString& renglon);

private:
    void aceptar();
    void clicCaracter();
    void cargar_localidades();
    [[nodiscard]] struct Inmueble leer_controles() const;
    void mostrarInmueble(const struct Inmueble& i);

    std::unique_ptr<Ui::frmDJ_editar_inmueble> ui;
    int id_ = 0;
};
