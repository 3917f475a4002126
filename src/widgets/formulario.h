// SPDX-License-Identifier: GPL-3.0-or-later
// Base of all forms: the single instance that loads on demand, its caller, its life as a child
// window of the main window.
#pragma once

#include "core/dialogo.h"

#include <QPointer>
#include <QWidget>

#include <functional>

class BarraHerramientas;
class QMdiArea;
class QMdiSubWindow;

class Formulario : public QWidget
{
    Q_OBJECT

public:
    explicit Formulario(QWidget* padre = nullptr);

    /// The form that opened this one: disabled while this one is up, enabled again when it unloads.
    QPointer<Formulario> Llamador;
    Modo Operacion = Modo::ninguno;

    /// Shows the form as a child of the main window, or brings it to the front.
    void mostrar();
    /// Unloads the form, after its question; false when the user keeps it.
    bool descargar();
    [[nodiscard]] bool descargada() const { return descargada_; }

    /// The area in which forms show from now on; none makes them windows of their own.
    static void fijarArea(QMdiArea* area);
    /// The loaded forms, the oldest first.
    static QList<Formulario*> cargados();

    /// What runs on each activation, after the caller has been disabled.
    virtual void alActivar() {}

protected:
    /// Whether the form may close; here a form asks.
    virtual bool consultarDescarga() { return true; }
    /// What a form does as it unloads.
    virtual void alDescargar() {}

    void avisar(const QString& texto, const QString& titulo, Icono icono = Icono::informacion);
    [[nodiscard]] bool preguntar(const QString& texto, const QString& titulo, Icono icono = Icono::pregunta);
    /// Shows the box of a failed check and moves the focus to its control.
    void mostrarFalla(const Falla& falla);
    /// The focus to a control by its name, when it is visible and enabled.
    void enfocar(const QString& control);
    /// Whether the control, or what stands inside it, has the focus.
    [[nodiscard]] bool esActivo(const QWidget* control) const;
    /// Puts the number fields under their masks, also the one that is being typed: what is stored is what shows.
    void formatearNumeros();
    /// "aceptar" of the bar runs the action, any other of its keys unloads the form.
    void aceptarOSalir(BarraHerramientas* barra, const std::function<void()>& aceptar);
    /// Enter anywhere on the form presses "aceptar" of the bar, Escape "cancelar".
    void teclasDeBarra(BarraHerramientas* barra) { barra_ = barra; }
    /// Brings a form that this one opens into its place: caller set, window shown.
    void abrir(Formulario* hijo);

    void closeEvent(QCloseEvent* evento) override;
    void showEvent(QShowEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void traerAlFrente();
    void activarse();

    QPointer<QMdiSubWindow> subventana_;
    bool descargada_ = false;
    BarraHerramientas* barra_ = nullptr;
    QPointer<QWidget> foco_;  ///< what had the focus when another form was opened
};

/// Fits a form to the main window: as large as that, but for a margin, in its upper left corner; or, without
/// `maximizar`, in the middle of the screen, a little above.
void ajustar_a_principal(Formulario* form, bool maximizar);

template <class F>
inline QPointer<F> instancia_unica;

/// The form's single instance, loaded when it is not.
template <class F>
F* cargar()
{
    QPointer<F>& unica = instancia_unica<F>;
    if (!unica || unica->descargada())
        unica = new F;
    return unica;
}

/// The form's single instance, or null when it is not loaded.
template <class F>
F* cargada()
{
    QPointer<F>& unica = instancia_unica<F>;
    return unica && !unica->descargada() ? unica.data() : nullptr;
}
