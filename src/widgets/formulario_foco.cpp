// SPDX-License-Identifier: GPL-3.0-or-later
// Where a form's focus stands, and its keys.

#include "widgets/barra.h"
#include "widgets/colores.h"
#include "widgets/ctlNumero.h"
#include "widgets/formulario.h"
#include "widgets/grilla.h"
#include "widgets/mensajes.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTabWidget>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

// Refusals without a box, since the program began.
int negadas = 0;

// Brings to the front the pages of tab widgets on which the control stands.
void mostrar_solapa_de(QWidget* control)
{
    for (QWidget* w = control; w && w->parentWidget(); w = w->parentWidget())
        for (QWidget* p = w->parentWidget(); p; p = p->parentWidget())
            if (auto* solapas = qobject_cast<QTabWidget*>(p); solapas && solapas->indexOf(w) >= 0)
                solapas->setCurrentIndex(solapas->indexOf(w));
}

bool sirve(const QWidget* w)
{
    return w && w->isVisible() && w->isEnabled();
}

// How well a control serves as the first one: a field to type in, a grid with rows, anything that Tab stops at.
int rango_de_foco(const QWidget* w)
{
    if (const auto* texto = qobject_cast<const QLineEdit*>(w))
        return texto->isReadOnly() ? 0 : 3;
    if (const auto* combo = qobject_cast<const QComboBox*>(w); combo && combo->isEditable())
        return 3;
    if (qobject_cast<const QAbstractSpinBox*>(w))
        return 3;
    if (const auto* grilla = qobject_cast<const Grilla*>(w))
        return grilla->filas() > 0 ? 2 : 1;
    return 1;
}

// Line ends, tabs and the like never stay in a field: a run of them, as a paste brings it, is one blank.
void sin_control(QLineEdit* texto)
{
    static const QRegularExpression CONTROL(u"[\\x00-\\x1f\\x7f-\\x9f\\x{2028}\\x{2029}]+"_s);
    const QString antes = texto->text();
    if (!antes.contains(CONTROL))
        return;
    const qsizetype cursor = antes.left(texto->cursorPosition()).replace(CONTROL, u" "_s).size();
    const bool tecleado = texto->isModified();
    texto->setText(QString(antes).replace(CONTROL, u" "_s));
    texto->setModified(tecleado);
    texto->setCursorPosition(int(cursor));
}

// A field that only shows has the colour of the window's face, and Tab passes it.
void ajustar_solo_lectura(QLineEdit* texto)
{
    if (texto->objectName() == u"txt")
        return;
    pintar_fondo(texto, !texto->isReadOnly());
    texto->setFocusPolicy(texto->isReadOnly() ? Qt::ClickFocus : Qt::StrongFocus);
}

}  // namespace

void Formulario::negar()
{
    ++negadas;
}

void Formulario::prepararControles()
{
    const auto textos = findChildren<QLineEdit*>();
    for (QLineEdit* texto : textos) {
        if (texto->isReadOnly())
            ajustar_solo_lectura(texto);
        texto->installEventFilter(this);
        connect(texto, &QLineEdit::textChanged, texto, [texto] { sin_control(texto); });
    }
    const auto controles = findChildren<QWidget*>();
    for (QWidget* w : controles)
        if (w->inherits("QComboBox") || w->inherits("QAbstractSpinBox")) {
            w->setFocusPolicy(Qt::StrongFocus);
            w->installEventFilter(this);
        }
}

// The wheel changes only what has the focus; elsewhere it scrolls what lies below.
bool Formulario::eventFilter(QObject* objeto, QEvent* evento)
{
    auto* w = qobject_cast<QWidget*>(objeto);
    if (w && evento->type() == QEvent::Wheel && !w->hasFocus() && !qobject_cast<QLineEdit*>(w)) {
        evento->ignore();
        return true;
    }
    if (const auto* lista = qobject_cast<QComboBox*>(w);
        lista && evento->type() == QEvent::ToolTip
        && lista->fontMetrics().horizontalAdvance(lista->currentText()) + lista->height() > lista->width()) {
        QToolTip::showText(static_cast<QHelpEvent*>(evento)->globalPos(), lista->currentText(), w);
        return true;
    }
    if (auto* texto = qobject_cast<QLineEdit*>(w); texto && evento->type() == QEvent::ReadOnlyChange)
        ajustar_solo_lectura(texto);
    return QWidget::eventFilter(objeto, evento);
}

