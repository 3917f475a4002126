// SPDX-License-Identifier: GPL-3.0-or-later
// One sworn return: header, deeds and slips.
#pragma once

#include "widgets/formulario.h"

#include <memory>

namespace Ui {
class frmDJ_editar;
}

class frmDJ_editar : public Formulario
{
    Q_OBJECT

public:
    frmDJ_editar();
    ~frmDJ_editar() override;

    void alActivar() override;
    /// Sets the form up for a new DJ, for the DJ of this number, or for the rectificativa that
    /// continues it. False when there is nothing to show.
    bool iniciar(Modo operacion, const QString& nro);

protected:
    void alDescargar() override;

private:
    void mostrarTotal(double total);
    void cerrarPosicion();
    void devolverBoletas();
    bool componer_nro_dj();
    void calcular_vencimiento();
    void actualizar_totales();
    bool cargar_cabecera(const QString& nro);
    void mostrarAgente(int nro);
    void limpiar_agente();
    void cargar_detalle();
    void habilitar_tlbDetalle();
    void marcar_sin_movimientos();
    void aceptar();
    void estado_botones(bool aceptar, bool editar, bool general, bool detalle, bool boletas);
    void tlbDJ_pulsada(const QString& clave);
    void tlbDetalle_pulsada(const QString& clave);
    void abrirRenglon(Modo operacion);
    [[nodiscard]] struct ControlesCabecera leer_controles() const;
    [[nodiscard]] struct CabeceraDJ leer_cabecera() const;
    void salirDeAgente();
    void conectar();
    void conectarBoletas();
    void cargar_boletas();
    void habilitar_botones_boleta();
    void generar_boleta();
    void imprimir_boleta(const QString& nro);
    void tlbB_pulsada(const QString& clave);
    [[nodiscard]] struct ControlesBoleta leer_boleta_de_pantalla() const;

    std::unique_ptr<Ui::frmDJ_editar> ui;
    QString nroInicial_;
    int localidad_ = 0;
};
