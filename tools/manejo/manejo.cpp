// SPDX-License-Identifier: GPL-3.0-or-later

#include "manejo/manejo.h"

#include "widgets/barra.h"
#include "widgets/ctlCombo.h"
#include "widgets/ctlNumero.h"
#include "widgets/formulario.h"
#include "widgets/grilla.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace manejo {

QWidget* control(QWidget* form, const QString& nombre)
{
    auto* w = form->findChild<QWidget*>(nombre);
    if (!w)
        throw Inesperado(u"no hay ningún control %1 en %2"_s.arg(nombre, form->objectName()));
    return w;
}

namespace {

QLineEdit* linea(QWidget* w)
{
    if (auto* l = qobject_cast<QLineEdit*>(w))
        return l;
    if (auto* c = qobject_cast<QComboBox*>(w); c && c->lineEdit())
        return c->lineEdit();
    auto* l = w->findChild<QLineEdit*>();
    if (!l)
        throw Inesperado(w->objectName() + u" no recibe texto"_s);
    return l;
}

void exigir_activo(QWidget* w)
{
    if (!w->isEnabled() || !w->isVisible())
        throw Inesperado(w->objectName() + (w->isVisible() ? u" está inhabilitado"_s : u" no se ve"_s));
    // Not every platform gives the window its focus back behind a box.
    if (!w->window()->isActiveWindow()) {
        w->window()->activateWindow();
        QApplication::processEvents();
    }
}

}  // namespace

QString texto(QWidget* form, const QString& nombre)
{
    QWidget* w = control(form, nombre);
    if (const auto* l = qobject_cast<QLabel*>(w))
        return l->text();
    if (const auto* c = qobject_cast<QComboBox*>(w))
        return c->currentText();
    if (const auto* b = qobject_cast<QAbstractButton*>(w))
        return b->text();
    return linea(w)->text();
}

namespace {

// The field with the focus, all of it selected.
QLineEdit* tomar(QWidget* form, const QString& nombre)
{
    QWidget* w = control(form, nombre);
    exigir_activo(w);
    QLineEdit* l = linea(w);
    if (l->isReadOnly())
        throw Inesperado(nombre + u" no admite texto"_s);
    if (!l->hasFocus())
        QTest::mouseClick(l, Qt::LeftButton);
    QTest::keyClick(l, Qt::Key_A, Qt::ControlModifier);
    return l;
}

}  // namespace

void pegar(QWidget* form, const QString& nombre, const QString& texto)
{
    QApplication::clipboard()->setText(texto);
    Cajas::vigilar([&] { QTest::keyClick(tomar(form, nombre), Qt::Key_V, Qt::ControlModifier); });
}

void acceso(QWidget* form, int letra)
{
    exigir_activo(form);
    QWidget* foco = QApplication::focusWidget();
    Cajas::vigilar([&] { QTest::keyClick(foco ? foco : form, Qt::Key(letra), Qt::AltModifier); });
}

QString con_foco(QWidget* form)
{
    const QWidget* w = form->focusWidget();
    const bool parte = w && (w->objectName() == u"txt" || w->objectName().startsWith(u"qt_"));
    return !w ? QString() : parte ? w->parentWidget()->objectName() : w->objectName();
}

void caracteres(QWidget* w, const QString& texto)
{
    for (const QChar c : texto) {
        // A widget takes the character of the event, also where the key has no Latin-1 code.
        QKeyEvent baja(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(c));
        QApplication::sendEvent(w, &baja);
        QKeyEvent sube(QEvent::KeyRelease, Qt::Key_unknown, Qt::NoModifier, QString(c));
        QApplication::sendEvent(w, &sube);
    }
}

void teclear(QWidget* form, const QString& nombre, const QString& texto)
{
    QLineEdit* l = tomar(form, nombre);
    QTest::keyClick(l, Qt::Key_Delete);
    caracteres(l, texto);
}

void escribir(QWidget* form, const QString& nombre, const QString& texto)
{
    Cajas::vigilar([&] {
        teclear(form, nombre, texto);
        QTest::keyClick(linea(control(form, nombre)), Qt::Key_Tab);
        QApplication::processEvents();
    });
}

namespace {

void elegir_fila(ctlCombo* combo, const QString& texto)
{
    exigir_activo(combo);
    const auto filas = combo->lista();
    const auto it = std::find_if(filas.begin(), filas.end(),
                                 [&](const ctlCombo::Fila& f) { return f.texto.startsWith(texto); });
    if (it == filas.end())
        throw Inesperado(u"%1 no tiene «%2»"_s.arg(combo->objectName(), texto));
    Cajas::vigilar([&] {
        QTest::mouseClick(combo->findChild<QToolButton*>(u"cmd"_s), Qt::LeftButton);
        auto* lista = combo->findChild<QTreeWidget*>(u"lvw"_s);
        lista->setFocus();
        QTest::keyClick(lista, Qt::Key_Home);
        for (int i = 1; i < it->indice; ++i)
            QTest::keyClick(lista, Qt::Key_Down);
        QTest::keyClick(lista, Qt::Key_Return);
        QApplication::processEvents();
    });
}

}  // namespace

