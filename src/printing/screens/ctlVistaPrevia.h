// SPDX-License-Identifier: GPL-3.0-or-later
// Shows the pages of a report one below the other.
#pragma once

#include <QAbstractScrollArea>
#include <QTimer>

#include <memory>

class Informe;

class ctlVistaPrevia : public QAbstractScrollArea
{
    Q_OBJECT

public:
    enum class Ajuste { ninguno, ancho, pagina };

    explicit ctlVistaPrevia(QWidget* padre = nullptr);
    ~ctlVistaPrevia() override;

    /// Shows another report from its first page; the rest is laid out while nothing else is to do.
    void mostrar(std::shared_ptr<Informe> informe);
    /// 1 is the printed size.
    void fijarZoom(double zoom);
    void ajustar(Ajuste ajuste);
    /// From 0.
    void irAPagina(int n);
    [[nodiscard]] int paginaActual() const;
    /// How many are known by now.
    [[nodiscard]] int paginas() const { return paginas_; }

signals:
    void cambioPagina(int actual, int conocidas, bool completas);

protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent* evento) override;
    /// Home and End go to the ends of the report.
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void acomodar();
    void contar();
    void seguir();
    [[nodiscard]] double altoPagina() const;
    [[nodiscard]] double anchoPagina() const;

    std::shared_ptr<Informe> informe_;
    int paginas_ = 0;
    double escala_ = 3;  // pixels a millimetre
    Ajuste ajuste_ = Ajuste::ancho;
    QTimer resto_;  // rings while pages are to be laid out
};
