// SPDX-License-Identifier: GPL-3.0-or-later
// One sworn return: header, deeds and slips.
#pragma once

#include "declarations/cabecera_dj.h"
#include "payment/boletas.h"
#include "widgets/formulario.h"

#include <array>
#include <memory>

class QLineEdit;

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
    bool editando() const override;

private:
    void cerrarPosicion();
    void estado_botones(bool aceptar, bool editar, bool general, bool detalle, bool boletas);
    void tlbDJ_pulsada(const QString& clave);

    void conectarCabecera();
    [[nodiscard]] int estado() const;
    bool componer_nro_dj();
    void calcular_vencimiento();
    void salirDeAgente();
    void cargar_agente_dj(int nro);
    void mostrarAgente(const DatosAgenteDJ& agente);
    bool cargar_cabecera(const QString& nro);
    void marcar_sin_movimientos();
    [[nodiscard]] ControlesCabecera leer_controles() const;
    [[nodiscard]] CabeceraDJ leer_cabecera(const ControlesCabecera& c) const;
    void aceptar();

    void conectarRenglones();
    void mostrarTotal(double total);
    void actualizar_totales();
    void cargar_detalle();
    void mostrarDiferencia();
    void habilitar_tlbDetalle();
    void abrirRenglon(Modo operacion);
    void tlbDetalle_pulsada(const QString& clave);

    void conectarBoletas();
    void sumarDeposito();
    void sumarBoleta();
    void devolverBoletas();
    void cargar_boletas();
    void habilitar_botones_boleta();
    [[nodiscard]] std::array<std::pair<QString*, QLineEdit*>, 4> textos_cheques(ControlesBoleta& c) const;
    [[nodiscard]] ControlesBoleta leer_boleta_de_pantalla() const;
    void generar_boleta();
    void imprimir_boleta(const QString& nro);
    void tlbB_pulsada(const QString& clave);

    std::unique_ptr<Ui::frmDJ_editar> ui;
    QString nroInicial_;
    std::pair<QString, qint64> diferenciaDe_;  ///< the DJ and the state of the store that the line of totals tells of
    std::optional<int> localidad_;             ///< of the agent
};
