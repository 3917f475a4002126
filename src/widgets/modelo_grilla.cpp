// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/modelo_grilla.h"

#include "core/celdas.h"

#include <algorithm>

void ModeloGrilla::vaciar()
{
    textos_.clear();
    finales_.clear();
    cambiadas_.clear();
    tonos_.clear();
    orden_.clear();
    filas_ = 0;
}

void ModeloGrilla::preparar(const QStringList& titulos)
{
    beginResetModel();
    titulos_ = titulos;
    ordenada_ = -1;
    vaciar();
    endResetModel();
}

void ModeloGrilla::comenzar()
{
    beginResetModel();
    vaciar();
}

void ModeloGrilla::terminar()
{
    ordenar();
    endResetModel();
}

// Where the rows stand that were added in this order.
void ModeloGrilla::ordenar()
{
    orden_.clear();
    if (ordenada_ < 0)
        return;
    QStringList celdas;
    for (int fila = 0; fila < filas_; ++fila)
        celdas << texto(fila, ordenada_);
    std::vector<int> orden = orden_de_celdas(celdas);
    if (sentido_ == Qt::DescendingOrder)
        std::reverse(orden.begin(), orden.end());
    orden_ = std::move(orden);
}

void ModeloGrilla::sort(int columna, Qt::SortOrder sentido)
{
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList antes = persistentIndexList();
    std::vector<int> leidas;
    for (const QModelIndex& i : antes)
        leidas.push_back(filaLeida(i.row()));
    ordenada_ = columna;
    sentido_ = sentido;
    ordenar();
    std::vector<int> lugares(size_t(filas_), 0);
    for (int fila = 0; fila < filas_; ++fila)
        lugares[size_t(filaLeida(fila))] = fila;
    QModelIndexList despues;
    for (qsizetype n = 0; n < antes.size(); ++n)
        despues << index(lugares[size_t(leidas[size_t(n)])], antes[n].column());
    changePersistentIndexList(antes, despues);
    emit layoutChanged({}, VerticalSortHint);
}

int ModeloGrilla::filaLeida(int fila) const
{
    return fila >= 0 && size_t(fila) < orden_.size() ? orden_[size_t(fila)] : fila;
}

quint32 ModeloGrilla::lugar(int fila, int columna) const
{
    return quint32(filaLeida(fila)) * quint32(titulos_.size()) + quint32(columna);
}

void ModeloGrilla::agregarCelda(std::string_view utf8)
{
    textos_.append(utf8);
    finales_.push_back(quint32(textos_.size()));
}

void ModeloGrilla::agregar(const QStringList& celdas)
{
    for (qsizetype i = 0; i < titulos_.size(); ++i)
        agregarCelda(celdas.value(i).toUtf8().toStdString());
    ++filas_;
}

void ModeloGrilla::agregar(std::span<const std::string_view> celdas)
{
    for (size_t i = 0; i < size_t(titulos_.size()); ++i)
        agregarCelda(i < celdas.size() ? celdas[i] : std::string_view());
    ++filas_;
}

void ModeloGrilla::colorear(int fila, Tono tono)
{
    tonos_.insert(filaLeida(fila), tono);
}

std::string_view ModeloGrilla::celda(quint32 cual) const
{
    const quint32 desde = cual == 0 ? 0 : finales_[cual - 1];
    return {textos_.data() + desde, finales_[cual] - desde};
}

int ModeloGrilla::filaCon(int columna, const QString& texto) const
{
    const std::string buscado = texto.toStdString();
    for (int fila = 0; fila < filas_; ++fila)
        if (celda(lugar(fila, columna)) == buscado)
            return fila;
    return -1;
}

QString ModeloGrilla::texto(int fila, int columna) const
{
    if (fila < 0 || fila >= filas_ || columna < 0 || columna >= titulos_.size())
        return {};
    const quint32 cual = lugar(fila, columna);
    if (const auto it = cambiadas_.find(cual); it != cambiadas_.end())
        return *it;
    const std::string_view utf8 = celda(cual);
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

void ModeloGrilla::ponerTexto(int fila, int columna, const QString& texto)
{
    cambiadas_[lugar(fila, columna)] = texto;
    emit dataChanged(index(fila, columna), index(fila, columna));
}

int ModeloGrilla::rowCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : filas_;
}

int ModeloGrilla::columnCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : int(titulos_.size());
}

QVariant ModeloGrilla::data(const QModelIndex& indice, int rol) const
{
    switch (rol) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole: return texto(indice.row(), indice.column());
    case Qt::TextAlignmentRole: return alineacion_[parece_numero(texto(indice.row(), indice.column()))];
    case Qt::ForegroundRole:
    case Qt::BackgroundRole:
        if (const auto it = tonos_.find(filaLeida(indice.row())); it != tonos_.end()) {
            const Colores& c = colores_de(*it, QGuiApplication::palette());
            const QColor& color = rol == Qt::ForegroundRole ? c.texto : c.fondo;
            return color.isValid() ? QVariant(color) : QVariant();
        }
        return {};
    default: return {};
    }
}

QVariant ModeloGrilla::headerData(int seccion, Qt::Orientation orientacion, int rol) const
{
    if (orientacion == Qt::Horizontal && rol == Qt::DisplayRole)
        return titulos_.value(seccion);
    return {};
}
