// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/frmReportes.h"

#include "core/almacen.h"
#include "core/preferencias.h"
#include "printing/screens/rptRTN_boldep1.h"
#include "printing/screens/rpt_dj.h"
#include "printing/screens/rpt_dj_sin_mov.h"
#include "printing/screens/rpt_recibo.h"
#include "printing/textos_escrituras.h"
#include "ui_frmReportes.h"
#include "widgets/ctlEspera.h"
#include "widgets/mensajes.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>

using namespace Qt::StringLiterals;

namespace {

const QString ZOOM = u"reportes/zoom"_s;
constexpr int ZOOM_ANCHO = 0;
constexpr int ZOOM_PAGINA = 1;
constexpr QLatin1StringView EXTENSION_PDF(".pdf");

}  // namespace

frmReportes::frmReportes() : ui(std::make_unique<Ui::frmReportes>())
{
    ui->setupUi(this);
    connect(ui->tlb, &BarraHerramientas::pulsada, this, [this](const QString& clave) {
        if (clave == u"imprimir")
            imprimir();
        else if (clave == u"pdf")
            pedirPDF();
        else
            descargar();
    });
    ui->tlb->boton(u"imprimir"_s)->setShortcuts({ui->tlb->boton(u"imprimir"_s)->shortcut(), QKeySequence::Print});
    connect(ui->cboZoom, &QComboBox::activated, this, [this](int indice) {
        cambiarZoom(indice);
        recordar(ZOOM, ui->cboZoom->currentText());
    });
    if (const int dejado = ui->cboZoom->findText(preferencia(ZOOM).toString()); dejado >= 0) {
        ui->cboZoom->setCurrentIndex(dejado);
        cambiarZoom(dejado);
    }
    connect(ui->spnPagina, &QSpinBox::editingFinished, this,
            [this] { ui->CRViewer91->irAPagina(ui->spnPagina->value() - 1); });
    connect(ui->cmdAnterior, &QPushButton::clicked, this,
            [this] { ui->CRViewer91->irAPagina(ui->CRViewer91->paginaActual() - 1); });
    connect(ui->cmdSiguiente, &QPushButton::clicked, this,
            [this] { ui->CRViewer91->irAPagina(ui->CRViewer91->paginaActual() + 1); });
    connect(ui->CRViewer91, &ctlVistaPrevia::cambioPagina, this, [this](int actual, int conocidas, bool completas) {
        ui->spnPagina->setMaximum(std::max(1, conocidas));
        if (!ui->spnPagina->hasFocus())
            ui->spnPagina->setValue(actual + 1);
        ui->lblPaginas->setText(u"de "_s + QString::number(conocidas) + (completas ? QString() : u"…"_s));
    });
}

frmReportes::~frmReportes() = default;

void frmReportes::alActivar()
{
    puntero_normal();
}

void frmReportes::alDescargar()
{
    emit cerrado();
}

void frmReportes::keyPressEvent(QKeyEvent* evento)
{
    if (evento->key() == Qt::Key_Escape)
        descargar();
    else
        Formulario::keyPressEvent(evento);
}

void frmReportes::poner(const QString& titulo, const QString& nombre, std::shared_ptr<Informe> informe)
{
    setWindowTitle(titulo);
    nombre_ = nombre;
    informe_ = std::move(informe);
    ui->CRViewer91->mostrar(informe_);
    // The keys that scroll work from the first.
    ui->CRViewer91->setFocus();
    puntero_normal();
}

void frmReportes::BolDep(const QList<BoletaImpresa>& boletas)
{
    puntero_de_espera();
    poner(u"Boleta de depósito"_s, u"boleta-"_s + boletas.constFirst().nro, std::make_shared<rptRTN_boldep1>(boletas));
}

void frmReportes::DJ(const QString& nro, const QString& codigo)
{
    puntero_de_espera();
    const DJImpresa dj = leer_dj_impresa(nro);
    const QString version = u"VEDRA RTN v."_s + QCoreApplication::applicationVersion();
    std::shared_ptr<Informe> informe;
    if (dj.sinMovimientos)
        informe = std::make_shared<rpt_dj_sin_mov>(dj, codigo, version);
    else
        informe = std::make_shared<rpt_dj>(dj, codigo, version);
    poner(u"Declaración Jurada"_s, u"dj-"_s + nro, informe);
}

