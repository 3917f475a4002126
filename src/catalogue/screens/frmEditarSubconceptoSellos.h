// SPDX-License-Identifier: GPL-3.0-or-later
// One item of the catalogue: its law and calculation, what an operation of it asks for, its brackets and
// its roles.
#pragma once

#include "catalogue/reglas_subconcepto.h"
#include "catalogue/screens/frmTiposCalculoBI.h"
#include "catalogue/subconcepto_memoria.h"
#include "widgets/ctlCombo.h"

#include <array>

namespace Ui {
class frmEditarSubconceptoSellos;
}
class BarraHerramientas;
class QLineEdit;
struct TablaMascara;

class frmEditarSubconceptoSellos : public Formulario, public ReceptorTCBI
{
    Q_OBJECT

public:
    frmEditarSubconceptoSellos();
    ~frmEditarSubconceptoSellos() override;

    /// Sets the form up for a new item of a concept, or loads one.
    void Inicializar(Modo operacion, std::optional<int> id, std::optional<int> concepto);
    /// Reads the brackets and roles of a stored item again.
    void alActivar() override;
    /// Takes the type of calculation of the base that was chosen, with the boxes that it ticks or clears.
    void TCBI(int id, const QString& descripcion) override;

    /// Read the item's brackets or roles into their grid. They throw ErrorAlmacen.
    void obtener_alicuotas();
    void obtener_modulos();
    void obtener_roles();

protected:
    bool editando() const override { return editando_; }

private:
    /// The places of the tabs that are named here.
    enum Solapa { SOLAPA_RANGOS = 2, SOLAPA_ROLES = 3 };

    // Controls, by the table that joins them to columns and conditions.
    [[nodiscard]] ControlesSubconcepto leer_controles() const;
    void poner_controles(const ControlesSubconcepto& c);
    void habilitarControles();
    void vaciarDependientes(const QString& casilla);
    void cambioCasilla(const QString& casilla, bool si);

    void conectar();
    void pulsada(const QString& clave);
    void ponerEdicion(bool si);
    /// The texts that begin the editing state when they are typed in.
    [[nodiscard]] std::array<QLineEdit*, 3> textosQueEditan() const;
    void aceptar();
    void elegirTipoCalculo(const ctlCombo::Fila& fila);
    void mostrarRangos(Rangos rangos);
    void elegirTipoBI();
    void crearMascara(QLineEdit* destino, const TablaMascara& tabla, const QString& titulo);

    // Brackets and roles.
    void prepararRangos();
    void tlbAlicuotas_pulsada(const QString& clave);
    void tlbModulos_pulsada(const QString& clave);
    void tlbRoles_pulsada(const QString& clave);
    void habilitarBarras();
    struct TextosBorrado
    {
        QString pregunta;
        QString titulo;
        QString tituloError;
    };
    /// Deletes what the grid stands on and reads the list again, or opens its editor, for a new bracket or role
    /// with "alta".
    template <class Editor, class T, class Borrar>
    void atenderBarra(const QString& clave, const T* elegido, const TextosBorrado& textos, const Borrar& borrar,
                      void (frmEditarSubconceptoSellos::*releer)());

    [[nodiscard]] int codigo() const;
    [[nodiscard]] QWidget* control(const char* nombre) const { return controles_.value(QString::fromUtf8(nombre)); }

    std::unique_ptr<Ui::frmEditarSubconceptoSellos> ui;
    QHash<QString, QWidget*> controles_;
    QSet<QWidget*> editables_;      ///< what works in the editing state
    ControlesSubconcepto ocultos_;  ///< what no control shows
    std::optional<int> tipoCalculo_;
    bool guardado_ = false;  ///< the item is in the store
    bool editando_ = false;
    bool mostrando_ = false;
    QList<clsAlicuotaSellos> alicuotas_;
    QList<clsModuloSellos> modulos_;
    QList<clsRol> roles_;
};
