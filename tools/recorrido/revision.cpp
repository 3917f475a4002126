// SPDX-License-Identifier: GPL-3.0-or-later

#include "recorrido/revision.h"

#include "widgets/barra.h"
#include "widgets/colores.h"
#include "widgets/formulario.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenuBar>
#include <QRegularExpression>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTextBrowser>
#include <QToolBar>

using namespace Qt::StringLiterals;

namespace {

constexpr double CONTRASTE = 4.5;
// Longer texts of lists are shown whole by their tip.
constexpr int RENGLON = 40;
constexpr int MARGEN_TITULO = 16;
// The path of the store is shortened by itself, and shown whole by its tip.
const QString ACORTADO = u"panelBase"_s;

QString falta(int pide, int tiene)
{
    return u"pide %1 y tiene %2"_s.arg(pide).arg(tiene);
}

QString cortado(const QSize& pide, const QSize& tiene)
{
    return pide.width() > tiene.width()     ? u"ancho: "_s + falta(pide.width(), tiene.width())
           : pide.height() > tiene.height() ? u"alto: "_s + falta(pide.height(), tiene.height())
                                            : QString();
}

QString rotulo_cortado(const QLabel* r)
{
    if (r->text().isEmpty() || r->objectName() == ACORTADO)
        return {};
    const int alto = r->wordWrap() ? r->heightForWidth(r->width()) : r->sizeHint().height();
    return cortado({r->wordWrap() ? 0 : r->sizeHint().width(), alto}, r->size());
}

QString solapas_cortadas(const QTabBar* b)
{
    for (int i = 0; i < b->count(); ++i)
        if (const int pide = b->fontMetrics().horizontalAdvance(b->tabText(i));
            b->tabRect(i).width() < pide || b->tabRect(i).right() > b->width())
            return b->tabText(i) + u": "_s + falta(pide, b->tabRect(i).width());
    return {};
}

QString titulos_cortados(const QHeaderView* t)
{
    for (int i = 0; t->orientation() == Qt::Horizontal && i < t->count(); ++i)
        if (!t->isSectionHidden(i) && t->sectionSize(i) < t->sectionSizeHint(i))
            return t->model()->headerData(i, Qt::Horizontal).toString() + u": "_s
                   + falta(t->sectionSizeHint(i), t->sectionSize(i));
    return {};
}

QString combo_cortado(const QComboBox* c)
{
    QStyleOptionComboBox o;
    o.initFrom(c);
    o.editable = c->isEditable();
    const QRect campo = c->style()->subControlRect(QStyle::CC_ComboBox, &o, QStyle::SC_ComboBoxEditField, c);
    const int pide = c->fontMetrics().horizontalAdvance(c->currentText());
    return pide > campo.width() && c->currentText().size() <= RENGLON ? falta(pide, campo.width()) : QString();
}

// Free texts may be longer than any field; numbers never are.
QString numero_cortado(const QLineEdit* t)
{
    static const QRegularExpression NUMERO(u"^[-0-9.,/]+$"_s);
    constexpr int BORDES = 6;
    const int pide = t->fontMetrics().horizontalAdvance(t->text()) + BORDES;
    return t->text().contains(NUMERO) && pide > t->width() ? falta(pide, t->width()) : QString();
}

QString texto_cortado(const QWidget* w)
{
    if (const auto* r = qobject_cast<const QLabel*>(w))
        return rotulo_cortado(r);
    if (const auto* b = qobject_cast<const QAbstractButton*>(w); b && !b->text().isEmpty())
        return cortado(b->sizeHint(), b->size());
    if (const auto* g = qobject_cast<const QGroupBox*>(w))
        return cortado({g->fontMetrics().horizontalAdvance(g->title()) + MARGEN_TITULO, 0}, g->size());
    if (const auto* s = qobject_cast<const QTabBar*>(w))
        return solapas_cortadas(s);
    if (const auto* t = qobject_cast<const QHeaderView*>(w))
        return titulos_cortados(t);
    if (const auto* c = qobject_cast<const QComboBox*>(w))
        return combo_cortado(c);
    if (const auto* t = qobject_cast<const QLineEdit*>(w))
        return numero_cortado(t);
    if (const auto* b = qobject_cast<const QScrollBar*>(w);
        b && b->orientation() == Qt::Horizontal && !w->window()->findChild<QTextBrowser*>())
        return u"barra horizontal"_s;
    if (w->objectName() == u"qt_toolbar_ext_button")
        return u"botones que no entran"_s;
    return {};
}

// What a screen reader says of a control that takes the focus or is pressed.
QString sin_nombre(QWidget* w)
{
    const bool propio = !w->objectName().startsWith(u"qt_") && !qobject_cast<QScrollBar*>(w)
                        && !qobject_cast<QHeaderView*>(w) && !w->inherits("QMdiArea");
    if (!propio || (w->focusPolicy() == Qt::NoFocus && !qobject_cast<QAbstractButton*>(w)) || w->focusProxy()
        || qobject_cast<Formulario*>(w) || (qobject_cast<QLineEdit*>(w) && qobject_cast<QComboBox*>(w->parent())))
        return {};
    // The title of the group around it is not its name.
    const auto* grupo = qobject_cast<QGroupBox*>(w->parentWidget());
    QAccessibleInterface* a = QAccessible::queryAccessibleInterface(w);
    const QString nombre = a ? a->text(QAccessible::Name).trimmed() : QString();
    const auto rotulos = grupo ? grupo->findChildren<QLabel*>(Qt::FindDirectChildrenOnly) : QList<QLabel*>();
    const bool del_grupo = grupo && w->accessibleName().isEmpty() && nombre == QString(grupo->title()).remove(u'&')
                           && std::none_of(rotulos.begin(), rotulos.end(), [w](auto* r) { return r->buddy() == w; });
    return nombre.isEmpty() || del_grupo ? u"sin nombre accesible"_s : QString();
}

QString poco_contraste(const QWidget* w)
{
    const QPalette& p = w->palette();
    const bool campo = qobject_cast<const QLineEdit*>(w);
    const bool boton = qobject_cast<const QAbstractButton*>(w);
    if (!campo && !boton && !qobject_cast<const QLabel*>(w))
        return {};
    const auto texto = campo ? QPalette::Text : boton ? QPalette::ButtonText : QPalette::WindowText;
    const auto fondo = campo ? QPalette::Base : boton ? QPalette::Button : QPalette::Window;
    const double razon = contraste(p.color(texto), p.color(fondo));
    return razon < CONTRASTE ? u"contraste %1"_s.arg(razon, 0, 'f', 1) : QString();
}

// The access keys of what can be pressed now, in one form or in the main window.
void teclas(const QWidget* form, const QList<QWidget*>& controles, QStringList& faltas)
{
    QHash<QString, QString> de;
    const auto anotar = [&](const QString& texto, const QString& quien) {
        const QString tecla = QKeySequence::mnemonic(texto).toString();
        if (tecla.isEmpty())
            return;
        if (QString& otro = de[tecla]; otro.isEmpty())
            otro = quien;
        else if (otro != quien)
            faltas << u"%1: %2: %3 es también de %4"_s.arg(QLatin1StringView(form->metaObject()->className()), quien,
                                                           tecla, otro);
    };
    for (const QWidget* w : controles) {
        if (const auto* barra = qobject_cast<const BarraHerramientas*>(w); barra && !barra->secundaria())
            for (const QAction* a : barra->actions())
                anotar(a->text(), a->objectName());
        else if (const auto* s = qobject_cast<const QTabBar*>(w))
            for (int i = 0; i < s->count(); ++i)
                anotar(s->tabText(i), s->tabText(i));
        else if (const auto* m = qobject_cast<const QMenuBar*>(w))
            for (const QAction* a : m->actions())
                anotar(a->text(), a->text());
        else if (const auto* r = qobject_cast<const QLabel*>(w); r && r->buddy())
            anotar(r->text(), r->objectName());
        else if (const auto* g = qobject_cast<const QGroupBox*>(w))
            anotar(g->title(), g->objectName());
        else if (w->inherits("QPushButton") || w->inherits("QCheckBox") || w->inherits("QRadioButton"))
            anotar(w->property("text").toString(), w->objectName());
    }
}

// That of the whole control for its parts.
QString nombre_de(const QWidget* w)
{
    const QString nombre = w->objectName();
    const bool parte = nombre.isEmpty() || nombre == u"txt" || nombre.startsWith(u"qt_");
    return parte && w->parent() ? w->parent()->objectName() + u' ' + nombre : nombre;
}

// Below the window, but what stands on a form of its own.
QList<QWidget*> controles_de(const QWidget* ventana)
{
    QList<QWidget*> controles;
    const auto todos = ventana->findChildren<QWidget*>();
    for (QWidget* w : todos) {
        bool ajeno = !w->isVisible();
        for (const QWidget* p = w; p && p != ventana && !ajeno; p = p->parentWidget())
            ajeno = p->inherits("QMdiSubWindow");
        if (!ajeno)
            controles << w;
    }
    return controles;
}

}  // namespace

QStringList revisar_ventanas(QWidget* principal)
{
    QList<QWidget*> ventanas;
    for (Formulario* f : Formulario::cargados())
        if (f->isVisible())
            ventanas << f;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->isVisible() && !ventanas.contains(w))
            ventanas << w;
    QStringList faltas;
    for (const QWidget* v : std::as_const(ventanas)) {
        QList<QWidget*> controles = controles_de(v);
        const QString form = QLatin1StringView(v->metaObject()->className());
        for (QWidget* w : std::as_const(controles))
            for (const QString& falla : {texto_cortado(w), sin_nombre(w), poco_contraste(w)})
                if (!falla.isEmpty())
                    faltas << u"%1: %2 %3: %4"_s.arg(form, QLatin1StringView(w->metaObject()->className()),
                                                     nombre_de(w), falla);
        // The menu's keys are those of every form in the main window.
        if (v != principal && principal->isAncestorOf(v))
            controles << principal->findChild<QMenuBar*>();
        teclas(v, controles, faltas);
    }
    return faltas;
}
