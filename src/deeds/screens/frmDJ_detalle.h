// SPDX-License-Identifier: GPL-3.0-or-later
// One deed of a DJ: its own fields, and the lists of what hangs from it.
#pragma once

#include "core/filas.h"
#include "deeds/escritura.h"
#include "widgets/formulario.h"

#include <memory>

namespace Ui {
class frmDJ_detalle;
}
class BarraHerramientas;
class Grilla;

class frmDJ_detalle : public Formulario
{
    Q_OBJECT

public:
    frmDJ_detalle();
    ~frmDJ_detalle() override;

    void alActivar() override;
    /// Sets the form up for a new deed of a DJ, or loads one of its deeds.
    void Inicializar(Modo operacion, const DatosDJ& dj, const QString& renglon);

    /// Annuls the deed under the letter of a state ("ANULAR") or takes that back ("DESANULAR").
    void anular_desanular_escritura(const QString& accion, const QString& estado);

signals:
    /// The total of the DJ, in pesos, as the operation's screen has just stored it.
    void totalDJ(double total);
    /// A receipt's window closed.
    void reporteCerrado();

protected:
    bool consultarDescarga() override;

private:
    void habilitarMarcos(bool si);
    void cargar_renglon();
    void aceptar();
    void agregar_renglon(const ControlesEscritura& c);
    void modificar_renglon(const ControlesEscritura& c);
    void borrar_hijos_escritura();
    void enUnTrabajo(const std::function<void()>& accion);
    void cargar_lista(BarraHerramientas* barra, Grilla* grilla, const char* que,
                      const std::function<void(const AgregarFila&)>& leer);
    void cargar_partes();
    void cargar_inmuebles();
    void cargar_operaciones();
    void habilitar_solapas(bool si);
    void habilitar_botones_edicion(bool si);
    void habilitar_tlb(BarraHerramientas* barra, const Grilla* grilla);
    void habilitar_barras();
    void habilitarMotivo();
    void enReposo();
    void cambioAlcance();
    void cambioEstado();
    void examinar();
    void emitir_recibo();
    void tlbDetalle_pulsada(const QString& clave);
    void atender_lista(const QString& clave, const Grilla* grilla, void (frmDJ_detalle::*abrirUna)(Modo),
                       const Mensaje& pregunta, const std::function<void(const QString&)>& borrar);
    void tlbPartes_pulsada(const QString& clave);
    void tlbInm_pulsada(const QString& clave);
    void tlbOp_pulsada(const QString& clave);
    template <class Hijo>
    void abrirHijo(Modo operacion, const Grilla* grilla);
    void abrirParte(Modo operacion);
    void abrirInmueble(Modo operacion);
    void abrirOperacion(Modo operacion);
    void mostrarTotales(double renglon, double dj);
    [[nodiscard]] bool alcanzado() const;
    [[nodiscard]] bool hayHijos() const;
    [[nodiscard]] RenglonDJ renglon() const;
    [[nodiscard]] ControlesEscritura leer_controles() const;
    void conectar();

    std::unique_ptr<Ui::frmDJ_detalle> ui;
    DatosDJ dj_;
};
