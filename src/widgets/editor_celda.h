// SPDX-License-Identifier: GPL-3.0-or-later
// A grid has no editor of its own: a list and a text box are placed over its cells, one for a column each.
#pragma once

#include <QObject>

class Grilla;
class QComboBox;
class QKeyEvent;
class QLineEdit;

class EditorCelda : public QObject
{
    Q_OBJECT

public:
    /// The columns that the editors stand over, and the one beside the list's that takes its item data.
    struct Columnas
    {
        int dato;
        int lista;
        int texto;
    };

    /// Both editors are children of the grid's viewport and stay hidden until a cell is edited.
    EditorCelda(Grilla* grilla, QComboBox* lista, QLineEdit* texto, const Columnas& columnas);

    /// Closes what is open, goes to the cell and opens its editor; a cell of another column has none. The
    /// list shows the entry of the cell's text, or the first one that begins with the character that was typed.
    /// The text box begins with that character, or with the cell's text, selected, when none was.
    void editar_celda(int fila, int columna, const QString& caracter = {});
    /// A key in an open editor: it closes, moves to the next cell, or stays. True when the key is used up.
    bool tecla_en_grilla(const QObject* editor, const QKeyEvent* evento);
    /// Hides the open editor and gives the focus back to the grid; what it holds goes to the current row
    /// first, when it is to be kept.
    void cerrar_celda(bool guardar);

signals:
    /// The list wrote its choice into the current row.
    void listaEscrita();

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    bool abrirPorTecla(const QKeyEvent* evento);
    bool editarFilaVecina(int tecla, int columna);
    void editarColumnaVecina(int columna, int paso);

    Grilla* grilla_;
    QComboBox* lista_;
    QLineEdit* texto_;
    Columnas columnas_;
    bool cerrando_ = false;
};
