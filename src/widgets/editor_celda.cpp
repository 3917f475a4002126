// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/editor_celda.h"

#include "widgets/ctlComunes.h"
#include "widgets/grilla.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>

EditorCelda::EditorCelda(Grilla* grilla, QComboBox* lista, QLineEdit* texto, const Columnas& columnas)
    : QObject(grilla), grilla_(grilla), lista_(lista), texto_(texto), columnas_(columnas)
{
    lista_->hide();
    texto_->hide();
    for (QWidget* w : QWidgetList{grilla_, lista_, texto_})
        w->installEventFilter(this);
    connect(grilla_, &QTableView::clicked, this, [this](const QModelIndex& i) { editar_celda(i.row(), i.column()); });
    connect(lista_, &QComboBox::activated, this, [this] { cerrar_celda(true); });
}

void EditorCelda::editar_celda(int fila, int columna, const QString& caracter)
{
    cerrar_celda(true);
    if (fila < 0 || (columna != columnas_.lista && columna != columnas_.texto))
        return;
    grilla_->irAFila(fila, columna);
    const QString texto = grilla_->celda(fila, columna);
    QWidget* editor = lista_;
    if (columna == columnas_.texto)
        editor = texto_;
    editor->setFont(grilla_->font());
    editor->setGeometry(grilla_->visualRect(grilla_->currentIndex()));
    if (editor == lista_) {
        seleccionar_texto(lista_, texto);
        if (const int i = caracter.isEmpty() ? -1 : lista_->findText(caracter, Qt::MatchStartsWith); i >= 0)
            lista_->setCurrentIndex(i);
    } else if (!caracter.isEmpty()) {
        texto_->setText(caracter);
    } else {
        texto_->setText(texto);
        texto_->selectAll();
    }
    editor->show();
    editor->setFocus();
}

void EditorCelda::cerrar_celda(bool guardar)
{
    QWidget* editor = lista_->isHidden() ? static_cast<QWidget*>(texto_) : lista_;
    const int fila = grilla_->filaActual();
    if (editor->isHidden() || cerrando_)
        return;
    const QScopedValueRollback cerrando(cerrando_, true);
    if (editor->hasFocus())
        grilla_->setFocus();
    editor->hide();
    if (!guardar || fila < 0)
        return;
    if (editor == texto_) {
        grilla_->ponerCelda(fila, columnas_.texto, texto_->text());
        return;
    }
    const bool elegido = lista_->currentIndex() >= 0;
    grilla_->ponerCelda(fila, columnas_.dato, elegido ? lista_->currentData().toString() : QString());
    grilla_->ponerCelda(fila, columnas_.lista, elegido ? lista_->currentText() : QString());
    emit listaEscrita();
}

bool EditorCelda::tecla_en_grilla(const QObject* editor, const QKeyEvent* evento)
{
    const bool en_texto = editor == texto_;
    const int columna = en_texto ? columnas_.texto : columnas_.lista;
    switch (evento->key()) {
    case Qt::Key_Escape: cerrar_celda(false); return true;
    case Qt::Key_Return:
    case Qt::Key_Enter: cerrar_celda(true); return true;
    case Qt::Key_Left:
        if (en_texto && texto_->cursorPosition() > 0)
            return false;
        editarColumnaVecina(columna, -1);
        return true;
    case Qt::Key_Right:
        if (en_texto && texto_->cursorPosition() < texto_->text().size())
            return false;
        editarColumnaVecina(columna, 1);
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        // In the list they walk its entries.
        if (en_texto)
            editarFilaVecina(evento->key(), columna);
        return en_texto;
    default: return false;
    }
}

// The grid goes there also when the column has no editor; at its edge everything stays as it is.
void EditorCelda::editarColumnaVecina(int columna, int paso)
{
    const int vecina = grilla_->columnaVecina(columna, paso);
    if (vecina < 0)
        return;
    const int fila = grilla_->filaActual();
    cerrar_celda(true);
    grilla_->irAFila(fila, vecina);
    editar_celda(fila, vecina);
}

// False at the ends of the grid, where nothing changes.
bool EditorCelda::editarFilaVecina(int tecla, int columna)
{
    const int destino = grilla_->filaActual() + (tecla == Qt::Key_Up ? -1 : 1);
    if (destino < 0 || destino >= grilla_->filas())
        return false;
    editar_celda(destino, columna);
    return true;
}

// A character, a blank or Enter on a cell that can be edited opens its editor; so does going up or down
// from one.
bool EditorCelda::abrirPorTecla(const QKeyEvent* evento)
{
    const int columna = grilla_->currentIndex().column();
    if (columna != columnas_.lista && columna != columnas_.texto)
        return false;
    if (evento->key() == Qt::Key_Up || evento->key() == Qt::Key_Down)
        return editarFilaVecina(evento->key(), columna);
    const QString texto = evento->text();
    const bool orden = evento->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool entrar = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
    if (orden || texto.isEmpty() || (!texto.front().isPrint() && !entrar))
        return false;
    editar_celda(grilla_->filaActual(), columna, texto.front() > u' ' ? texto : QString());
    return true;
}

// What is left takes what it holds with it, as by Enter.
bool EditorCelda::eventFilter(QObject* objeto, QEvent* evento)
{
    if (evento->type() == QEvent::FocusOut && objeto != grilla_) {
        const auto motivo = static_cast<QFocusEvent*>(evento)->reason();
        const bool sale = motivo != Qt::PopupFocusReason && motivo != Qt::ActiveWindowFocusReason;
        if (sale && !lista_->view()->isVisible())
            cerrar_celda(true);
    }
    if (evento->type() == QEvent::KeyPress) {
        const auto* tecla = static_cast<QKeyEvent*>(evento);
        if (objeto == grilla_ ? abrirPorTecla(tecla) : tecla_en_grilla(objeto, tecla))
            return true;
    }
    return QObject::eventFilter(objeto, evento);
}
