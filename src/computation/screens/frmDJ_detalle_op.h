// SPDX-License-Identifier: GPL-3.0-or-later
// One taxable operation of a deed: its item, the data of its base, the tax, the parties' roles.
#pragma once

#include "catalogue/subconcepto_memoria.h"
#include "catalogue/screens/frmSubconceptos.h"
#include "computation/calculo.h"
#include "widgets/formulario.h"

#include <memory>
#include <optional>

namespace Ui {
class frmDJ_detalle_op;
}
struct ClaveOperacion;
struct ParteRol;
class ctlNumero;

class frmDJ_detalle_op : public Formulario, public ReceptorSubconcepto
{
    Q_OBJECT

public:
    frmDJ_detalle_op();
    ~frmDJ_detalle_op() override;

    void alActivar() override;
    /// The deed that the operation belongs to: its day, and the posición as yyyy/mm.
    void fijarRenglon(const QString& dj, const QString& renglon, const QString& dia, const QString& posicion);
    /// Sets the screen up for a new operation, or loads one; then finds the law of the deed's date.
    void Iniciar(Modo operacion, int id);
    /// Takes the item that was picked in the catalogue, by its identifier.
    void SeleccionarSubconcepto(int id) override;

signals:
    /// "guardar_det" stored the operation; the sums, in pesos, stand in the deed and in the DJ.
    void totalesGuardados(double renglon, double dj);

protected:
    bool consultarDescarga() override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    // The states of the screen: which buttons, and whether the data may be edited.
    enum class Estado { nueva, consulta, cambiando, reciengrabada, editando };
    void ponerEstado(Estado estado);
    void ponerMarcos(bool si);
    void alturaCompleta();
    void conectar();
    void tlb_pulsada(const QString& clave);

    void habilitarEleccion(bool si);
    bool seleccionarPorCodigo();
    bool cargarSubconcepto();
    void limpiarSubconcepto();
    void mostrarPorSubconcepto();
    void guardarOperacion();
    void cambiarOperacion();
    void guardarDetalle();
    bool validarDetalle();
    bool guardarDatos();
    void cancelar();
    void limpiarImportes();
    void cargarOperacion();
    void leerInmuebles();
    void elegirInmueble(int fila);
    void habilitarObligacion();

    [[nodiscard]] CamposImpuesto campos();
    [[nodiscard]] EstadoOperacion estadoOperacion() const;
    void calcularImpuesto();
    void calcularBaseEImpuesto();

    // Contract values.
    void tlbBI_pulsada(const QString& clave);
    void botonesValores(bool reposo, bool entrada);
    void limpiarPanel();
    void cambioMoneda();
    void calcularParcial();
    void editarValor();
    void guardarValor();
    void borrarValorElegido();
    void recargarValores();
    [[nodiscard]] QString idMoneda() const;

    // Roles.
    void tlbPartes_pulsada(const QString& clave);
    void recargarRoles();
    [[nodiscard]] QList<ParteRol> partesDeGrilla() const;
    void colorearRoles();
    void adaptarRoles();
    void abrirEditorDeCelda(int fila, int columna, const QString& tecla);
    void cerrarEditorDeCelda(bool guardar);
    bool teclaEnEditor(QObject* editor, class QKeyEvent* evento);
    bool teclaEnGrillaRoles(class QKeyEvent* evento);

    [[nodiscard]] ClaveOperacion clave() const;
    [[nodiscard]] int codigo() const;

    std::unique_ptr<Ui::frmDJ_detalle_op> ui;
    class QComboBox* cboRoles_;
    class QLineEdit* txtRolObs_;
    std::optional<clsSubconcepto> subconcepto_;
    bool guardado_ = false;
    int ley_ = 0;
    int codigoAnterior_ = 0;
    Modo modoValor_ = Modo::nuevo;
    QString idValor_;
    int inmuebleVinculado_ = 0;
    QString textoRolesObligatorios_;
    bool cargando_ = false;
};
