// SPDX-License-Identifier: GPL-3.0-or-later
// The editor's controls, by the tables that join them to columns and to boxes.

#include "catalogue/screens/frmEditarSubconceptoSellos.h"

#include "catalogue/screens/control_subconcepto.h"
#include "ui_frmEditarSubconceptoSellos.h"
#include "widgets/ctlComunes.h"

#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

ControlesSubconcepto frmEditarSubconceptoSellos::leer_controles() const
{
    ControlesSubconcepto c = ocultos_;
    const auto tomar = [&](const char* nombre) {
        if (const QWidget* w = control(nombre))
            c[w->objectName()] = leer_control(w);
    };
    for (const CampoSubconcepto& campo : campos_subconcepto()) {
        tomar(campo.control);
        tomar(campo.asociado);
    }
    c[u"txtTipoCalculoBI"_s] = ui->txtTipoCalculoBI->text();
    c[u"ctlTipoCalculo"_s] = tipoCalculo_ ? QVariant(*tipoCalculo_) : QVariant();
    return c;
}

void frmEditarSubconceptoSellos::poner_controles(const ControlesSubconcepto& c)
{
    const QScopedValueRollback mostrando(mostrando_, true);
    for (const CampoSubconcepto& campo : campos_subconcepto())
        for (const char* nombre : {campo.control, campo.asociado})
            if (QWidget* w = control(nombre))
                poner_control(w, c.value(w->objectName()));
    ocultos_ = {{TIPO_CALCULO_BI, c.value(TIPO_CALCULO_BI)}, {USOS, c.value(USOS)}};
    ui->txtTipoCalculoBI->setText(c.value(u"txtTipoCalculoBI"_s).toString());
    for (QLineEdit* texto : findChildren<QLineEdit*>())
        texto->setCursorPosition(0);
    tipoCalculo_ = id_elegido(c, u"ctlTipoCalculo"_s);
    QString clave = QString::number(tipoCalculo_.value_or(0));
    ui->ctlTipoCalculo->SeleccionarItem(clave, false);
    mostrarRangos(rangos_de_tipo(ui->ctlTipoCalculo->Value()));
}

// What works follows from the state and the boxes.
void frmEditarSubconceptoSellos::habilitarControles()
{
    const ControlesSubconcepto c = leer_controles();
    for (QWidget* w : std::as_const(editables_))
        habilitar_control(w, editando_ && habilitado_por_casillas(w->objectName(), c));
    habilitarBarras();
}

// What hangs on the box, and what hangs on that, whether it was ticked or not.
void frmEditarSubconceptoSellos::vaciarDependientes(const QString& casilla)
{
    const QScopedValueRollback mostrando(mostrando_, true);
    for (const DependenciaSubconcepto& d : dependencias_subconcepto()) {
        if (casilla != QString::fromUtf8(d.casilla))
            continue;
        poner_control(control(d.control), {});
        vaciarDependientes(QString::fromUtf8(d.control));
    }
}

void frmEditarSubconceptoSellos::cambioCasilla(const QString& casilla, bool si)
{
    if (mostrando_)
        return;
    const std::optional<int> tipo = id_elegido(ocultos_, TIPO_CALCULO_BI);
    if (const auto mensaje = si ? std::nullopt : casilla_sujeta(casilla, tipo, windowTitle())) {
        {
            const QScopedValueRollback mostrando(mostrando_, true);
            findChild<QCheckBox*>(casilla)->setChecked(true);
        }
        avisar(mensaje->texto, mensaje->titulo, mensaje->icono);
        return;
    }
    if (!si)
        vaciarDependientes(casilla);
    if (!si && casilla == u"chkBaseImponible")
        ocultos_[TIPO_CALCULO_BI] = {};
    habilitarControles();
}
