// SPDX-License-Identifier: GPL-3.0-or-later
// A page of the manual: its pictures fit the window, what was looked for is marked.
#pragma once

#include <QTextBrowser>

class PaginaManual : public QTextBrowser
{
    Q_OBJECT

public:
    explicit PaginaManual(QWidget* padre = nullptr);

    /// Marks the words in each page from now on; none for an empty text.
    void marcar(const QString& buscado);
    /// Scrolls to a place of the page's text.
    void irA(int posicion);

protected:
    QVariant loadResource(int tipo, const QUrl& nombre) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    [[nodiscard]] int lugar() const;
    void ponerMarcas();

    QString buscado_;
    QHash<QUrl, int> imagenes_;  ///< the widths of the page's pictures as they are shown
};
