// SPDX-License-Identifier: GPL-3.0-or-later

#include "deeds/screens/frmDJ_editar_inmueble.h"

#include "deeds/inmueble.h"
#include "tree/modABM_dj.h"
#include "tree/registros.h"
#include "ui_frmDJ_editar_inmueble.h"
#include "widgets/ctlComunes.h"
#include "widgets/enlaces.h"
#include "widgets/marca_largo.h"
#include "widgets/mensajes.h"

using namespace Qt::StringLiterals;

namespace {

constexpr Enlace<Inmueble> CAMPOS[] = {
    {"txtINM_partida", &Inmueble::partida},
    {"txtINMObs", &Inmueble::observaciones},
    {"txtU_Lote", &Inmueble::lote},
    {"txtU_Manzana", &Inmueble::manzana},
    {"txtU_UnidadFuncional", &Inmueble::uFuncional},
    {"txtU_circulacion", &Inmueble::circulacion},
    {"txtU_piso", &Inmueble::piso},
    {"txtU_dpto", &Inmueble::dpto},
    {"txtU_calle", &Inmueble::calle},
    {"txtU_Nro", &Inmueble::nro},
    {"txtU_Barrio", &Inmueble::barrio},
    {"txtU_Departamento", &Inmueble::departamento},
    {"txtNC_Seccion", &Inmueble::ncSeccion},
    {"txtNC_Fraccion", &Inmueble::ncFraccion},
    {"txtNC_Lote", &Inmueble::ncLote},
    {"txtNC_Ejido", &Inmueble::ncEjido},
    {"txtNC_Circunscripción", &Inmueble::ncCircunscripcion},
    {"txtNC_Sector", &Inmueble::ncSector},
    {"txtNC_Manzana", &Inmueble::ncManzana},
    {"txtNC_parcela", &Inmueble::ncParcela},
};

constexpr int ANCHO_CIUDAD = 20;
constexpr int ANCHO_PROVINCIA = 15;

const QString PROPIA = u"MARVEN"_s;
const QString EXTRANA = u"EXTRAÑA JURISDICCION"_s;

}  // namespace

frmDJ_editar_inmueble::frmDJ_editar_inmueble() : ui(std::make_unique<Ui::frmDJ_editar_inmueble>())
{
    ui->setupUi(this);
    const LargoEmitido largos[] = {
        {"txtINM_partida", ancho_emitido("SEII_PARTIDA")},
        {"txtINMObs", ancho_emitido("SEII_OBSERVACIONES")},
        {"txtU_Lote", ancho_emitido("SEII_UBIC_LOTE")},
        {"txtU_Manzana", ancho_emitido("SEII_UBIC_MANZANA")},
        {"txtU_UnidadFuncional", ancho_emitido("SEII_UBIC_UFUNCIONAL")},
        {"txtU_circulacion", ancho_emitido("SEII_UBIC_CIRCULACION")},
        {"txtU_piso", ancho_emitido("SEII_UBIC_PISO")},
        {"txtU_dpto", ancho_emitido("SEII_UBIC_DPTO")},
        {"txtU_calle", ancho_emitido("SEII_UBIC_CALLE")},
        {"txtU_Nro", ancho_emitido("SEII_UBIC_NRO")},
        {"txtU_Barrio", ancho_emitido("SEII_UBIC_BARRIO")},
        {"txtU_Departamento", ancho_emitido("SEII_UBIC_DEPARTAMENTO")},
        {"txtNC_Seccion", ancho_emitido("SEII_NCAT_SECCION")},
        {"txtNC_Fraccion", ancho_emitido("SEII_NCAT_FRACCION")},
        {"txtNC_Lote", ancho_emitido("SEII_NCAT_LOTE")},
        {"txtNC_Ejido", ancho_emitido("SEII_NCAT_EJIDO")},
        {"txtNC_Circunscripción", ancho_emitido("SEII_NCAT_CIRCUNSCRIPCION")},
        {"txtNC_Sector", ancho_emitido("SEII_NCAT_SECTOR")},
        {"txtNC_Manzana", ancho_emitido("SEII_NCAT_MANZANA")},
        {"txtNC_parcela", ancho_emitido("SEII_NCAT_PARCELA")},
    };
    marcar_largos(this, largos);
    solo_digitos_en(ui->txtINM_partida);
    llenar_combo(ui->cboU_caracter, caracteres_ubicacion());
    llenar_combo(ui->cboProv, provincias());
    for (QComboBox* combo : {ui->cboProv, ui->cboLoc})
        combo_con_texto(combo);
    ui->cboLoc->lineEdit()->setMaxLength(ANCHO_CIUDAD);
    ui->cboProv->lineEdit()->setMaxLength(ANCHO_PROVINCIA);
    atender(ui->cboProv, &QComboBox::activated, &frmDJ_editar_inmueble::cargar_localidades);
    atender(ui->cboU_caracter, &QComboBox::activated, &frmDJ_editar_inmueble::clicCaracter);
    teclasDeBarra(ui->tlb, Escape::nada);
    aceptarOSalir(ui->tlb, [this] { aceptar(); });
}

