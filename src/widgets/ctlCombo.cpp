// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/ctlCombo.h"

#include "core/almacen.h"
#include "core/funciones_sql.h"
#include "widgets/colores.h"
#include "widgets/ctlComunes.h"
#include "widgets/grilla.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QToolButton>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr int ANCHO_SUPUESTO = 800;  // twips
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
    nombrar_por(this, txt_);
    nombrar_por(this, lvw_);
    cmd_->setAccessibleName(u"Abrir la lista"_s);

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
    pintar_fondo(txt_, cmd_->isEnabledTo(this));
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
