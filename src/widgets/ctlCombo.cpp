// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/ctlCombo.h"

#include "core/almacen.h"
#include "core/funciones_sql.h"
#include "widgets/grilla.h"

#include <QFocusEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr int ANCHO_SUPUESTO = 800;  // twips
constexpr int ANCHO_BOTON = 270;     // twips
constexpr int BORDE = 15;            // twips
constexpr int FILAS_VISIBLES = 8;
constexpr int CLAVE = Qt::UserRole;

// A row compares by the alphabet of the user's language.
class Renglon : public QTreeWidgetItem
{
public:
    using QTreeWidgetItem::QTreeWidgetItem;
    bool operator<(const QTreeWidgetItem& otro) const override
    {
        const int c = treeWidget()->sortColumn();
        return comparar_espanol(text(c), otro.text(c)) < 0;
    }
};

}  // namespace

ctlCombo::ctlCombo(QWidget* padre)
    : QWidget(padre), txt_(new QLineEdit(this)), cmd_(new QToolButton(this)), lvw_(new QTreeWidget(this))
{
    txt_->setObjectName(u"txt"_s);
    cmd_->setObjectName(u"cmd"_s);
    cmd_->setArrowType(Qt::DownArrow);
    cmd_->setFocusPolicy(Qt::NoFocus);
    lvw_->setObjectName(u"lvw"_s);
    lvw_->setRootIsDecorated(false);
    lvw_->setUniformRowHeights(true);
    lvw_->setAllColumnsShowFocus(true);
    lvw_->setColumnCount(0);
    lvw_->header()->setSectionsClickable(true);
    lvw_->header()->setStretchLastSection(true);
    lvw_->hide();
    setFocusProxy(txt_);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    txt_->installEventFilter(this);
    lvw_->installEventFilter(this);

    connect(cmd_, &QToolButton::clicked, this, [this] {
        abierta() ? Cerrarse() : abrir();
        txt_->setFocus();
    });
    connect(lvw_, &QTreeWidget::itemClicked, this, &ctlCombo::elegir);
    connect(lvw_, &QTreeWidget::itemDoubleClicked, this, &ctlCombo::perderFoco);
    connect(lvw_->header(), &QHeaderView::sectionClicked, this, &ctlCombo::ordenar);
}

bool ctlCombo::Enabled() const
{
    return !txt_->isReadOnly();
}

void ctlCombo::Habilitar(bool si)
{
    txt_->setReadOnly(!si);
    cmd_->setEnabled(si);
    pintarFondo();
    emit PropertyChanged(u"Habilitado"_s);
}

void ctlCombo::pintarFondo()
{
    QPalette p = palette();
    p.setColor(QPalette::Base, p.color(QPalette::Active, cmd_->isEnabledTo(this) ? QPalette::Base : QPalette::Button));
    txt_->setPalette(p);
}

void ctlCombo::Locked(bool si)
{
    txt_->setReadOnly(si);
}

void ctlCombo::HideColumnHeaders(bool si)
{
    lvw_->setHeaderHidden(si);
}

void ctlCombo::setColPrincipal(int columna)
{
    principal_ = columna;
    emit PropertyChanged(u"ColPrincipal"_s);
}

void ctlCombo::setColSecundaria(int columna)
{
    secundaria_ = columna;
    emit PropertyChanged(u"ColSecundaria"_s);
}

void ctlCombo::setSeparathor(const QString& texto)
{
    separador_ = texto;
    emit PropertyChanged(u"Separathor"_s);
}

QString ctlCombo::Value() const
{
    return txt_->text();
}

void ctlCombo::clearRows()
{
    ultima_ = nullptr;
    lvw_->clear();
    txt_->clear();
}

void ctlCombo::clearHeaderColumns()
{
    columnas_.clear();
    titular();
    txt_->clear();
}

void ctlCombo::AddColumn(const QString& titulo, int indice, const QString& clave, int ancho, Qt::Alignment alineacion)
{
    columnas_.insert(std::clamp(qsizetype(indice) - 1, qsizetype(0), columnas_.size()),
                     {titulo, clave, ancho < 0 ? ANCHO_SUPUESTO : ancho, alineacion});
    titular();
}