frmDJ_editar_inmueble::~frmDJ_editar_inmueble() = default;

void frmDJ_editar_inmueble::fijarRenglon(const QString& dj, const QString& renglon)
{
    ui->txtDJ_nro->setText(dj);
    ui->txtRenglonDJ->setText(renglon);
}

void frmDJ_editar_inmueble::Inicializar(Modo operacion, int id)
{
    Operacion = operacion;
    id_ = id;
    setWindowTitle(operacion == Modo::nuevo ? u"Alta de inmueble"_s : u"Modificar inmueble"_s);
    if (operacion == Modo::modificar)
        if (const auto i = cargar_inmueble(ui->txtDJ_nro->text(), ui->txtRenglonDJ->text(), id))
            mostrarInmueble(*i);
    marcarGuardado();
}

void frmDJ_editar_inmueble::cargar_localidades()
{
    llenar_combo(ui->cboLoc, localidades(elegido(ui->cboProv)));
}

// A property of the home jurisdiction is always in the home province.
void frmDJ_editar_inmueble::clicCaracter()
{
    if (ui->cboU_caracter->currentText() != EXTRANA) {
        seleccionar_texto(ui->cboProv, PROPIA);
        cargar_localidades();
    } else if (ui->cboProv->currentText() == PROPIA) {
        ui->cboProv->setCurrentIndex(-1);
        ui->cboProv->clearEditText();
        cargar_localidades();
    }
}

Inmueble frmDJ_editar_inmueble::leer_controles() const
{
    Inmueble i;
    i.dj = ui->txtDJ_nro->text();
    i.renglon = ui->txtRenglonDJ->text().toInt();
    i.id = id_;
    i.valFiscal = ui->nroValFiscal->Value();
    i.ciudad = ui->cboLoc->currentText();
    i.provincia = ui->cboProv->currentText();
    i.caracter = elegido(ui->cboU_caracter);
    leer_textos(this, CAMPOS, i);
    return i;
}

void frmDJ_editar_inmueble::mostrarInmueble(const Inmueble& i)
{
    mostrar_textos(this, CAMPOS, i);
    ui->nroValFiscal->setValue(i.valFiscal);
    seleccionar_item(ui->cboU_caracter, i.caracter.value_or(-1));
    seleccionar_texto(ui->cboProv, i.provincia);
    ui->cboProv->setEditText(i.provincia);
    cargar_localidades();
    seleccionar_texto(ui->cboLoc, i.ciudad);
    ui->cboLoc->setEditText(i.ciudad);
}

void frmDJ_editar_inmueble::aceptar()
{
    Inmueble i = leer_controles();
    const auto falla = validar_inmueble(i);
    ui->txtINM_partida->setText(i.partida);
    ui->txtINMObs->setText(i.observaciones);
    if (falla) {
        mostrarFalla(*falla);
        return;
    }
    DialogoPantalla dialogo(this);
    if (Operacion == Modo::nuevo) {
        if (!alta_inmueble(i, true, dialogo))
            return;
    } else {
        modificar_inmueble(i, ui->nroValFiscal->toSQL());
    }
    descargar();
}
