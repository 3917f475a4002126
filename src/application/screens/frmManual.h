// SPDX-License-Identifier: GPL-3.0-or-later
// The manual's window: contents, page, search. It is no form of the main window: it stays usable while a form waits for
// another one, and has nothing to do with the store.
#pragma once

#include <QHash>
#include <QWidget>

#include <memory>

namespace Ui {
class frmManual;
}
class QTreeWidgetItem;
class QUrl;

class frmManual : public QWidget
{
    Q_OBJECT

public:
    frmManual();
    ~frmManual() override;

    /// Opens a page by its name below the manual ("pantallas/frmDJ_editar"); the first one when there is none.
    void ir(const QString& pagina);
    [[nodiscard]] static bool existe(const QString& pagina);
    /// The name of the page that is shown.
    [[nodiscard]] QString actual() const;

private:
    void llenarArbol();
    void conectar();
    void buscar();
    void abrirHallado();
    void seguirEnArbol(const QUrl& fuente);
    [[nodiscard]] const QString& textoDe(const QString& pagina);

    std::unique_ptr<Ui::frmManual> ui;
    QHash<QString, QTreeWidgetItem*> hojas_;  ///< the contents' entries by page
    QStringList paginas_;                     ///< in the order of the contents
    QHash<QString, QString> textos_;          ///< what was read of the pages for a search
};
