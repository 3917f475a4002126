// One deed of a DJ: its own fields, and the lists of what hangs from it.
#pragma once

#include "core/formulario.h"

#include <memory>

namespace Ui {
class frmDJ_detalle;
}

class frmDJ_detalle : public Formulario
{
    Q_OBJECT

public:
    frmDJ_detalle();
    ~frmDJ_detalle() override;

    void alActivar() override;
    /// Sets the form up for a new deed of a DJ, or loads one of its deeds.
    void Inicializar(Modo operacion, const QString& dj, const QString& renglon);
    /// Annuls the deed under the letter of a state ("ANULAR") or takes that back ("DESANULAR").
    void anular_desanular_escritura(const QString& accion, const QString& estado);
    /// Shows the deed's tax as the operation's screen has just stored it.
    void mostrarTotal(double total);

protected:
    bool consultarDescarga() override;

private:
    void cargar_renglon();
    void aceptar();
    void agregar_renglon(const struct ControlesEscritura& c);
    bool modificar_renglon(const struct ControlesEscritura& c);
    void borrar_hijos_escritura();
    void cargar_partes();
    void cargar_inmuebles();
    void cargar_operaciones();
    void habilitar_solapas(bool si);
    void habilitar_botones_edicion(bool si);
    void habilitar_tlb(class BarraHerramientas* barra, class Grilla* grilla);
    void habilitarMotivo();
    void enReposo();
    void cambioAlcance();
    void cambioEstado();
    void examinar();
    void emitir_recibo();
    void tlbDetalle_pulsada(const QString& clave);
    void tlbPartes_pulsada(const QString& clave);
    void tlbInm_pulsada(const QString& clave);
    void tlbOp_pulsada(const QString& clave);
    void abrirParte(Modo operacion);
    void abrirInmueble(Modo operacion);
    void abrirOperacion(Modo operacion);
    [[nodiscard]] bool alcanzado() const;
    [[nodiscard]] bool hayHijos() const;
    [[nodiscard]] struct RenglonDJ renglon() const;
    [[nodiscard]] struct ControlesEscritura leer_controles() const;
    void conectar();

    std::unique_ptr<Ui::frmDJ_detalle> ui;
};
