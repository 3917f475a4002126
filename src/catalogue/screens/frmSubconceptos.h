// SPDX-License-Identifier: GPL-3.0-or-later
// The taxable items of the catalogue: found by their filters, picked, and kept.
#pragma once

#include "widgets/formulario.h"

#include <memory>
#include <optional>

namespace Ui {
class frmSubconceptos;
}
struct FiltroSubconceptos;

/// What takes an item that was picked, by its identifier.
class ReceptorSubconcepto
{
public:
    virtual ~ReceptorSubconcepto() = default;
    virtual void SeleccionarSubconcepto(int id) = 0;
};

class frmSubconceptos : public Formulario
{
    Q_OBJECT

public:
    frmSubconceptos();
    ~frmSubconceptos() override;

    /// Lists only the items of a concept, where the user chooses none.
    std::optional<int> concepto;
    /// Lists only the items of a law.
    std::optional<int> ley;

    /// Runs the search: an item may have been changed.
    void alActivar() override;
    /// Lists the items of the filters on the screen.
    void buscar_subconceptos();

signals:
    void cerrado();

protected:
    void alDescargar() override;

private:
    void pulsada(const QString& clave);
    void ordenar(int columna);
    void seleccionar();
    void abrirEditor(Modo operacion);
    void borrar();
    void habilitarBotones();
    [[nodiscard]] FiltroSubconceptos filtro() const;

    std::unique_ptr<Ui::frmSubconceptos> ui;
    QString orden_;
};
