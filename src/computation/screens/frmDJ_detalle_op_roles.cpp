// SPDX-License-Identifier: GPL-3.0-or-later
// The operation's screen: the parties of the deed and their roles.

#include "computation/screens/frmDJ_detalle_op.h"

#include "computation/roles_operacion.h"
#include "core/numero.h"
#include "parties/screens/frmDJ_detalle_parte.h"
#include "ui_frmDJ_detalle_op.h"

#include <QComboBox>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

constexpr int COL_DENOMINACION = 3;
constexpr int COL_ID_ROL = 4;
constexpr int COL_ROL = 5;
constexpr int COL_OBS = 6;
constexpr int COL_EXENCION = 7;
constexpr int LARGO_OBSERVACIONES = 50;

// What stood in the grid beside a party that is read again.
void conservar(ParteRol& leida, const ParteRol& antes)
{
    if (!antes.idRol.isEmpty()) {
        leida.idRol = antes.idRol;
        leida.rol = antes.rol;
    }
    if (!antes.idRol.isEmpty() || !antes.observaciones.isEmpty())
        leida.observaciones = antes.observaciones;
}

}  // namespace

void frmDJ_detalle_op::prepararEditorDeRoles()
{
    QWidget* celdas = ui->flxPartes->viewport();
    cboRoles_ = new QComboBox(celdas);
    cboRoles_->setObjectName(u"cboRoles"_s);
    auto* txtRolObs = new QLineEdit(celdas);
    txtRolObs->setObjectName(u"txtRolObs"_s);
    txtRolObs->setMaxLength(LARGO_OBSERVACIONES);
    editorRoles_ = new EditorCelda(ui->flxPartes, cboRoles_, txtRolObs,
                                   {.dato = COL_ID_ROL, .lista = COL_ROL, .texto = COL_OBS});
    atender(editorRoles_, &EditorCelda::listaEscrita, &frmDJ_detalle_op::colorearRoles);
}

void frmDJ_detalle_op::tlbPartes_pulsada(const QString& clave)
{
    // "quitar" deliberately does nothing: a party can't be removed from here.
    const bool nueva = clave == u"agregar";
    if (!nueva && (clave != u"editar" || ui->flxPartes->filaActual() < 0))
        return;
    editorRoles_->cerrar_celda(true);
    auto* hijo = cargar<frmDJ_detalle_parte>();
    hijo->fijarRenglon(ui->txtDJ_nro->text(), ui->txtRenglonDJ->text());
    hijo->permitirCuitEnTramite(subconcepto_ && subconcepto_->PermitirCUIT_EnTramite);
    hijo->Inicializar(nueva ? Modo::nuevo : Modo::modificar, nueva ? 0 : ui->flxPartes->clave().toInt());
    abrir(hijo);
}

void frmDJ_detalle_op::recargarRoles()
{
    // What was chosen here and not yet saved stays, also when a party's screen comes back.
    const QList<ParteRol> antes = partesDeGrilla();
    ui->flxPartes->llenar([&] {
        for (ParteRol p : leer_partes_con_roles(clave())) {
            for (const ParteRol& a : antes)
                if (a.id == p.id)
                    conservar(p, a);
            ui->flxPartes->agregar({p.id, p.tipoDoc, p.nroDoc, p.denominacion, p.idRol, p.rol, p.observaciones,
                                    p.porcExento ? importe_llano(*p.porcExento) : QString()});
        }
    });
    colorearRoles();
}

QList<ParteRol> frmDJ_detalle_op::partesDeGrilla() const
{
    QList<ParteRol> partes;
    for (int i = 0; i < ui->flxPartes->filas(); ++i) {
        ParteRol p;
        p.id = ui->flxPartes->celda(i, 0);
        p.denominacion = ui->flxPartes->celda(i, COL_DENOMINACION);
        p.idRol = ui->flxPartes->celda(i, COL_ID_ROL);
        p.rol = ui->flxPartes->celda(i, COL_ROL);
        p.observaciones = ui->flxPartes->celda(i, COL_OBS);
        if (const QString porcentaje = ui->flxPartes->celda(i, COL_EXENCION); !porcentaje.isEmpty())
            p.porcExento = numero_de_texto(porcentaje);
        partes << p;
    }
    return partes;
}

void frmDJ_detalle_op::colorearRoles()
{
    for (int i = 0; i < ui->flxPartes->filas(); ++i) {
        const QString texto = ui->flxPartes->celda(i, COL_ROL);
        const clsRol* rol = subconcepto_ ? subconcepto_->Roles().FindItem(texto) : nullptr;
        const bool ausente = texto.isEmpty() || ui->flxPartes->celda(i, COL_ID_ROL) == u"0";
        ui->flxPartes->colorear(i, ausente                        ? Tono::apagado
                                   : rol && rol->ParicipaImpuesto ? Tono::destacado
                                                                  : Tono::normal);
    }
    ui->flxPartes->viewport()->update();
}

// Roles that the new item does not have turn to the first entry, "(ninguno)".
void frmDJ_detalle_op::adaptarRoles()
{
    for (int i = 0; i < ui->flxPartes->filas(); ++i) {
        const clsRol* rol = subconcepto_ ? subconcepto_->Roles().FindItem(ui->flxPartes->celda(i, COL_ROL)) : nullptr;
        ui->flxPartes->ponerCelda(i, COL_ID_ROL, rol ? QString::number(rol->IdRol) : cboRoles_->itemData(0).toString());
        if (!rol)
            ui->flxPartes->ponerCelda(i, COL_ROL, cboRoles_->itemText(0));
    }
    colorearRoles();
}
