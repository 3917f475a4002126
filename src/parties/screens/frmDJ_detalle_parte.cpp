// SPDX-License-Identifier: GPL-3.0-or-later

#include "parties/screens/frmDJ_detalle_parte.h"

#include "widgets/ctlComunes.h"
#include "widgets/mensajes.h"
#include "core/modGlobales.h"
#include "tree/modABM_dj.h"
#include "parties/parte.h"
#include "ui_frmDJ_detalle_parte.h"

#include <QListView>

using namespace Qt::StringLiterals;

namespace {

const QString CUIT = u"CUIT"_s;
const QString PASAPORTE = u"PASAPORTE"_s;
const QString UNIPERSONAL = u"UNIPERSONAL"_s;
const QString FISICA = u"Física"_s;

// Each entry carries the first digit that its companies' CUITs bear.
Entradas tipos_sociedad()
{
    Entradas lista;
    for (Recordset rs(cnRtn, u"select GTSO_ID, GTSO_DESCRIPCION, GTSO_CUIT_DIGITO_1  from GLB_TB_TIPOS_SOCIEDAD "
                             u" order by GTSO_DESCRIPCION collate ESPANOL"_s);
         !rs.eof(); rs.siguiente())
        lista.push_back(
            {rs.texto("GTSO_DESCRIPCION").leftJustified(POSICION_DIGITO_CUIT) + rs.texto("GTSO_CUIT_DIGITO_1"),
             rs.valor("GTSO_ID")});
    return lista;
}

Entradas codigos_pais()
{
    Entradas lista;
    for (Recordset rs(cnRtn, u"select CPAI_CODIGO, CPAI_PAIS, CPAI_PERSONA from GLB_TB_AFIP_CODIGOS_PAIS "
                             u" order by CPAI_PAIS collate ESPANOL, CPAI_PERSONA collate ESPANOL "_s);
         !rs.eof(); rs.siguiente())
        lista.push_back(
            {rs.texto("CPAI_PAIS") + u" - "_s + rs.texto("CPAI_PERSONA") + u" ("_s + rs.texto("CPAI_CODIGO") + u")"_s,
             {}});
    return lista;
}

void seleccionar_inicio(QComboBox* combo, const QString& texto)
{
    for (int i = 0; i < combo->count(); ++i)
        if (nombre_sociedad(combo->itemText(i)) == texto) {
            combo->setCurrentIndex(i);
            return;
        }
    combo->setCurrentIndex(-1);
}

}  // namespace

frmDJ_detalle_parte::frmDJ_detalle_parte() : ui(std::make_unique<Ui::frmDJ_detalle_parte>())
{
    ui->setupUi(this);
    for (QRadioButton* opcion : {ui->optArgentina, ui->optExtranjera})
        marcar_boton(opcion, false);
    llenar_combo(ui->cboTipoSociedad, tipos_sociedad());
    llenar_combo(ui->cboTipoDoc,
                 leer_entradas(u"select GTDC_ID, GTDC_DESCRIPCION from GLB_TB_AFIP_TIPOS_DOC order by GTDC_FREC_USO"_s,
                               "GTDC_DESCRIPCION", "GTDC_ID"));
    llenar_combo(ui->cboProv, provincias());
    llenar_combo(ui->cboCodigoPais, codigos_pais());
    ui->cboCodigoPais->setEnabled(false);
    ui->txtPasaporte->hide();
    ui->nroDoc->ClearText();
    ui->nroExencionPorc->ClearText();
    ui->nroExencionPorc->Habilitar(false);
    ui->chkCUIT_EnTramite->setEnabled(false);
    // The role belongs to the operation's screen.
    ui->cboRol->setEnabled(false);
    ui->cboRol->hide();
    ui->lblRol->hide();
    conectar();
}

frmDJ_detalle_parte::~frmDJ_detalle_parte() = default;

