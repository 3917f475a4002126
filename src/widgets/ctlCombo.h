// SPDX-License-Identifier: GPL-3.0-or-later
// A drop-down box whose list has several columns and headers, filled from the rows of a query.
#pragma once

#include <QStringList>
#include <QWidget>

class QLineEdit;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;
class Recordset;

class ctlCombo : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int ColPrincipal READ ColPrincipal WRITE setColPrincipal)
    Q_PROPERTY(int ColSecundaria READ ColSecundaria WRITE setColSecundaria)
    Q_PROPERTY(QString Separathor READ Separathor WRITE setSeparathor)
    Q_PROPERTY(bool Habilitado READ Enabled WRITE Habilitar)

public:
    /// One row of the list. Its key is "k" and the value of the query's first column.
    struct Fila
    {
        int indice = 0;  ///< from 1, in the order in which the list stands
        QString clave;
        QString texto;
        QStringList subitems;
    };

    explicit ctlCombo(QWidget* padre = nullptr);

    /// Whether the text box takes typing; `Locked` changes that alone.
    [[nodiscard]] bool Enabled() const;
    /// The text box, its colour and the button.
    void Habilitar(bool si);
    void Locked(bool si);
    void HideColumnHeaders(bool si);
    /// Whether clicks and Enter in the list select at all.
    void AllowSelect(bool si) { permiteElegir_ = si; }

    /// Columns from 1; a negative secondary one is none.
    [[nodiscard]] int ColPrincipal() const { return principal_; }
    void setColPrincipal(int columna);
    [[nodiscard]] int ColSecundaria() const { return secundaria_; }
    void setColSecundaria(int columna);
    /// Stands between both columns in the text box; spelled so.
    [[nodiscard]] QString Separathor() const { return separador_; }
    void setSeparathor(const QString& texto);

    /// The text box as shown.
    [[nodiscard]] QString Value() const;
    /// Removes all rows and empties the text box; the columns stay.
    void clearRows();
    /// Removes all columns and empties the text box; the rows stay.
    void clearHeaderColumns();
    /// Adds a column at a place from 1; the width in twips, 800 for a negative one.
    void AddColumn(const QString& titulo, int indice, const QString& clave, int ancho,
                   Qt::Alignment alineacion = Qt::AlignLeft);
    /// An empty caption and a width of 0 or less leave what the column has.
    void ModifyColumn(const QString& titulo, int indice, int ancho);
    /// Appends the rows of a query of the form key, text, further columns. Throws std::invalid_argument
    /// for a key that a row already has.
    void Origen(Recordset& rs);
    /// Selects the row of a key, which gets its "k" here unless it is complete. A key that is not
    /// there changes nothing. The form is not told.
    void SeleccionarItem(QString& clave, bool completa);
    /// Closes the list. The form is told when the list had the focus, or a click of it was not told yet.
    void Cerrarse();

    [[nodiscard]] QList<Fila> lista() const;
    [[nodiscard]] bool abierta() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    /// The list closed with something selected in it, now or ever before.
    void ItemClick(const ctlCombo::Fila& fila);
    /// A stored property changed, under its name.
    void PropertyChanged(const QString& nombre);

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void changeEvent(QEvent* evento) override;

private:
    struct Columna
    {
        QString titulo;
        QString clave;
        int ancho;
        Qt::Alignment alineacion;
    };

    void abrir();
    void acomodar();
    void ajustarAltura();
    void perderFoco();
    void escribir(QTreeWidgetItem* fila);
    void elegir();
    void escapar();
    void ordenar(int columna);
    void titular();
    bool teclaEnLista(int tecla);
    void pintarFondo();
    [[nodiscard]] int alturaCerrada() const;
    [[nodiscard]] Fila fila_de(const QTreeWidgetItem* fila) const;

    QLineEdit* txt_;
    QToolButton* cmd_;
    QTreeWidget* lvw_;
    QList<Columna> columnas_;
    int principal_ = 1;
    int secundaria_ = -1;
    QString separador_;
    bool permiteElegir_ = true;
    bool elegido_ = false;
    bool pendiente_ = false;             ///< a click in the list was not told yet
    QTreeWidgetItem* ultima_ = nullptr;  ///< the row that the text box shows
    Qt::SortOrder orden_ = Qt::AscendingOrder;
};
