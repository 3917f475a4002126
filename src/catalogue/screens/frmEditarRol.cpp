// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogue/screens/frmEditarRol.h"

#include "catalogue/roles_catalogo.h"
#include "core/almacen.h"
#include "core/motivos.h"
#include "ui_frmEditarRol.h"
#include "widgets/ctlComunes.h"

using namespace Qt::StringLiterals;

frmEditarRol::frmEditarRol() : ui(std::make_unique<Ui::frmEditarRol>())
{
    ui->setupUi(this);
    teclasDeBarra(ui->toolbar);
    for (const QString& nombre : atributos_subconcepto())
        ui->cboSSUBAtributos->addItem(nombre);
    ui->cboSSUBAtributos->setCurrentIndex(-1);
    for (QLineEdit* texto : {ui->txtDescripcion, ui->txtSSUBAtributoValor, ui->txtSSUBAtributoTabla})
        a_mayusculas(texto);
    habilitarAtributo();
    // What the box of the attribute holds stays behind the frame.
    atender(ui->optRequerido, &QRadioButton::clicked, [this] {
        if (ui->optRequerido->hasFocus())
            ui->fraSSUBAtributo->setEnabled(false);
    });
    atender(ui->optEsporadico, &QRadioButton::clicked, [this] { ui->fraSSUBAtributo->setEnabled(true); });
    atender(ui->chkSSUBAtributo, &QCheckBox::toggled, &frmEditarRol::habilitarAtributo);
    aceptarOSalir(ui->toolbar, [this] { aceptar(); });
}

frmEditarRol::~frmEditarRol() = default;

void frmEditarRol::habilitarAtributo()
{
    const bool si = ui->chkSSUBAtributo->isChecked();
    if (!si) {
        ui->cboSSUBAtributos->setCurrentIndex(-1);
        ui->txtSSUBAtributoValor->clear();
        ui->txtSSUBAtributoTabla->clear();
    }
    habilitar_combo(ui->cboSSUBAtributos, si);
    habilitar_texto(ui->txtSSUBAtributoValor, si);
    habilitar_texto(ui->txtSSUBAtributoTabla, si);
}

void frmEditarRol::Inicializar(Modo operacion, qint32 subconcepto, const clsRol& rol)
{
    Operacion = operacion;
    IdSubconcepto_ = subconcepto;
    ui->txtDescripcion->setFocus();
    ui->nroCodigo->setValue(double(operacion == Modo::nuevo ? proximo_rol(subconcepto) : rol.IdRol));
    if (operacion == Modo::nuevo)
        return;
    ui->txtDescripcion->setText(rol.Descripcion);
    (rol.Requerido ? ui->optRequerido : ui->optEsporadico)->setChecked(true);
    ui->chkParticipaImpuesto->setChecked(rol.ParicipaImpuesto);
    ui->chkCargaObligSM->setChecked(rol.CargaOblig_SM);
    ui->chkPermite_CuitEnTramite->setChecked(rol.Permite_CuitEnTramite);
    ui->chkSSUBAtributo->setChecked(!rol.SSUBAtributo.isEmpty());
    seleccionar_texto(ui->cboSSUBAtributos, rol.SSUBAtributo);
    ui->txtSSUBAtributoValor->setText(rol.SSUBAtributo_valor);
    ui->txtSSUBAtributoTabla->setText(rol.SSUBAtributo_tabla);
}

clsRol frmEditarRol::leer_controles() const
{
    return {.ParicipaImpuesto = ui->chkParticipaImpuesto->isChecked(),
            .CargaOblig_SM = ui->chkCargaObligSM->isChecked(),
            .Requerido = ui->optRequerido->isChecked(),
            .Permite_CuitEnTramite = ui->chkPermite_CuitEnTramite->isChecked(),
            .SSUBAtributo = ui->cboSSUBAtributos->currentText(),
            .SSUBAtributo_valor = ui->txtSSUBAtributoValor->text(),
            .SSUBAtributo_tabla = ui->txtSSUBAtributoTabla->text(),
            .IdRol = qint64(ui->nroCodigo->Value()),
            .Descripcion = ui->txtDescripcion->text()};
}

void frmEditarRol::aceptar()
{
    clsRol rol = leer_controles();
    if (const auto falla = validar_rol(rol, ui->chkSSUBAtributo->isChecked())) {
        mostrarFalla(*falla);
        return;
    }
    const bool nuevo = Operacion == Modo::nuevo;
    try {
        nuevo ? alta_rol(rol, IdSubconcepto_) : modificar_rol(rol, IdSubconcepto_);
    } catch (const ErrorAlmacen& e) {
        avisar(nuevo ? u"No se pudo dar de alta la parte para el subconcepto especificado"_s : motivo_de_escritura(e),
               windowTitle(), Icono::informacion, detalles_de(e));
        return;
    }
    descargar();
}