void frmDJ_detalle_parte::conectar()
{
    for (QLineEdit* texto : {ui->txtDomicilio, ui->txtObs, ui->txtPasaporte, ui->txtRazonSocial})
        a_mayusculas(texto);
    for (QComboBox* combo : {ui->cboProv, ui->cboLoc})
        combo_con_texto(combo);
    connect(ui->cboTipoDoc, &QComboBox::activated, this, &frmDJ_detalle_parte::clicTipoDoc);
    connect(ui->cboTipoSociedad, &QComboBox::activated, this, &frmDJ_detalle_parte::clicTipoSociedad);
    connect(ui->cboCodigoPais, &QComboBox::activated, this, &frmDJ_detalle_parte::clicPais);
    connect(ui->optExtranjera, &QRadioButton::toggled, ui->cboCodigoPais, &QWidget::setEnabled);
    connect(ui->optExtranjera, &QRadioButton::clicked, this, [this] {
        if (ui->cboCodigoPais->currentText().contains(FISICA))
            clicPais();
    });
    connect(ui->chkExento, &QCheckBox::clicked, this, &frmDJ_detalle_parte::clicExento);
    connect(ui->nroDoc, &ctlNumero::salida, this, &frmDJ_detalle_parte::salirDeNumero);
    connect(ui->cboProv, &QComboBox::activated, this, &frmDJ_detalle_parte::cargar_localidades);
    connect(ui->tlb, &BarraHerramientas::pulsada, this, [this](const QString& clave) {
        if (clave == u"aceptar")
            aceptar();
        else if (clave == u"buscar")
            buscar();
        else
            descargar();
    });
}

void frmDJ_detalle_parte::fijarRenglon(const QString& dj, const QString& renglon)
{
    ui->txtDJ_nro->setText(dj);
    ui->txtRenglonDJ->setText(renglon);
}

void frmDJ_detalle_parte::permitirCuitEnTramite(bool si)
{
    tramitePermitido_ = si;
    habilitarEnTramite();
}

void frmDJ_detalle_parte::Inicializar(Modo operacion, int id)
{
    Operacion = operacion;
    id_ = id;
    setWindowTitle(operacion == Modo::nuevo ? u"Alta de parte"_s : u"Modificar parte"_s);
    if (operacion != Modo::modificar)
        return;
    if (const auto p = cargar_parte(ui->txtDJ_nro->text(), ui->txtRenglonDJ->text(), id))
        mostrarParte(*p);
}

void frmDJ_detalle_parte::buscar()
{
    auto* busqueda = cargar<frmDJ_buscar_parte>();
    busqueda->fijarRenglon(ui->txtDJ_nro->text(), ui->txtRenglonDJ->text());
    abrir(busqueda);
}

