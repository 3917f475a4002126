// SPDX-License-Identifier: GPL-3.0-or-later
// What a user takes out of a grid, and how he left its columns.

#include "core/motivos.h"
#include "core/planilla.h"
#include "core/preferencias.h"
#include "widgets/barra.h"
#include "widgets/formulario.h"
#include "widgets/grilla.h"
#include "widgets/guardia.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QMenu>
#include <QSaveFile>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace {

const QString ODS = u"Planilla de cálculo (*.ods)"_s;
const QString CSV = u"Texto separado (*.csv)"_s;

}  // namespace

QStringList Grilla::celdasVisibles(int fila) const
{
    QStringList celdas;
    for (int c = 0; c < modelo_.columnCount(); ++c)
        if (!isColumnHidden(c))
            celdas << (fila < 0 ? modelo_.titulos()[c] : celda(fila, c));
    return celdas;
}

// The titles and the selected rows as lines of cells parted by tabs.
void Grilla::copiar() const
{
    QModelIndexList elegidas = selectionModel()->selectedRows(primeraVisible());
    if (elegidas.isEmpty())
        return;
    std::sort(elegidas.begin(), elegidas.end());
    QStringList lineas = {celdasVisibles(-1).join(u'\t')};
    for (const QModelIndex& fila : std::as_const(elegidas))
        lineas << celdasVisibles(fila.row()).join(u'\t');
    QApplication::clipboard()->setText(lineas.join(u'\n'));
}

bool Grilla::pulsarBarra(int tecla)
{
    static const QHash<int, QStringList> BOTONES{
        {Qt::Key_Insert, {u"agregar"_s, u"alta"_s, u"nuevo"_s, u"generar"_s}},
        {Qt::Key_Delete, {u"borrar"_s, u"quitar"_s}},
    };
    if (!barra_ || !BOTONES.contains(tecla))
        return false;
    barra_->pulsarPrimera(BOTONES[tecla]);
    return true;
}

// As by a click on the title: up, down, as the rows were read.
void Grilla::ordenarPorActual()
{
    QHeaderView* titulos = horizontalHeader();
    const int columna = currentIndex().column();
    const bool ya = titulos->sortIndicatorSection() == columna;
    const bool baja = ya && titulos->sortIndicatorOrder() == Qt::DescendingOrder;
    titulos->setSortIndicator(baja ? -1 : columna, ya && !baja ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void Grilla::contextMenuEvent(QContextMenuEvent* evento)
{
    QMenu menu(this);
    if (barra_) {
        menu.addActions(barra_->actions());
        menu.addSeparator();
    }
    if (isSortingEnabled() && currentIndex().isValid())
        menu.addAction(u"O&rdenar por «%1»"_s.arg(modelo_.titulos()[currentIndex().column()]), this,
                       &Grilla::ordenarPorActual);
    QAction* copia = menu.addAction(u"C&opiar"_s, this, &Grilla::copiar);
    copia->setShortcut(QKeySequence::Copy);
    copia->setEnabled(selectionModel()->hasSelection());
    if (planilla_) {
        QAction* guardar = menu.addAction(u"&Guardar como planilla..."_s, this,
                                          [this] { con_guardia(this, [this] { guardarPlanilla(); }); });
        guardar->setObjectName(u"guardarPlanilla"_s);
        guardar->setEnabled(filas() > 0);
    }
    menu.exec(evento->globalPos());
}

void Grilla::guardarPlanilla()
{
    const QString nombre = planilla_();
    QFileDialog dialogo(this, u"Guardar como planilla"_s,
                        QDir(ultima_carpeta(u"planilla"_s)).filePath(nombre + u".ods"_s), ODS + u";;"_s + CSV);
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setDefaultSuffix(u"ods"_s);
    connect(&dialogo, &QFileDialog::filterSelected, &dialogo,
            [&dialogo](const QString& filtro) { dialogo.setDefaultSuffix(filtro == CSV ? u"csv"_s : u"ods"_s); });
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty())
        return;
    const QString archivo = dialogo.selectedFiles().constFirst();
    recordar_carpeta(u"planilla"_s, archivo);
    Planilla planilla{nombre, celdasVisibles(-1), {}};
    for (int fila = 0; fila < filas(); ++fila)
        planilla.filas << celdasVisibles(fila);
    const bool texto = archivo.endsWith(u".csv"_s, Qt::CaseInsensitive);
    const QByteArray bytes = texto ? planilla_csv(planilla) : planilla_ods(planilla);
    QSaveFile salida(archivo);
    if (!salida.open(QIODevice::WriteOnly) || salida.write(bytes) != bytes.size() || !salida.commit())
        throw ErrorTarea(u"No se pudo guardar "_s + QDir::toNativeSeparators(archivo), salida.errorString());
}

// Of which form, and which of its grids: the widths that its columns had under that key.
QString Grilla::claveAnchos() const
{
    for (const QWidget* w = parentWidget(); w; w = w->parentWidget())
        if (qobject_cast<const Formulario*>(w))
            return u"columnas/%1.%2"_s.arg(QLatin1String(w->metaObject()->className()), objectName());
    return {};
}

void Grilla::showEvent(QShowEvent* evento)
{
    QTableView::showEvent(evento);
    if (!std::exchange(recuperada_, true))
        recuperarAnchos();
}

void Grilla::hideEvent(QHideEvent* evento)
{
    QTableView::hideEvent(evento);
    if (arrastrada_)
        guardarAnchos();
}

// Widths in hundredths of a digit, so that they hold for a larger font too.
void Grilla::recuperarAnchos()
{
    const QVariantList anchos = preferencia(claveAnchos()).toList();
    if (anchos.size() != modelo_.columnCount())
        return;
    for (int i = 0; i < int(anchos.size()); ++i)
        if (!isColumnHidden(i) && anchos[i].toInt() > 0)
            propios_[i] = anchos[i].toInt() * fontMetrics().horizontalAdvance(u'0') / 100;
    acomodar();
}

void Grilla::guardarAnchos()
{
    arrastrada_ = false;
    QVariantList anchos;
    for (int i = 0; i < modelo_.columnCount(); ++i)
        anchos << propios_[i] * 100 / fontMetrics().horizontalAdvance(u'0');
    recordar(claveAnchos(), anchos);
}
