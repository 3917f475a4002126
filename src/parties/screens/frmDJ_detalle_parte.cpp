// SPDX-License-Identifier: GPL-3.0-or-later
// Setting the party's screen up, and storing the party.

#include "parties/screens/frmDJ_detalle_parte.h"

#include "parties/parte.h"
#include "tree/modABM_dj.h"
#include "tree/registros.h"
#include "ui_frmDJ_detalle_parte.h"
#include "widgets/ctlComunes.h"
#include "widgets/enlaces.h"
#include "widgets/marca_largo.h"
#include "widgets/mensajes.h"

using namespace Qt::StringLiterals;

namespace {

// The texts that the checks trim, and that the screen shows again as they left them.
constexpr Enlace<ControlesParte> RECORTADOS[] = {
    {"txtRazonSocial", &ControlesParte::razonSocial},
    {"txtPasaporte", &ControlesParte::pasaporte},
    {"txtDomicilio", &ControlesParte::domicilio},
    {"txtObs", &ControlesParte::observaciones},
};

constexpr Enlace<ControlesParte> FIJOS[] = {
    {"txtDJ_nro", &ControlesParte::dj},
    {"txtRenglonDJ", &ControlesParte::renglon},
    {"txtCP", &ControlesParte::codPostal},
};

}  // namespace

frmDJ_detalle_parte::frmDJ_detalle_parte() : ui(std::make_unique<Ui::frmDJ_detalle_parte>())
{
    ui->setupUi(this);
    const LargoEmitido largos[] = {
        {"txtPasaporte", ancho_emitido("SPIN_NRODOC")},
        {"txtRazonSocial", ancho_emitido("SPIN_RSOCIAL")},
        {"txtDomicilio", ancho_emitido("SPIN_DOMICILIO")},
        {"txtCP", ancho_emitido("SPIN_CODPOSTAL")},
        {"txtObs", ancho_emitido("SPIN_OBS")},
    };
    marcar_largos(this, largos);
    for (QRadioButton* opcion : {ui->optArgentina, ui->optExtranjera})
        marcar_boton(opcion, false);
    llenar_combo(ui->cboTipoSociedad, tipos_sociedad_con_digito());
    llenar_combo(ui->cboTipoDoc, tipos_documento());
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
    conectarReacciones();
    teclasDeBarra(ui->tlb, Escape::nada);
    atender(ui->tlb, &BarraHerramientas::pulsada, [this](const QString& clave) {
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

void frmDJ_detalle_parte::Inicializar(Modo operacion, int id)
{
    Operacion = operacion;
    id_ = id;
    setWindowTitle(operacion == Modo::nuevo ? u"Alta de parte"_s : u"Modificar parte"_s);
    if (operacion == Modo::modificar)
        if (const auto p = cargar_parte(ui->txtDJ_nro->text(), ui->txtRenglonDJ->text(), id))
            mostrarParte(*p);
    marcarGuardado();
}

void frmDJ_detalle_parte::buscar()
{
    auto* busqueda = cargar<frmDJ_buscar_parte>();
    busqueda->fijarRenglon(ui->txtDJ_nro->text(), ui->txtRenglonDJ->text());
    abrir(busqueda);
}

ControlesParte frmDJ_detalle_parte::leer_controles() const
{
    ControlesParte c;
    c.operacion = Operacion;
    c.titulo = windowTitle();
    c.id = id_;
    leer_textos(this, FIJOS, c);
    leer_textos(this, RECORTADOS, c);
    c.argentina = ui->optArgentina->isChecked();
    c.extranjera = ui->optExtranjera->isChecked();
    c.pais = ui->cboCodigoPais->currentIndex();
    c.paisTexto = ui->cboCodigoPais->currentText();
    c.tipoSociedad = elegido(ui->cboTipoSociedad);
    c.tipoSociedadTexto = ui->cboTipoSociedad->currentText();
    c.tipoDoc = elegido(ui->cboTipoDoc);
    c.tipoDocTexto = ui->cboTipoDoc->currentText();
    c.nroDoc.copiarTexto(ui->nroDoc->modelo());
    c.enTramite = ui->chkCUIT_EnTramite->isEnabled() && ui->chkCUIT_EnTramite->isChecked();
    c.exento = ui->chkExento->isChecked();
    c.exentoActivo = ui->chkExento->isEnabled();
    c.exencionPorc.copiarTexto(ui->nroExencionPorc->modelo());
    c.provinciaTexto = ui->cboProv->currentText();
    c.localidadTexto = ui->cboLoc->currentText();
    c.provincia = elegido_por_texto(ui->cboProv);
    c.localidad = elegido_por_texto(ui->cboLoc);
    c.rolActivo = ui->cboRol->isEnabled() && ui->cboRol->isVisible();
    c.rolElegido = ui->cboRol->currentIndex() >= 0;
    return c;
}

void frmDJ_detalle_parte::aceptar()
{
    ControlesParte c = leer_controles();
    const auto falla = validar_parte(c);
    mostrar_textos(this, RECORTADOS, c);
    if (falla) {
        if (falla->control == u"nroDoc" && c.esCuitOCuil() && c.nroDoc.Value() == 0)
            ui->nroDoc->setVisible(true);
        mostrarFalla(*falla);
        return;
    }
    DialogoPantalla dialogo(this);
    if (!verificar_colision_partes(c, dialogo)) {
        enfocar(c.esPasaporte() ? u"txtPasaporte"_s : u"nroDoc"_s);
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
