// SPDX-License-Identifier: GPL-3.0-or-later
// One party of a deed.
#pragma once

#include "parties/screens/frmDJ_buscar_parte.h"

#include <memory>

namespace Ui {
class frmDJ_detalle_parte;
}

class frmDJ_detalle_parte : public Formulario, public ReceptorParte
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

    /// Takes the data of a person; what the stored row lacks stays as the screen has it.
    void copiarParte(const Parte& p) override;

private:
    void mostrarParte(const Parte& p);
    void mostrarPersona(const Parte& p);
    void mostrarExencion(double porcentaje);
    void buscar();
    void aceptar();
    void mostrarCampoNumero();
    void habilitarEnTramite();
    void prepararDocumento();
    void clicTipoDoc();
    void clicTipoSociedad();
    void clicPais();
    void clicExento();
    void salirDeNumero();
    void cargar_localidades();
    void conectar();
    void conectarReacciones();
    [[nodiscard]] QString tipoDoc() const;
    [[nodiscard]] struct ControlesParte leer_controles() const;

    std::unique_ptr<Ui::frmDJ_detalle_parte> ui;
    int id_ = 0;
    bool tramitePermitido_ = true;
    class Tecleo* tecleoTipoDoc_ = nullptr;
};
