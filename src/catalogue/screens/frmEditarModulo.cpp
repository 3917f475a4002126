// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogue/screens/frmEditarModulo.h"

#include "ui_frmEditarModulo.h"

using namespace Qt::StringLiterals;

frmEditarModulo::frmEditarModulo() : frmEditarRango(RANGOS_MODULOS), ui(std::make_unique<Ui::frmEditarModulo>())
{
    ui->setupUi(this);
    armar({ui->toolbar, ui->nroDesde, ui->chkValorHasta, ui->nroHasta});
}

frmEditarModulo::~frmEditarModulo() = default;

void frmEditarModulo::Inicializar(Modo operacion, qint32 subconcepto, const clsModuloSellos& rango)
{
    setWindowTitle(operacion == Modo::modificar ? u"Modificar cantidad de módulos"_s
                                                : u"Nuevo rango con impuesto fijo"_s);
    iniciarRango(operacion, subconcepto, rango.IdModulo, rango.ValorDesde, rango.ValorHasta);
    if (operacion != Modo::modificar)
        return;
    ui->nroModulos->setFocus();
    ui->nroModulos->setValue(rango.CantModulos);
}

QStringList frmEditarModulo::valores() const
{
    return {ui->nroModulos->toSQL()};
}