void ctlCombo::ModifyColumn(const QString& titulo, int indice, int ancho)
{
    if (indice < 1 || indice > columnas_.size())
        return;
    Columna& c = columnas_[indice - 1];
    if (!titulo.isEmpty())
        c.titulo = titulo;
    if (ancho > 0)
        c.ancho = ancho;
    titular();
}

void ctlCombo::titular()
{
    QStringList titulos;
    for (const Columna& c : columnas_)
        titulos << c.titulo;
    lvw_->setColumnCount(int(columnas_.size()));
    lvw_->setHeaderLabels(titulos);
    for (int i = 0; i < columnas_.size(); ++i) {
        lvw_->headerItem()->setData(i, CLAVE, columnas_[i].clave);
        lvw_->headerItem()->setTextAlignment(i, columnas_[i].alineacion | Qt::AlignVCenter);
        lvw_->setColumnWidth(i, ancho_columna(lvw_, columnas_[i].ancho));
    }
}

void ctlCombo::Origen(Recordset& rs)
{
    for (; !rs.eof(); rs.siguiente()) {
        const QString clave = u"k"_s + rs.texto(0);
        for (int i = 0; i < lvw_->topLevelItemCount(); ++i)
            if (lvw_->topLevelItem(i)->data(0, CLAVE) == clave)
                throw std::invalid_argument("La clave no es única en la lista");
        QStringList textos;
        for (int j = 1; j < rs.columnas(); ++j)
            textos << rs.texto(j);
        auto* fila = new Renglon(lvw_, textos);
        fila->setData(0, CLAVE, clave);
        fila->setSizeHint(0, {0, fontMetrics().height() + 6});
        for (int i = 0; i < columnas_.size(); ++i)
            fila->setTextAlignment(i, columnas_[i].alineacion | Qt::AlignVCenter);
    }
}

void ctlCombo::SeleccionarItem(QString& clave, bool completa)
{
    if (!completa)
        clave.prepend(u'k');
    for (int i = 0; i < lvw_->topLevelItemCount(); ++i) {
        QTreeWidgetItem* fila = lvw_->topLevelItem(i);
        if (fila->data(0, CLAVE).toString() != clave)
            continue;
        lvw_->setCurrentItem(fila);
        escribir(fila);
        return;
    }
}

// The text box takes the row by its columns; from now on each closing tells the form.
void ctlCombo::escribir(QTreeWidgetItem* fila)
{
    QString texto = fila->text(principal_ - 1);
    if (secundaria_ >= 0 && secundaria_ <= columnas_.size())
        texto += separador_ + fila->text(secundaria_ - 1);
    txt_->setText(texto);
    txt_->setCursorPosition(0);
    elegido_ = true;
    ultima_ = fila;
}

void ctlCombo::elegir()
{
    if (!permiteElegir_ || !lvw_->currentItem())
        return;
    escribir(lvw_->currentItem());
    pendiente_ = true;
}

ctlCombo::Fila ctlCombo::fila_de(const QTreeWidgetItem* fila) const
{
    Fila f{lvw_->indexOfTopLevelItem(const_cast<QTreeWidgetItem*>(fila)) + 1,
           fila->data(0, CLAVE).toString(),
           fila->text(0),
           {}};
    for (int i = 1; i < fila->columnCount(); ++i)
        f.subitems << fila->text(i);
    return f;
}

QList<ctlCombo::Fila> ctlCombo::lista() const
{
    QList<Fila> filas;
    for (int i = 0; i < lvw_->topLevelItemCount(); ++i)
        filas << fila_de(lvw_->topLevelItem(i));
    return filas;
}

bool ctlCombo::abierta() const
{
    return !lvw_->isHidden();
}

void ctlCombo::ordenar(int columna)
{
    orden_ = orden_ == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    lvw_->header()->setSortIndicatorShown(true);
    lvw_->header()->setSortIndicator(columna, orden_);
    lvw_->sortItems(columna, orden_);
}

int ctlCombo::alturaCerrada() const
{
    return txt_->sizeHint().height();
}

QSize ctlCombo::sizeHint() const
{
    return {txt_->sizeHint().width() + pixeles(this, ANCHO_BOTON), alturaCerrada() + pixeles(this, BORDE)};
}

QSize ctlCombo::minimumSizeHint() const
{
    return {txt_->minimumSizeHint().width(), sizeHint().height()};
}

