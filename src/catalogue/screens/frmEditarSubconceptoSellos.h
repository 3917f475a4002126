// SPDX-License-Identifier: GPL-3.0-or-later
// One item of the catalogue: its law and calculation, what an operation of it asks for, its brackets and
// its roles.
#pragma once

#include "catalogue/subconcepto_memoria.h"
#include "catalogue/screens/frmTiposCalculoBI.h"
#include "catalogue/reglas_subconcepto.h"
#include "widgets/ctlCombo.h"

namespace Ui {
class frmEditarSubconceptoSellos;
}
class BarraHerramientas;
class QLineEdit;
struct TablaRangos;

class frmEditarSubconceptoSellos : public Formulario, public ReceptorTCBI
{
    Q_OBJECT

public:
    frmEditarSubconceptoSellos();
    ~frmEditarSubconceptoSellos() override;

    /// Sets the form up for a new item of a concept, or loads one.
    void Inicializar(Modo operacion, int id, int concepto);
    void alActivar() override;

    void TCBI(int id, const QString& descripcion) override;
    void obtener_alicuotas();
    void obtener_modulos();
    void obtener_roles();

private:
    // Controls, by the table that joins them to columns and conditions.
    [[nodiscard]] ControlesSubconcepto leer_controles() const;
    void poner_controles(const ControlesSubconcepto& c);
    void habilitarControles();
    void vaciarDependientes(const QString& casilla);
    void cambioCasilla(const QString& casilla, bool si);

    void conectar();
    void pulsada(const QString& clave);
    void ponerEdicion(bool si);
    void aceptar();
    void elegirTipoCalculo(const ctlCombo::Fila& fila);
    void mostrarRangos(Rangos rangos);
    void elegirTipoBI();
    void crearMascara(QLineEdit* destino, const char* tabla, const char* id, const char* descripcion,
                      const QString& titulo);

    // Brackets and roles.
    void prepararRangos();
    void tlbAlicuotas_pulsada(const QString& clave);
    void tlbModulos_pulsada(const QString& clave);
    void tlbRoles_pulsada(const QString& clave);
    void habilitarBarras();
    /// The editor of a bracket or role, for a new one when none is given.
    template <class Editor, class T>
    void abrirEditor(const T* elegido);
    /// Asks, and runs the deletion; an error of the engine is told under its own title.
    void borrar(const QString& pregunta, const QString& titulo, const QString& tituloError,
                const std::function<void()>& accion);

    [[nodiscard]] int codigo() const;
    [[nodiscard]] QWidget* control(const char* nombre) const { return controles_.value(QString::fromUtf8(nombre)); }

    std::unique_ptr<Ui::frmEditarSubconceptoSellos> ui;
    QHash<QString, QWidget*> controles_;
    QSet<QWidget*> editables_;      ///< what works in the editing state
    ControlesSubconcepto ocultos_;  ///< what no control shows
    int tipoCalculo_ = 0;
    bool guardado_ = false;  ///< the item is in the store
    bool editando_ = false;
    bool mostrando_ = false;
    QList<clsAlicuotaSellos> alicuotas_;
    QList<clsModuloSellos> modulos_;
    QList<clsRol> roles_;
};
