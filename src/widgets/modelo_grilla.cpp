// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/modelo_grilla.h"

namespace {

// Amounts and numbers stand at the right of their column.
bool es_numerico(const QString& texto)
{
    if (texto.isEmpty() || texto.size() > 15)
        return false;
    for (const QChar c : texto)
        if (!c.isDigit() && c != u'.' && c != u',' && c != u'-')
            return false;
    return true;
}

}  // namespace

void ModeloGrilla::vaciar()
{
    textos_.clear();
    finales_.clear();
    cambiadas_.clear();
    colores_.clear();
    filas_ = 0;
}

void ModeloGrilla::preparar(const QStringList& titulos)
{
    beginResetModel();
    titulos_ = titulos;
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
    endResetModel();
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

void ModeloGrilla::colorear(int fila, const Colores& colores)
{
    colores_.insert(fila, colores);
}

std::string_view ModeloGrilla::celda(quint32 lugar) const
{
    const quint32 desde = lugar == 0 ? 0 : finales_[lugar - 1];
    return {textos_.data() + desde, finales_[lugar] - desde};
}

int ModeloGrilla::filaCon(int columna, const QString& texto) const
{
    const std::string buscado = texto.toStdString();
    for (int fila = 0; fila < filas_; ++fila)
        if (celda(quint32(fila) * quint32(titulos_.size()) + quint32(columna)) == buscado)
            return fila;
    return -1;
}

QString ModeloGrilla::texto(int fila, int columna) const
{
    if (fila < 0 || fila >= filas_ || columna < 0 || columna >= titulos_.size())
        return {};
    const auto lugar = quint32(fila) * quint32(titulos_.size()) + quint32(columna);
    if (const auto it = cambiadas_.find(lugar); it != cambiadas_.end())
        return *it;
    const std::string_view utf8 = celda(lugar);
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

void ModeloGrilla::ponerTexto(int fila, int columna, const QString& texto)
{
    cambiadas_[quint32(fila) * quint32(titulos_.size()) + quint32(columna)] = texto;
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
    case Qt::TextAlignmentRole: return alineacion_[es_numerico(texto(indice.row(), indice.column()))];
    case Qt::ForegroundRole:
        if (const auto it = colores_.find(indice.row()); it != colores_.end() && it->texto.isValid())
            return it->texto;
        return {};
    case Qt::BackgroundRole:
        if (const auto it = colores_.find(indice.row()); it != colores_.end() && it->fondo.isValid())
            return it->fondo;
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