// The document, the name and what always goes with them.
void frmDJ_detalle_parte::mostrarPersona(const Parte& p)
{
    seleccionar_item(ui->cboTipoSociedad, p.tipoSociedad.value_or(-1));
    seleccionar_item(ui->cboTipoDoc, p.tipoDoc.isEmpty() ? -1 : p.tipoDoc.toInt());
    mostrarCampoNumero();
    habilitarEnTramite();
    ui->chkCUIT_EnTramite->setChecked(p.cuitEnTramite);
    const QString tipo = ui->cboTipoDoc->currentText().toUpper();
    if (tipo == PASAPORTE)
        ui->txtPasaporte->setText(p.nroDoc);
    else if ((tipo == CUIT || tipo == u"CUIL") && p.cuit)
        ui->nroDoc->setValue(*p.cuit);
    else if (!p.nroDoc.isEmpty())
        ui->nroDoc->setValue(numero_inicial(p.nroDoc));
    ui->txtRazonSocial->setText(p.razonSocial);
    ui->txtDomicilio->setText(p.domicilio);
    ui->txtCP->setText(p.codPostal);
    ui->txtObs->setText(p.observaciones);
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

void frmDJ_detalle_parte::mostrarCampoNumero()
{
    const bool pasaporte = ui->cboTipoDoc->currentText().toUpper() == PASAPORTE;
    ui->nroDoc->setVisible(!pasaporte);
    ui->txtPasaporte->setVisible(pasaporte);
}

void frmDJ_detalle_parte::habilitarEnTramite()
{
    const bool si = tramitePermitido_ && ui->cboTipoDoc->currentText().toUpper() == CUIT;
    ui->chkCUIT_EnTramite->setEnabled(si);
    if (!si)
        ui->chkCUIT_EnTramite->setChecked(false);
}

void frmDJ_detalle_parte::clicTipoDoc()
{
    mostrarCampoNumero();
    habilitarEnTramite();
    if (ui->cboTipoDoc->currentText().toUpper() == CUIT && es_cuit(ui->nroDoc->modelo()))
        ui->chkExento->setEnabled(true);
    (ui->nroDoc->isVisible() ? static_cast<QWidget*>(ui->nroDoc) : ui->txtPasaporte)->setFocus();
}

void frmDJ_detalle_parte::salirDeNumero()
{
    if (ui->cboTipoDoc->currentText().toUpper() == CUIT && es_cuit(ui->nroDoc->modelo()))
        ui->chkExento->setEnabled(true);
}

// A company always has a CUIT.
void frmDJ_detalle_parte::clicTipoSociedad()
{
    if (ui->cboTipoSociedad->currentText().startsWith(UNIPERSONAL))
        return;
    seleccionar_texto(ui->cboTipoDoc, CUIT);
    mostrarCampoNumero();
    habilitarEnTramite();
}

void frmDJ_detalle_parte::clicPais()
{
    if (!ui->cboCodigoPais->currentText().contains(FISICA)) {
        ui->cboTipoDoc->setCurrentIndex(-1);
        mostrarCampoNumero();
        seleccionar_inicio(ui->cboTipoSociedad, u"DESCONOCIDA"_s);
        return;
    }
    seleccionar_texto(ui->cboTipoDoc, PASAPORTE);
    seleccionar_inicio(ui->cboTipoSociedad, UNIPERSONAL);
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
    llenar_combo(ui->cboLoc, localidades(item_data(ui->cboProv)));
}

ControlesParte frmDJ_detalle_parte::leer_controles() const
{
    ControlesParte c;
    c.operacion = Operacion;
    c.titulo = windowTitle();
    c.dj = ui->txtDJ_nro->text();
    c.renglon = ui->txtRenglonDJ->text();
    c.id = id_;
    c.argentina = ui->optArgentina->isChecked();
    c.extranjera = ui->optExtranjera->isChecked();
    c.codigoPais = ui->cboCodigoPais->currentIndex();
    c.codigoPaisTexto = ui->cboCodigoPais->currentText();
    c.tipoSociedad = item_data(ui->cboTipoSociedad);
    c.tipoSociedadTexto = ui->cboTipoSociedad->currentText();
    if (ui->cboTipoDoc->currentIndex() >= 0)
        c.tipoDoc = item_data(ui->cboTipoDoc);
    c.tipoDocTexto = ui->cboTipoDoc->currentText();
    c.nroDoc.escribirTexto(ui->nroDoc->toString());
    c.pasaporte = ui->txtPasaporte->text();
    c.enTramite = ui->chkCUIT_EnTramite->isEnabled() && ui->chkCUIT_EnTramite->isChecked();
    c.razonSocial = ui->txtRazonSocial->text();
    c.exento = ui->chkExento->isChecked();
    c.exentoActivo = ui->chkExento->isEnabled();
    c.exencionPorc.escribirTexto(ui->nroExencionPorc->toString());
    c.domicilio = ui->txtDomicilio->text();
    c.codPostal = ui->txtCP->text();
    c.observaciones = ui->txtObs->text();
    c.provinciaTexto = ui->cboProv->currentText();
    c.localidadTexto = ui->cboLoc->currentText();
    c.provincia = item_del_texto(ui->cboProv);
    c.localidad = item_del_texto(ui->cboLoc);
    c.rolActivo = ui->cboRol->isEnabled() && ui->cboRol->isVisible();
    c.rolElegido = ui->cboRol->currentIndex() >= 0;
    return c;
}

void frmDJ_detalle_parte::aceptar()
{
    ControlesParte c = leer_controles();
    const auto falla = validar_parte(c);
    ui->txtRazonSocial->setText(c.razonSocial);
    ui->txtPasaporte->setText(c.pasaporte);
    ui->txtDomicilio->setText(c.domicilio);
    ui->txtObs->setText(c.observaciones);
    if (falla) {
        if (falla->control == u"nroDoc" && c.esCuitOCuil() && c.nroDoc.Value() == 0)
            ui->nroDoc->setVisible(true);
        mostrarFalla(*falla);
        return;
    }
    DialogoPantalla dialogo(this);
    if (!verificar_colision_partes(c, dialogo)) {
        enfocar(c.es(PASAPORTE) ? u"txtPasaporte"_s : u"nroDoc"_s);
        return;
    }
    if (Operacion == Modo::modificar) {
        modificar_parte(c);
    } else {
        Parte p = parte_de(c);
        if (!alta_parte(p, true, dialogo))
            return;
    }
    descargar();
}
