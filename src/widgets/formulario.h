// SPDX-License-Identifier: GPL-3.0-or-later
// Base of all forms: the single instance that loads on demand, its caller, its life as a child
// window of the main window, its focus, and the guard of all that a user does in it.
#pragma once

#include "core/dialogo.h"
#include "widgets/invocar.h"

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
    /// Unloads the form, after its question; false when the user keeps it. What was typed and not stored is
    /// given up without a word: the form does this by itself.
    bool descargar();
    /// The same as by the window's own button, which asks about what was typed and not stored.
    bool cerrar();
    [[nodiscard]] bool descargada() const { return descargada_; }

    /// The area in which forms show from now on; none makes them windows of their own.
    static void fijarArea(QMdiArea* area);
    /// The loaded forms, the oldest first.
    static QList<Formulario*> cargados();

    /// What runs on each activation, after the caller has been disabled.
    virtual void alActivar() {}

    /// Runs the action of a bar's button: the field with the focus is left before, as by Tab, and a refusal that
    /// this raises stops the button; the action runs in the guard; the focus stands in the field again afterwards
    /// when the form has not moved it. A button that gives up what was typed (`sale`) is never stopped.
    void actuar(const std::function<void()>& accion, bool sale);

protected:
    /// Whether the form may close; here a form asks.
    virtual bool consultarDescarga() { return true; }
    /// What a form does as it unloads.
    virtual void alDescargar() {}
    /// Whether what the controls hold is on its way to the store, so that a difference would be lost.
    virtual bool editando() const { return true; }

    /// Connects a signal to an action of this form, which runs in the guard.
    template <class Emisor, class Senal, class Accion>
    QMetaObject::Connection atender(Emisor* emisor, Senal senal, Accion accion)
    {
        return connect(emisor, senal, this,
                       [this, accion](auto&&... argumentos) { proteger([&] { invocar(accion, argumentos...); }); });
    }
    template <class Emisor, class Senal, class Resultado, class Clase, class... Parametros>
    QMetaObject::Connection atender(Emisor* emisor, Senal senal, Resultado (Clase::*metodo)(Parametros...))
    {
        return atender(emisor, senal,
                       [yo = static_cast<Clase*>(this), metodo](Parametros... valores) { (yo->*metodo)(valores...); });
    }
    /// Runs an action. What it fails with is rolled back and told; form and typed values stay as they are. Only a
    /// store that is gone or damaged goes on to the program's end. False after a failure.
    bool proteger(const std::function<void()>& accion);
    /// A refusal without a box, raised while a field is left.
    static void negar();

    void avisar(const QString& texto, const QString& titulo, Icono icono = Icono::informacion,
                const QString& detalles = {});
    [[nodiscard]] bool preguntar(const QString& texto, const QString& titulo, Icono icono = Icono::pregunta);
    /// Shows the box of a failed check and moves the focus to its control.
    void mostrarFalla(const Falla& falla);
    /// The focus to a control by its name, when it is visible and enabled.
    void enfocar(const QString& control);
    /// The focus to the first field that can be typed in, else to a grid, else to what comes first.
    void enfocarPrimero();
    /// "aceptar" of the bar runs the action, any other of its keys unloads the form.
    void aceptarOSalir(BarraHerramientas* barra, const std::function<void()>& aceptar);
    /// Enter anywhere on the form presses "aceptar" (or "seleccionar") of the bar; Escape "cancelar" (or
    /// "salir") too, but where what was typed would go with it.
    enum class Escape { cancela, nada };
    void teclasDeBarra(BarraHerramientas* barra, Escape escape = Escape::cancela);
    /// Escape closes a form that only shows.
    void cerrarConEscape() { soloMuestra_ = true; }
    /// Brings a form that this one opens into its place: caller set, window shown.
    void abrir(Formulario* hijo);
    /// From here on a difference of the controls below `raiz` (the whole form without it) is an unsaved change.
    void marcarGuardado(const QWidget* raiz = nullptr);

    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;
    void showEvent(QShowEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void traerAlFrente();
    void ubicar();
    void guardarLugar() const;
    void activarse();
    void activarAnterior();
    [[nodiscard]] bool dejarCampo(QWidget* campo, bool sale);
    void recuperarFoco(QWidget* campo);
    void devolverFoco();
    void enfocarIlegible();
    [[nodiscard]] bool hayCambios() const;
    void prepararControles();

    QPointer<QMdiSubWindow> subventana_;
    QRect lugar_;  ///< of its window when it was shown
    bool descargada_ = false;
    bool medida_ = false;  ///< for the size of its letters
    bool preparada_ = false;
    bool porPrograma_ = false;  ///< the form unloads itself
    BarraHerramientas* barra_ = nullptr;
    bool soloMuestra_ = false;
    Escape escape_ = Escape::nada;
    QPointer<QWidget> foco_;    ///< what had the focus when another form was opened
    QPointer<QWidget> dejado_;  ///< the field that was left for an action of a bar
    QPointer<const QWidget> raiz_;
    QStringList huella_;
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