void ctlCombo::abrir()
{
    const int filas = std::clamp(lvw_->topLevelItemCount(), 3, FILAS_VISIBLES);
    const int alto = lvw_->header()->sizeHint().height()
                     + filas * std::max(lvw_->sizeHintForRow(0), fontMetrics().height() + 4) + 2 * lvw_->frameWidth();
    lvw_->resize(lvw_->width(), alto);
    lvw_->show();
    ajustarAltura();
}

void ctlCombo::Cerrarse()
{
    // With the focus in it the list loses it, and that is told; so is a click that was not told yet.
    if (lvw_->hasFocus() || pendiente_)
        perderFoco();
    lvw_->hide();
    ajustarAltura();
}

// Open, the control is as high as its list reaches, and lies over its neighbours.
void ctlCombo::ajustarAltura()
{
    if (abierta()) {
        raise();
        resize(width(), lvw_->y() + lvw_->height());
    } else {
        resize(width(), alturaCerrada() + pixeles(this, BORDE));
    }
}

void ctlCombo::acomodar()
{
    const int alto = alturaCerrada();
    const int borde = pixeles(this, BORDE);
    const int boton = pixeles(this, ANCHO_BOTON);
    txt_->setGeometry(0, 0, width(), alto);
    cmd_->setGeometry(width() - boton, borde, boton - borde, alto - 2 * borde);
    cmd_->raise();
    txt_->setTextMargins(0, 0, boton, 0);
    lvw_->setGeometry(0, alto, width() + borde, lvw_->height());
}

void ctlCombo::resizeEvent(QResizeEvent* evento)
{
    QWidget::resizeEvent(evento);
    if (width() > 0)
        acomodar();
    // A layout that runs while the list is open gives the control its closed height back.
    const int alto = abierta() ? lvw_->y() + lvw_->height() : alturaCerrada();
    if (height() < alto)
        resize(width(), alto);
}

// The list lost the focus: it closes, and tells the form when something has ever been selected,
// also when nothing new was: deliberate, the form looks at what it gets.
void ctlCombo::perderFoco()
{
    if (!abierta())
        return;
    pendiente_ = false;
    lvw_->hide();
    resize(width(), alturaCerrada());
    txt_->setFocus();
    if (permiteElegir_ && elegido_ && lvw_->currentItem())
        emit ItemClick(fila_de(lvw_->currentItem()));
}

bool ctlCombo::teclaEnLista(int tecla)
{
    if (tecla != Qt::Key_Return && tecla != Qt::Key_Enter)
        return false;
    elegir();
    txt_->setFocus();
    return true;
}

bool ctlCombo::eventFilter(QObject* objeto, QEvent* evento)
{
    if (evento->type() == QEvent::FocusOut) {
        const auto motivo = static_cast<QFocusEvent*>(evento)->reason();
        if (motivo == Qt::ActiveWindowFocusReason || motivo == Qt::PopupFocusReason)
            return false;
        if (objeto == lvw_)
            perderFoco();
        else if (!lvw_->hasFocus())
            Cerrarse();
    } else if (evento->type() == QEvent::KeyRelease && static_cast<QKeyEvent*>(evento)->key() == Qt::Key_Escape) {
        escapar();
        return true;
    } else if (evento->type() == QEvent::KeyPress && objeto == lvw_) {
        return teclaEnLista(static_cast<QKeyEvent*>(evento)->key());
    }
    return false;
}

// Down and F4 open the list and go into it, as in any drop-down box.
void ctlCombo::keyPressEvent(QKeyEvent* evento)
{
    if ((evento->key() != Qt::Key_Down && evento->key() != Qt::Key_F4) || !cmd_->isEnabled() || !txt_->hasFocus()) {
        QWidget::keyPressEvent(evento);
        return;
    }
    if (!abierta())
        abrir();
    if (!lvw_->currentItem())
        lvw_->setCurrentItem(lvw_->topLevelItem(0));
    lvw_->setFocus();
}

// What was only moved to in the list is not chosen.
void ctlCombo::escapar()
{
    if (ultima_)
        lvw_->setCurrentItem(ultima_);
    Cerrarse();
}

void ctlCombo::changeEvent(QEvent* evento)
{
    QWidget::changeEvent(evento);
    if (evento->type() == QEvent::PaletteChange)
        pintarFondo();
}
