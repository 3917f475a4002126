// SPDX-License-Identifier: GPL-3.0-or-later
// The window of every printed document: slip, DJ and receipt. It shows, prints and saves as PDF the
// same pages.
#pragma once

#include "printing/screens/rptSalida.h"
#include "widgets/formulario.h"

#include <memory>

namespace Ui {
class frmReportes;
}
class Informe;

class frmReportes : public Formulario
{
    Q_OBJECT

public:
    frmReportes();
    ~frmReportes() override;

    void alActivar() override;

    /// The deposit slips of one number, a page each; there is at least one.
    void BolDep(const QList<struct BoletaImpresa>& boletas);
    /// The printed DJ with its integrity code.
    void DJ(const QString& nro, const QString& codigo);
    /// The withholding receipt; an annulled one gives a page that says so.
    void recibo(const QString& nro, const QString& dj);
    /// Any other report: caption of the window, name proposed for its file.
    void poner(const QString& titulo, const QString& nombre, std::shared_ptr<Informe> informe);

    /// Writes all pages as a PDF; false when the file can't be written.
    [[nodiscard]] bool guardarPDF(const QString& archivo);

signals:
    /// The window closed.
    void cerrado();

protected:
    void alDescargar() override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void imprimir();
    void pedirPDF();
    [[nodiscard]] AvancePaginas avance(class DialogoPantalla& dialogo, const QString& que) const;
    [[nodiscard]] SalidaPDF escribirPDF(const QString& archivo);
    [[nodiscard]] QString archivoPropuesto() const;
    void cambiarZoom(int indice);

    std::unique_ptr<Ui::frmReportes> ui;
    std::shared_ptr<Informe> informe_;
    QString nombre_;  // proposed for the file: kind and number
};
