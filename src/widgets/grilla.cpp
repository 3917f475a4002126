// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/grilla.h"

#include "widgets/pintor_celda.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

Grilla::Grilla(QWidget* padre) : QTableView(padre)
{
    setModel(&modelo_);
    setItemDelegate(new PintorCelda(this));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setAlternatingRowColors(true);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    horizontalHeader()->setSortIndicatorClearable(true);
    setOrdenable(true);
    connect(this, &QTableView::doubleClicked, this, [this] { emit elegida(); });
    connect(horizontalHeader(), &QHeaderView::sortIndicatorChanged, this, &Grilla::titularOrdenada);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int columna, int, int ancho) {
        if (acomodando_)
            return;
        if (QApplication::mouseButtons() & Qt::LeftButton)
            arrastrada_ = true;
        if (ancho == 0) {
            // A column that is being hidden is so only when this is over.
            QMetaObject::invokeMethod(this, &Grilla::acomodar, Qt::QueuedConnection);
            return;
        }
        if (columna < propios_.size())
            propios_[columna] = ancho;
        if (columna != elastica_)
            acomodar();
    });
}

void Grilla::setOrdenable(bool si)
{
    setSortingEnabled(si);
    horizontalHeader()->setSortIndicatorShown(false);
}

namespace {

// The widths of the columns were drawn for a font whose digits are this wide.
constexpr double DIGITO_ORIGINAL = 6.0;

}  // namespace

int pixeles(const QWidget* w, int twips)
{
    return twips * w->logicalDpiX() / 1440;
}

int ancho_columna(const QWidget* w, int twips)
{
    const double escala = std::max(1.0, w->fontMetrics().horizontalAdvance(u'0') / DIGITO_ORIGINAL);
    return int(pixeles(w, twips) * escala);
}

void preparar_grilla(Grilla* grilla, const QStringList& titulos, const QList<int>& anchos, int elastica)
{
    grilla->preparar(titulos, anchos, elastica);
}

void Grilla::preparar(const QStringList& titulos, const QList<int>& anchos, int elastica)
{
    const QScopedValueRollback acomodando(acomodando_, true);
    modelo_.preparar(titulos);
    for (int i = 0; i < titulos.size(); ++i) {
        setColumnHidden(i, anchos.value(i) == 0);
        if (anchos.value(i) > 0)
            setColumnWidth(i, std::max(ancho_columna(this, anchos[i]), horizontalHeader()->sectionSizeHint(i)));
    }
    const auto mayor = std::max_element(anchos.begin(), anchos.begin() + std::min(anchos.size(), titulos.size()));
    elastica_ = elastica >= 0 ? elastica : int(mayor - anchos.begin());
    propios_.resize(titulos.size());
    for (int i = 0; i < titulos.size(); ++i)
        propios_[i] = columnWidth(i);
}

// The elastic column takes what the others leave. Where that is too little it gives up to half of its width, and then
// the others give up what their titles don't need.
void Grilla::acomodar()
{
    if (elastica_ < 0 || horizontalHeader()->sectionResizeMode(elastica_) != QHeaderView::Interactive)
        return;
    const int minimo = std::max(propios_[elastica_] / 2, horizontalHeader()->sectionSizeHint(elastica_));
    const auto holgura = [this](int i) { return std::max(0, propios_[i] - horizontalHeader()->sectionSizeHint(i)); };
    int otras = 0;
    int ceden = 0;
    for (int i = 0; i < propios_.size(); ++i)
        if (i != elastica_ && !isColumnHidden(i)) {
            otras += propios_[i];
            ceden += holgura(i);
        }
    const int falta = std::clamp(otras + minimo - viewport()->width(), 0, ceden);
    const QScopedValueRollback acomodando(acomodando_, true);
    for (int i = 0; i < propios_.size(); ++i)
        if (i != elastica_ && !isColumnHidden(i)) {
            const int cede = ceden > 0 ? (falta * holgura(i) + ceden - 1) / ceden : 0;
            otras -= cede;
            setColumnWidth(i, propios_[i] - cede);
        }
    setColumnWidth(elastica_, std::max(viewport()->width() - otras, minimo));
    // Else the bar below goes away only after it was seen.
    updateGeometries();
}

void Grilla::resizeEvent(QResizeEvent* evento)
{
    QTableView::resizeEvent(evento);
    acomodar();
}

// The title of the column that sorts has an arrow, which wants room.
void Grilla::titularOrdenada(int columna)
{
    horizontalHeader()->setSortIndicatorShown(columna >= 0);
    if (columna >= 0 && columnWidth(columna) < horizontalHeader()->sectionSizeHint(columna))
        setColumnWidth(columna, horizontalHeader()->sectionSizeHint(columna));
}

int Grilla::primeraVisible() const
{
    for (int i = 0; i < modelo_.columnCount(); ++i)
        if (!isColumnHidden(i))
            return i;
    return 0;
}

void Grilla::llenar(const std::function<void()>& rellenar)
{
    const QString anterior = clave();
    const int lugar = std::max(filaActual(), 0);
    const int columna = std::max(currentIndex().column(), 0);
    const int desplazamiento = verticalScrollBar()->value();
    struct Cierre
    {
        Grilla& g;
        const QString& anterior;
        int lugar;
        int columna;
        int desplazamiento;
        ~Cierre()
        {
            g.modelo_.terminar();
            const int hallada = anterior.isEmpty() ? 0 : g.modelo_.filaCon(g.columnaClave_, anterior);
            // The row is gone: the one that took its place.
            const int fila = hallada >= 0 ? hallada : std::min(lugar, g.filas() - 1);
            g.verticalScrollBar()->setValue(desplazamiento);
            g.irAFila(fila, columna);
        }
    };
    modelo_.comenzar();
    const Cierre cierre{*this, anterior, lugar, columna, desplazamiento};
    rellenar();
}

void Grilla::vaciar()
{
    modelo_.comenzar();
    modelo_.terminar();
}

void Grilla::irAFila(int fila, int columna)
{
    if (fila < 0 || fila >= filas())
        return;
    const int destino = columna < 0 ? currentIndex().column() : columna;
    const bool sirve = destino >= 0 && destino < modelo_.columnCount() && !isColumnHidden(destino);
    setCurrentIndex(modelo_.index(fila, sirve ? destino : primeraVisible()));
}

int Grilla::columnaVecina(int columna, int paso) const
{
    for (columna += paso; columna >= 0 && columna < modelo_.columnCount(); columna += paso)
        if (!isColumnHidden(columna))
            return columna;
    return -1;
}

void Grilla::keyPressEvent(QKeyEvent* evento)
{
    if (evento->matches(QKeySequence::Copy)) {
        copiar();
        return;
    }
    if ((evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) && filaActual() >= 0) {
        emit elegida();
        return;
    }
    if (evento->modifiers() == Qt::NoModifier && pulsarBarra(evento->key()))
        return;
    QTableView::keyPressEvent(evento);
}