void Formulario::showEvent(QShowEvent* evento)
{
    QWidget::showEvent(evento);
    if (std::exchange(preparada_, true))
        return;
    prepararControles();
}

void Formulario::actuar(const std::function<void()>& accion, bool sale)
{
    const QPointer<Formulario> vivo = this;
    const QPointer<QWidget> campo = focusWidget();
    if (campo && campo != this && !dejarCampo(campo, sale))
        return;
    proteger(accion);
    if (vivo && !descargada_)
        recuperarFoco(campo);
}

// The focus goes to the form itself, where nothing else puts it: so it shows later whether the action moved it.
bool Formulario::dejarCampo(QWidget* campo, bool sale)
{
    const int antes = negadas;
    const int cajas = DialogoPantalla::avisos();
    dejado_ = campo;
    setFocus(Qt::OtherFocusReason);
    if (sale || (DialogoPantalla::avisos() == cajas && negadas == antes))
        return true;
    recuperarFoco(campo);
    return false;
}

void Formulario::recuperarFoco(QWidget* campo)
{
    const QWidget* actual = focusWidget();
    if (!sirve(this) || (actual != this && sirve(actual)))
        return;
    if (campo && campo != this && sirve(campo))
        campo->setFocus(Qt::OtherFocusReason);
    else
        enfocarPrimero();
}

void Formulario::devolverFoco()
{
    QWidget* foco = foco_ ? foco_.data() : focusWidget();
    foco_ = nullptr;
    if (foco && foco != this && sirve(foco))
        foco->setFocus();
    else
        enfocarPrimero();
}

void Formulario::enfocarPrimero()
{
    QWidget* mejor = this;
    int rango = 0;
    for (QWidget* w = nextInFocusChain(); w && w != this; w = w->nextInFocusChain())
        if (isAncestorOf(w) && !w->focusProxy() && (w->focusPolicy() & Qt::TabFocus) && sirve(w)
            && rango_de_foco(w) > rango) {
            mejor = w;
            rango = rango_de_foco(w);
        }
    mejor->setFocus(Qt::OtherFocusReason);
}

void Formulario::enfocar(const QString& control)
{
    auto* w = control.isEmpty() ? nullptr : findChild<QWidget*>(control);
    if (!w)
        return;
    mostrar_solapa_de(w);
    if (sirve(w))
        w->setFocus(Qt::OtherFocusReason);
}

// The number field that could not be read.
void Formulario::enfocarIlegible()
{
    const auto numeros = findChildren<ctlNumero*>();
    for (const ctlNumero* n : numeros)
        if (!n->modelo().legible() && n->isEnabledTo(this)) {
            enfocar(n->objectName());
            return;
        }
}

void Formulario::aceptarOSalir(BarraHerramientas* barra, const std::function<void()>& aceptar)
{
    atender(barra, &BarraHerramientas::pulsada, [this, aceptar](const QString& clave) {
        if (clave == u"aceptar")
            aceptar();
        else
            descargar();
    });
}

void Formulario::teclasDeBarra(BarraHerramientas* barra, Escape escape)
{
    barra_ = barra;
    escape_ = escape;
}

void Formulario::keyPressEvent(QKeyEvent* evento)
{
    const bool acepta = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
    const bool cancela = evento->key() == Qt::Key_Escape;
    if (cancela && soloMuestra_)
        descargar();
    else if (barra_ && (acepta || (cancela && escape_ == Escape::cancela)))
        barra_->pulsarPrimera(acepta ? QStringList{u"aceptar"_s, u"seleccionar"_s}
                                     : QStringList{u"cancelar"_s, u"salir"_s});
    else
        QWidget::keyPressEvent(evento);
}
