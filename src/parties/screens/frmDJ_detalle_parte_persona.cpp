// SPDX-License-Identifier: GPL-3.0-or-later
// Showing a stored party, and what a choice on the screen does to the other controls.

#include "parties/screens/frmDJ_detalle_parte.h"

#include "parties/parte.h"
#include "ui_frmDJ_detalle_parte.h"
#include "widgets/ctlComunes.h"
#include "widgets/enlaces.h"

using namespace Qt::StringLiterals;

namespace {

const QString FISICA = u"Física"_s;

constexpr Enlace<Parte> TEXTOS[] = {
    {"txtRazonSocial", &Parte::razonSocial},
    {"txtDomicilio", &Parte::domicilio},
    {"txtCP", &Parte::codPostal},
    {"txtObs", &Parte::observaciones},
};

void seleccionar_sociedad(QComboBox* combo, QStringView nombre)
{
    for (int i = 0; i < combo->count(); ++i)
        if (nombre_sociedad(combo->itemText(i)) == nombre) {
            combo->setCurrentIndex(i);
            return;
        }
    combo->setCurrentIndex(-1);
}

}  // namespace

void frmDJ_detalle_parte::conectarReacciones()
{
    atender(ui->cboTipoDoc, &QComboBox::activated, &frmDJ_detalle_parte::clicTipoDoc);
    atender(ui->cboTipoSociedad, &QComboBox::activated, &frmDJ_detalle_parte::clicTipoSociedad);
    al_salir(ui->cboTipoSociedad, [this] {
        if (ui->cboTipoSociedad->currentIndex() >= 0)
            clicTipoSociedad();
    });
    tecleoTipoDoc_ = new Tecleo(ui->cboTipoDoc);
    atender(ui->cboCodigoPais, &QComboBox::activated, &frmDJ_detalle_parte::clicPais);
    connect(ui->optExtranjera, &QRadioButton::toggled, ui->cboCodigoPais, &QWidget::setEnabled);
    atender(ui->optExtranjera, &QRadioButton::clicked, [this] {
        if (ui->cboCodigoPais->currentText().contains(FISICA))
            clicPais();
    });
    atender(ui->chkExento, &QCheckBox::clicked, &frmDJ_detalle_parte::clicExento);
    atender(ui->nroDoc, &ctlNumero::salida, &frmDJ_detalle_parte::salirDeNumero);
    atender(ui->cboProv, &QComboBox::activated, &frmDJ_detalle_parte::cargar_localidades);
}

QString frmDJ_detalle_parte::tipoDoc() const
{
    return ui->cboTipoDoc->currentText().toUpper();
}

// The document, the name and what always goes with them.
void frmDJ_detalle_parte::mostrarPersona(const Parte& p)
{
    seleccionar_item(ui->cboTipoSociedad, p.tipoSociedad.value_or(-1));
    seleccionar_item(ui->cboTipoDoc, p.tipoDoc.isEmpty() ? -1 : p.tipoDoc.toInt());
    prepararDocumento();
    ui->chkCUIT_EnTramite->setChecked(p.cuitEnTramite);
    if (tipoDoc() == tipo_documento::PASAPORTE)
        ui->txtPasaporte->setText(p.nroDoc);
    else if (es_cuit_o_cuil(tipoDoc()) && p.cuit)
        ui->nroDoc->setValue(*p.cuit);
    else if (!p.nroDoc.isEmpty())
        ui->nroDoc->setValue(numero_inicial(p.nroDoc));
    mostrar_textos(this, TEXTOS, p);
}

void frmDJ_detalle_parte::mostrarExencion(double porcentaje)
{
    ui->chkExento->setChecked(true);
    ui->nroExencionPorc->Habilitar(true);
    ui->nroExencionPorc->setValue(porcentaje);
}

void frmDJ_detalle_parte::mostrarParte(const Parte& p)
{
    mostrarPersona(p);
    seleccionar_item(ui->cboProv, p.provincia.value_or(-1));
    cargar_localidades();
    seleccionar_item(ui->cboLoc, p.localidad.value_or(-1));
    (p.nacionalidad == u"E" ? ui->optExtranjera : ui->optArgentina)->setChecked(true);
    if (p.nacionalidad == u"E")
        buscar_en_combo(ui->cboCodigoPais, 1, p.codigoPais);
    if (p.porcExento)
        mostrarExencion(*p.porcExento);
}