void elegir(QWidget* form, const QString& nombre, const QString& texto)
{
    if (auto* lista = qobject_cast<ctlCombo*>(control(form, nombre)))
        return elegir_fila(lista, texto);
    auto* combo = qobject_cast<QComboBox*>(control(form, nombre));
    if (!combo)
        throw Inesperado(nombre + u" no es una lista"_s);
    exigir_activo(combo);
    const int indice = combo->findText(texto, Qt::MatchStartsWith);
    if (indice < 0)
        throw Inesperado(u"%1 no tiene «%2»"_s.arg(nombre, texto));
    Cajas::vigilar([&] {
        combo->setFocus();
        QTest::keyClick(combo, Qt::Key_F4);
        QApplication::processEvents();
        QAbstractItemView* lista = combo->view();
        QTest::keyClick(lista, Qt::Key_Home);
        for (int i = 0; i < indice; ++i)
            QTest::keyClick(lista, Qt::Key_Down);
        QTest::keyClick(lista, Qt::Key_Return);
        QApplication::processEvents();
    });
}

void clic(QWidget* form, const QString& nombre)
{
    QWidget* w = control(form, nombre);
    exigir_activo(w);
    // On the mark of a box or an option, which stands at its left.
    const bool marca = w->inherits("QCheckBox") || w->inherits("QRadioButton");
    Cajas::vigilar(
        [&] { QTest::mouseClick(w, Qt::LeftButton, Qt::NoModifier, marca ? QPoint(8, w->height() / 2) : QPoint()); });
}

namespace {

QWidget* boton_de(QWidget* form, const QString& nombre, const QString& clave)
{
    auto* barra = qobject_cast<BarraHerramientas*>(control(form, nombre));
    QAction* accion = barra ? barra->boton(clave) : nullptr;
    if (!accion)
        throw Inesperado(u"%1 no tiene el botón %2"_s.arg(nombre, clave));
    return barra->widgetForAction(accion);
}

}  // namespace

bool habilitado(QWidget* form, const QString& barra, const QString& clave)
{
    return boton_de(form, barra, clave)->isEnabled();
}

void pulsar(QWidget* form, const QString& barra, const QString& clave)
{
    QWidget* boton = boton_de(form, barra, clave);
    if (!boton->isEnabled())
        throw Inesperado(u"el botón %1 de %2 está inhabilitado"_s.arg(clave, barra));
    exigir_activo(form);
    Cajas::vigilar([&] { QTest::mouseClick(boton, Qt::LeftButton); });
}

void tecla(QWidget* form, const QString& nombre, int tecla)
{
    QWidget* w = control(form, nombre);
    Cajas::vigilar([&] { QTest::keyClick(w->focusProxy() ? w->focusProxy() : w, Qt::Key(tecla)); });
}

void solapa(QWidget* form, const QString& nombre, int indice)
{
    auto* solapas = qobject_cast<QTabWidget*>(control(form, nombre));
    if (!solapas || !solapas->isTabEnabled(indice))
        throw Inesperado(u"la solapa %1 está inhabilitada"_s.arg(indice));
    QTabBar* barra = solapas->tabBar();
    Cajas::vigilar([&] { QTest::mouseClick(barra, Qt::LeftButton, Qt::NoModifier, barra->tabRect(indice).center()); });
}

namespace {

Grilla* grilla_de(QWidget* form, const QString& nombre)
{
    auto* g = qobject_cast<Grilla*>(control(form, nombre));
    if (!g)
        throw Inesperado(nombre + u" no es una grilla"_s);
    return g;
}

}  // namespace

void celda(QWidget* form, const QString& grilla, int fila, int columna)
{
    Grilla* g = grilla_de(form, grilla);
    exigir_activo(g);
    const QModelIndex i = g->model()->index(fila, columna);
    if (!i.isValid())
        throw Inesperado(u"%1 no tiene la fila %2"_s.arg(grilla).arg(fila));
    g->scrollTo(i);
    QTest::mouseClick(g->viewport(), Qt::LeftButton, Qt::NoModifier, g->visualRect(i).center());
    QApplication::processEvents();
}

QString en_grilla(QWidget* form, const QString& grilla, int fila, int columna)
{
    return grilla_de(form, grilla)->celda(fila, columna);
}

int filas(QWidget* form, const QString& grilla)
{
    return grilla_de(form, grilla)->filas();
}

Formulario* formulario(const char* clase)
{
    QApplication::processEvents();
    for (Formulario* f : Formulario::cargados())
        if (f->inherits(clase) && f->isVisible() && f->isEnabled())
            return f;
    throw Inesperado(u"la ventana %1 no está abierta o está inhabilitada"_s.arg(QLatin1String(clase)));
}

void comprobar(const QString& que, const QString& valor, const QString& esperado)
{
    if (valor != esperado)
        throw Inesperado(u"%1: dice «%2» y se esperaba «%3»"_s.arg(que, valor, esperado));
}

}  // namespace manejo
