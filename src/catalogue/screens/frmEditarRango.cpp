// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogue/screens/frmEditarRango.h"

#include "core/almacen.h"
#include "core/motivos.h"
#include "widgets/barra.h"
#include "widgets/ctlNumero.h"
#include "widgets/mensajes.h"

#include <QCheckBox>

using namespace Qt::StringLiterals;

void frmEditarRango::armar(const Controles& controles)
{
    c_ = controles;
    teclasDeBarra(c_.toolbar);
    habilitarHasta();
    atender(c_.chkValorHasta, &QCheckBox::toggled, [this] {
        habilitarHasta();
        if (c_.chkValorHasta->isChecked())
            c_.nroHasta->setFocus();
    });
    aceptarOSalir(c_.toolbar, [this] { aceptar(); });
}

void frmEditarRango::habilitarHasta()
{
    const bool si = c_.chkValorHasta->isChecked();
    c_.nroHasta->Habilitar(si);
    if (!si)
        c_.nroHasta->ClearText();
}

void frmEditarRango::iniciarRango(Modo operacion, qint32 subconcepto, qint64 id, double desde, double hasta)
{
    Operacion = operacion;
    subconcepto_ = subconcepto;
    id_ = id;
    if (operacion != Modo::modificar)
        return;
    c_.nroDesde->setValue(desde);
    c_.chkValorHasta->setChecked(hasta != SIN_LIMITE);
    if (hasta != SIN_LIMITE)
        c_.nroHasta->setValue(hasta);
    c_.nroDesde->Habilitar(false);
    c_.chkValorHasta->setEnabled(false);
    c_.nroHasta->Habilitar(false);
}

bool frmEditarRango::guardar(const Rango& r)
{
    const bool nuevo = Operacion == Modo::nuevo;
    try {
        if (!nuevo) {
            modificar_rango(tabla_, id_, r.valores);
            return true;
        }
        if (se_solapa(tabla_, r)) {
            mostrarFalla({.mensaje = u"El rango ingresado se solapa con otro rango ya ingresado para el subconcepto"_s,
                          .control = u"nroDesde"_s,
                          .titulo = {}});
            return false;
        }
        alta_rango(tabla_, r);
        return true;
    } catch (const ErrorAlmacen& e) {
        // Nothing is being deleted; the title of a change stays as it is, deliberately.
        avisar(motivo_de_escritura(e), nuevo ? windowTitle() : u"Borrar concepto de sellos"_s, Icono::informacion,
               e.motor);
        return false;
    }
}

void frmEditarRango::aceptar()
{
    preparar();
    const Rango r{subconcepto_, c_.nroDesde->toSQL(), c_.chkValorHasta->isChecked(), c_.nroHasta->toSQL(), valores()};
    DialogoPantalla dialogo(this);
    if (const auto control = revisar_rango(tabla_, r, windowTitle(), dialogo))
        enfocar(*control);
    else if (guardar(r))
        descargar();
}