void frmDJ_detalle_parte::copiarParte(const Parte& p)
{
    ui->nroDoc->ClearText();
    ui->txtPasaporte->clear();
    mostrarPersona(p);
    if (p.provincia) {
        seleccionar_item(ui->cboProv, *p.provincia);
        cargar_localidades();
    }
    if (p.localidad)
        seleccionar_item(ui->cboLoc, *p.localidad);
    if (p.nacionalidad == u"A")
        ui->optArgentina->setChecked(true);
    else if (p.nacionalidad == u"E")
        ui->optExtranjera->setChecked(true);
    if (p.porcExento)
        mostrarExencion(*p.porcExento);
    if (!p.codigoPais.isEmpty())
        buscar_en_combo(ui->cboCodigoPais, 1, p.codigoPais);
    salirDeNumero();
}

void frmDJ_detalle_parte::permitirCuitEnTramite(bool si)
{
    tramitePermitido_ = si;
    habilitarEnTramite();
}

void frmDJ_detalle_parte::mostrarCampoNumero()
{
    const bool pasaporte = tipoDoc() == tipo_documento::PASAPORTE;
    ui->nroDoc->setVisible(!pasaporte);
    ui->txtPasaporte->setVisible(pasaporte);
}

void frmDJ_detalle_parte::habilitarEnTramite()
{
    const bool si = tramitePermitido_ && tipoDoc() == tipo_documento::CUIT;
    ui->chkCUIT_EnTramite->setEnabled(si);
    if (!si)
        ui->chkCUIT_EnTramite->setChecked(false);
}

void frmDJ_detalle_parte::prepararDocumento()
{
    mostrarCampoNumero();
    habilitarEnTramite();
}

void frmDJ_detalle_parte::clicTipoDoc()
{
    prepararDocumento();
    salirDeNumero();
    if (tecleoTipoDoc_->enCurso())
        return;
    (ui->nroDoc->isVisible() ? static_cast<QWidget*>(ui->nroDoc) : ui->txtPasaporte)->setFocus();
}

// Who has a CUIT may be exempt.
void frmDJ_detalle_parte::salirDeNumero()
{
    if (tipoDoc() == tipo_documento::CUIT && cuit_valido(ui->nroDoc->modelo()))
        ui->chkExento->setEnabled(true);
}

// A company always has a CUIT.
void frmDJ_detalle_parte::clicTipoSociedad()
{
    if (ui->cboTipoSociedad->currentText().startsWith(UNIPERSONAL))
        return;
    seleccionar_texto(ui->cboTipoDoc, tipo_documento::CUIT.toString());
    prepararDocumento();
}

void frmDJ_detalle_parte::clicPais()
{
    if (!ui->cboCodigoPais->currentText().contains(FISICA)) {
        ui->cboTipoDoc->setCurrentIndex(-1);
        mostrarCampoNumero();
        seleccionar_sociedad(ui->cboTipoSociedad, u"DESCONOCIDA");
        return;
    }
    seleccionar_texto(ui->cboTipoDoc, tipo_documento::PASAPORTE.toString());
    seleccionar_sociedad(ui->cboTipoSociedad, UNIPERSONAL);
    mostrarCampoNumero();
    ui->chkCUIT_EnTramite->setChecked(false);
    ui->chkCUIT_EnTramite->setEnabled(false);
    ui->txtPasaporte->setFocus();
}

void frmDJ_detalle_parte::clicExento()
{
    const bool si = ui->chkExento->isEnabled() && ui->chkExento->isChecked();
    ui->nroExencionPorc->Habilitar(si);
    if (si)
        ui->nroExencionPorc->setFocus();
    else
        ui->nroExencionPorc->ClearText();
}

void frmDJ_detalle_parte::cargar_localidades()
{
    llenar_combo(ui->cboLoc, localidades(elegido(ui->cboProv)));
}
