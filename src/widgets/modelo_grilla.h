// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of a grid: texts, with a colour per row where one is set.
#pragma once

#include "widgets/colores.h"

#include <QAbstractTableModel>
#include <QHash>

#include <span>
#include <string>
#include <string_view>
#include <vector>

class ModeloGrilla : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void preparar(const QStringList& titulos);
    [[nodiscard]] const QStringList& titulos() const { return titulos_; }
    /// Between both calls rows are added without the view following each.
    void comenzar();
    void terminar();
    void agregar(const QStringList& celdas);
    /// A row of cells in UTF-8; the bytes are copied.
    void agregar(std::span<const std::string_view> celdas);
    void colorear(int fila, Tono tono);

    [[nodiscard]] QString texto(int fila, int columna) const;
    /// The place of a row among all as they were added.
    [[nodiscard]] int filaLeida(int fila) const;
    /// The first row whose cell of the column holds this text, -1 without one.
    [[nodiscard]] int filaCon(int columna, const QString& texto) const;
    void ponerTexto(int fila, int columna, const QString& texto);
    /// By the values of a column, from now on; -1 brings back the order in which the rows were added.
    void sort(int columna, Qt::SortOrder sentido) override;

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int rol) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int rol) const override;

private:
    void vaciar();
    void agregarCelda(std::string_view utf8);
    void ordenar();
    [[nodiscard]] quint32 lugar(int fila, int columna) const;
    [[nodiscard]] std::string_view celda(quint32 cual) const;

    QStringList titulos_;
    // Lists run to tens of thousands of rows: their texts lie end to end as they came from the
    // store, and only what is shown becomes a string.
    std::string textos_;
    std::vector<quint32> finales_;
    QHash<quint32, QString> cambiadas_;
    QHash<int, Tono> tonos_;
    int filas_ = 0;
    int ordenada_ = -1;  ///< the column by which the rows stand, -1 for none
    Qt::SortOrder sentido_ = Qt::AscendingOrder;
    std::vector<int> orden_;  ///< of the rows as they stand; empty when as they were added
    const QVariant alineacion_[2] = {QVariant::fromValue(Qt::AlignVCenter | Qt::AlignLeft),
                                     QVariant::fromValue(Qt::AlignVCenter | Qt::AlignRight)};
};
