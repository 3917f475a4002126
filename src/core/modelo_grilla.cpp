#include "core/modelo_grilla.h"

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

void ModeloGrilla::preparar(const QStringList& titulos)
{
    beginResetModel();
    titulos_ = titulos;
    celdas_.clear();
    colores_.clear();
    filas_ = 0;
    endResetModel();
}

void ModeloGrilla::comenzar()
{
    beginResetModel();
    celdas_.clear();
    colores_.clear();
    filas_ = 0;
}

void ModeloGrilla::terminar()
{
    endResetModel();
}

void ModeloGrilla::agregar(const QStringList& celdas)
{
    for (qsizetype i = 0; i < titulos_.size(); ++i)
        celdas_.push_back(i < celdas.size() ? celdas[i] : QString());
    ++filas_;
}

void ModeloGrilla::colorear(int fila, const Colores& colores)
{
    colores_.insert(fila, colores);
}

QString ModeloGrilla::texto(int fila, int columna) const
{
    if (fila < 0 || fila >= filas_ || columna < 0 || columna >= titulos_.size())
        return {};
    return celdas_[size_t(fila) * size_t(titulos_.size()) + size_t(columna)];
}

void ModeloGrilla::ponerTexto(int fila, int columna, const QString& texto)
{
    celdas_[size_t(fila) * size_t(titulos_.size()) + size_t(columna)] = texto;
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
    case Qt::ToolTipRole:
        return texto(indice.row(), indice.column());
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignVCenter | (es_numerico(texto(indice.row(), indice.column())) ? Qt::AlignRight : Qt::AlignLeft));
    case Qt::ForegroundRole:
        if (const auto it = colores_.find(indice.row()); it != colores_.end() && it->texto.isValid())
            return it->texto;
        return {};
    case Qt::BackgroundRole:
        if (const auto it = colores_.find(indice.row()); it != colores_.end() && it->fondo.isValid())
            return it->fondo;
        return {};
    default:
        return {};
    }
}

QVariant ModeloGrilla::headerData(int seccion, Qt::Orientation orientacion, int rol) const
{
    if (orientacion == Qt::Horizontal && rol == Qt::DisplayRole)
        return titulos_.value(seccion);
    return {};
}
