// SPDX-License-Identifier: GPL-3.0-or-later
// A read-only grid of rows.
#pragma once

#include "widgets/modelo_grilla.h"

#include <QTableView>

#include <functional>

class BarraHerramientas;

class Grilla : public QTableView
{
    Q_OBJECT

public:
    explicit Grilla(QWidget* padre = nullptr);

    /// Titles, and widths in twips; a width of 0 hides the column. The widest column takes the room that is left, or
    /// gives some of its own where there is too little, unless another one is named for that.
    void preparar(const QStringList& titulos, const QList<int>& anchos, int elastica = -1);
    /// Whether a click on a title sorts the rows by its column: up, down, as they were. They do from the start.
    void setOrdenable(bool si);
    /// The bar beside the list, whose buttons have no access keys: they stand in the list's menu, and Insert and Delete
    /// press its first ones.
    void setBarra(BarraHerramientas* barra) { barra_ = barra; }
    /// Offers the list as a spreadsheet in its menu; the name that is proposed for the file.
    void setPlanilla(const std::function<QString()>& nombre) { planilla_ = nombre; }
    /// Empties the grid and fills it by the function, which calls `agregar`. The row that was
    /// selected, known by its key cell, is selected again; when it is gone, the one that took its place. When the
    /// function throws, the rows that it added stay.
    void llenar(const std::function<void()>& rellenar);
    void agregar(const QStringList& celdas) { modelo_.agregar(celdas); }
    void agregar(std::span<const std::string_view> celdas) { modelo_.agregar(celdas); }
    void colorear(int fila, Tono tono) { modelo_.colorear(fila, tono); }
    void vaciar();

    /// Data rows; the titles do not count.
    [[nodiscard]] int filas() const { return modelo_.rowCount(); }
    /// The current data row from 0, -1 without one.
    [[nodiscard]] int filaActual() const { return currentIndex().row(); }
    /// The place of the current row among all as they were added, -1 without one: rows may have been sorted since.
    [[nodiscard]] int filaLeida() const { return modelo_.filaLeida(filaActual()); }
    void irAFila(int fila, int columna = -1);
    [[nodiscard]] QString celda(int fila, int columna) const { return modelo_.texto(fila, columna); }
    void ponerCelda(int fila, int columna, const QString& texto) { modelo_.ponerTexto(fila, columna, texto); }
    /// The column whose cells tell the rows apart; the first one unless it is set.
    void setColumnaClave(int columna) { columnaClave_ = columna; }
    /// The key cell of the current row, empty without one.
    [[nodiscard]] QString clave() const { return celda(filaActual(), columnaClave_); }
    /// The next column that is not hidden, to the left (-1) or to the right (1); -1 without one.
    [[nodiscard]] int columnaVecina(int columna, int paso) const;

signals:
    /// A double click on a row, or Enter on it.
    void elegida();

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void showEvent(QShowEvent* evento) override;
    void hideEvent(QHideEvent* evento) override;

private:
    void acomodar();
    void titularOrdenada(int columna);
    void recuperarAnchos();
    void guardarAnchos();
    [[nodiscard]] QString claveAnchos() const;
    [[nodiscard]] QStringList celdasVisibles(int fila) const;
    void copiar() const;
    [[nodiscard]] bool pulsarBarra(int tecla);
    void ordenarPorActual();
    void guardarPlanilla();
    [[nodiscard]] int primeraVisible() const;

    ModeloGrilla modelo_;
    int columnaClave_ = 0;
    int elastica_ = -1;   ///< the column that takes the room that is left
    QList<int> propios_;  ///< the columns' widths where room is enough
    bool acomodando_ = false;
    bool arrastrada_ = false;  ///< the user gave a column another width
    bool recuperada_ = false;
    std::function<QString()> planilla_;
    BarraHerramientas* barra_ = nullptr;
};

/// Pixels of a length in twips at the window's resolution.
[[nodiscard]] int pixeles(const QWidget* w, int twips);
/// Pixels of a column's width in twips, which was drawn for a narrower font than the one in use.
[[nodiscard]] int ancho_columna(const QWidget* w, int twips);

/// Titles and widths of a grid, as the forms set them.
void preparar_grilla(Grilla* grilla, const QStringList& titulos, const QList<int>& anchos, int elastica = -1);
