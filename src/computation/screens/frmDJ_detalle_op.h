// SPDX-License-Identifier: GPL-3.0-or-later
// One taxable operation of a deed: its item, the data of its base, the tax, the parties' roles.
#pragma once

#include "catalogue/screens/frmSubconceptos.h"
#include "catalogue/subconcepto_memoria.h"
#include "computation/calculo.h"
#include "widgets/editor_celda.h"
#include "widgets/formulario.h"

#include <memory>
#include <optional>

namespace Ui {
class frmDJ_detalle_op;
}
struct ClaveOperacion;
struct Operacion;
struct ParteRol;
struct ResultadoSubconcepto;
enum class OrigenPasos;
class QComboBox;

class frmDJ_detalle_op : public Formulario, public ReceptorSubconcepto
{
    Q_OBJECT

public:
    frmDJ_detalle_op();
    ~frmDJ_detalle_op() override;

    /// Reads the parties again: one may have been added or changed.
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
    void keyPressEvent(QKeyEvent* evento) override;

private:
    /// The places of the tabs.
    enum Solapa { SOLAPA_BASE, SOLAPA_IMPUESTO, SOLAPA_ROLES };

    void prepararGrillas();
    void prepararEditorDeRoles();
    void prepararLeyendas();
    void conectar();
    void conectarCalculo();
    void conectarValores();

    // The states of the screen: which buttons, and whether the data may be edited.
    enum class Estado { nueva, consulta, cambiando, reciengrabada, editando };
    void ponerEstado(Estado estado);
    void alturaCompleta();
    void tlb_pulsada(const QString& clave);
    void editar();
    void enfocarEdicion();
    void cancelar();

    // The item of the operation.
    void habilitarEleccion(bool si);
    bool seleccionarPorCodigo();
    void cargarSubconcepto();
    void limpiarSubconcepto();
    void mostrarSubconcepto(const ResultadoSubconcepto& r);
    void mostrarPorSubconcepto();
    void mostrarValorContractual();
    void cambiarOperacion();
    /// The item's identifier, or that of the law 0 without a law.
    [[nodiscard]] int idSubconcepto() const;
    [[nodiscard]] const clsSubconcepto* subconcepto() const { return subconcepto_ ? &*subconcepto_ : nullptr; }

    // Saving and loading.
    void guardarOperacion();
    void agregarOperacion();
    void guardarDetalle();
    bool validarDetalle();
    bool guardarDatos();
    void limpiarImportes();
    void cargarOperacion();
    void mostrarObligacion(const ::Operacion& o);
    void leerInmuebles();
    void elegirInmueble(int fila);

    // The calculation.
    [[nodiscard]] CamposImpuesto campos();
    [[nodiscard]] EstadoOperacion estadoOperacion() const;
    void calcularImpuesto();
    void calcularBaseEImpuesto();
    void habilitarObligacion();

    // How it was calculated.
    void mostrarPasos();
    void mostrarPasosAparte();
    [[nodiscard]] Pasos calcularAparte();
    [[nodiscard]] bool pasosVigentes();
    void ponerPasos(OrigenPasos origen, const Pasos& pasos);

    // Contract values.
    void tlbBI_pulsada(const QString& clave);
    void botonesValores(bool reposo, bool entrada);
    void cerrarPanel();
    void limpiarPanel();
    void cambioMoneda();
    void calcularParcial();
    void editarValor();
    bool validarValor();
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

    [[nodiscard]] ClaveOperacion clave() const;
    [[nodiscard]] int codigo() const;

    std::unique_ptr<Ui::frmDJ_detalle_op> ui;
    QComboBox* cboRoles_ = nullptr;
    EditorCelda* editorRoles_ = nullptr;
    std::optional<clsSubconcepto> subconcepto_;
    bool guardado_ = false;
    std::optional<int> ley_;
    int codigoAnterior_ = 0;
    Modo modoValor_ = Modo::nuevo;
    QString idValor_;
    std::optional<int> inmuebleVinculado_;
    bool cargando_ = false;
    Pasos pasos_;         ///< of the last calculation
    Pasos pasosValores_;  ///< of the sum of the contract values that show
};
