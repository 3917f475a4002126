// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogue/screens/frmEditarAlicuota.h"

#include "ui_frmEditarAlicuota.h"

using namespace Qt::StringLiterals;

frmEditarAlicuota::frmEditarAlicuota() : frmEditarRango(RANGOS_ALICUOTAS), ui(std::make_unique<Ui::frmEditarAlicuota>())
{
    ui->setupUi(this);
    armar({ui->toolbar, ui->nroDesde, ui->chkValorHasta, ui->nroHasta});
    atender(ui->nroDivisor, &ctlNumero::salida, &frmEditarAlicuota::calcularFraccion);
    atender(ui->nroDividendo, &ctlNumero::KeyPress, [this](int& tecla) {
        if (tecla == 13)
            calcularFraccion();
    });
}

frmEditarAlicuota::~frmEditarAlicuota() = default;

void frmEditarAlicuota::Inicializar(Modo operacion, qint32 subconcepto, const clsAlicuotaSellos& rango)
{
    setWindowTitle(operacion == Modo::modificar ? u"Modificar alicuota"_s : u"Nueva alicuota"_s);
    iniciarRango(operacion, subconcepto, rango.IdAlicuota, rango.ValorDesde, rango.ValorHasta);
    if (operacion != Modo::modificar)
        return;
    ui->nroAlicuota->setFocus();
    ui->nroAlicuota->setValue(rango.ValorAlicuota);
    ui->nroDivisor->setValue(rango.Divisor);
    ui->nroDividendo->setValue(rango.Dividendo);
}

// The rate from its fraction; without a divisor it stays as it was typed.
void frmEditarAlicuota::calcularFraccion()
{
    if (ui->nroDivisor->Value() != 0)
        ui->nroAlicuota->setValue(ui->nroDividendo->Value() / ui->nroDivisor->Value());
}

QStringList frmEditarAlicuota::valores() const
{
    return {ui->nroAlicuota->toSQL(), ui->nroDivisor->toSQL(), ui->nroDividendo->toSQL()};
}
