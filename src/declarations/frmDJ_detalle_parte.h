// One party of a deed.
#pragma once

#include "core/formulario.h"

#include <memory>

namespace Ui {
class frmDJ_detalle_parte;
}

class frmDJ_detalle_parte : public Formulario
{
    Q_OBJECT

public:
    frmDJ_detalle_parte();
    ~frmDJ_detalle_parte() override;

    /// Sets the form up for a new party of the deed whose number the form shows, or loads one.
    void Inicializar(Modo operacion, int id);
    /// The deed that the party belongs to.
    void fijarRenglon(const QString& dj, const QString& renglon);
    /// Whether a CUIT under way may be entered.
    void permitirCuitEnTramite(bool si);

private:
    void mostrarParte(const struct Parte& p);
    void aceptar();
    void mostrarCampoNumero();
    void habilitarEnTramite();
    void clicTipoDoc();
    void clicTipoSociedad();
    void clicPais();
    void clicExento();
    void salirDeNumero();
    void cargar_localidades();
    void conectar();
    [[nodiscard]] struct ControlesParte leer_controles() const;

    std::unique_ptr<Ui::frmDJ_detalle_parte> ui;
    int id_ = 0;
    bool tramitePermitido_ = true;
};