void frmReportes::recibo(const QString& nro, const QString& dj)
{
    puntero_de_espera();
    const QString titulo = u"Comprobante de retención"_s;
    cargar_tmp_dj_oper(dj);
    std::optional<ReciboImpreso> datos;
    try {
        datos = leer_recibo(nro);
    } catch (const ErrorAlmacen& e) {
        avisar(e.descripcion, titulo, Icono::informacion, e.motor);
    }
    poner(titulo, u"comprobante-"_s + nro, std::make_shared<rpt_recibo>(nro, datos));
}

void frmReportes::cambiarZoom(int indice)
{
    if (indice == ZOOM_ANCHO)
        ui->CRViewer91->ajustar(ctlVistaPrevia::Ajuste::ancho);
    else if (indice == ZOOM_PAGINA)
        ui->CRViewer91->ajustar(ctlVistaPrevia::Ajuste::pagina);
    else
        ui->CRViewer91->fijarZoom(ui->cboZoom->currentText().section(u' ', 0, 0).toDouble() / 100);
}

void frmReportes::imprimir()
{
    QPrinter impresora(QPrinter::HighResolution);
    impresora.setFullPage(true);
    impresora.setDocName(nombre_);
    DialogoPantalla progreso(this);
    const int paginas = contar_paginas(*informe_, avance(progreso, u"Se preparan las páginas"_s));
    progreso.ocultarProgreso();
    if (paginas == 0)
        return;
    impresora.setFromTo(1, paginas);
    QPrintDialog dialogo(&impresora, this);
    dialogo.setMinMax(1, paginas);
    dialogo.setOption(QAbstractPrintDialog::PrintPageRange);
    // Named beforehand on the printer itself, a file would take the place of the user's own printer.
    // Only the toolkit's own dialog has that field, and prints into a file; that of the system needs a printer.
    if (auto* archivo = dialogo.findChild<QLineEdit*>(u"filename"_s))
        archivo->setText(archivoPropuesto());
    else if (impresora.outputFormat() != QPrinter::NativeFormat)
        return avisar(u"No hay ninguna impresora instalada. Use \"Guardar PDF\"."_s, windowTitle(), Icono::informacion);
    if (dialogo.exec() != QDialog::Accepted)
        return;
    const bool rango = impresora.printRange() == QPrinter::PageRange;
    if (!pintar_informe(*informe_, impresora, rango ? impresora.fromPage() - 1 : 0,
                        rango ? impresora.toPage() : paginas, avance(progreso, u"Se imprime"_s)))
        impresora.abort();
}

AvancePaginas frmReportes::avance(DialogoPantalla& dialogo, const QString& que) const
{
    return [&dialogo, que](int hechas, int total) {
        return dialogo.seguir(total > 0 ? u"%1: página %2 de %3"_s.arg(que).arg(hechas).arg(total) : que + u"…"_s,
                              hechas, total);
    };
}

SalidaPDF frmReportes::escribirPDF(const QString& archivo)
{
    DialogoPantalla progreso(this);
    return guardar_pdf(*informe_, archivo, windowTitle(), avance(progreso, u"Se guarda el PDF"_s));
}

bool frmReportes::guardarPDF(const QString& archivo)
{
    return escribirPDF(archivo) == SalidaPDF::escrito;
}

QString frmReportes::archivoPropuesto() const
{
    return QDir(ultima_carpeta(u"pdf"_s)).filePath(nombre_ + EXTENSION_PDF);
}

void frmReportes::pedirPDF()
{
    QFileDialog dialogo(this, u"Guardar como PDF"_s, archivoPropuesto(), u"Archivos PDF (*.pdf)"_s);
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setDefaultSuffix(u"pdf"_s);
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty())
        return;
    QString archivo = dialogo.selectedFiles().constFirst();
    recordar_carpeta(u"pdf"_s, archivo);
    // The dialog takes what follows any point for an extension, and has not asked about this name.
    if (!archivo.endsWith(EXTENSION_PDF, Qt::CaseInsensitive)) {
        archivo += EXTENSION_PDF;
        if (QFile::exists(archivo)
            && !preguntar(u"El archivo %1 ya existe.\n¿Desea reemplazarlo?"_s.arg(QDir::toNativeSeparators(archivo)),
                          windowTitle()))
            return;
    }
    if (escribirPDF(archivo) == SalidaPDF::fallido)
        avisar(u"No se pudo guardar "_s + QDir::toNativeSeparators(archivo), windowTitle(), Icono::exclamacion);
}
