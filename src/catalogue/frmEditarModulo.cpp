#include "catalogue/frmEditarModulo.h"

#include "ui_frmEditarModulo.h"

frmEditarModulo::frmEditarModulo() : frmEditarRango(RANGOS_MODULOS), ui(std::make_unique<Ui::frmEditarModulo>())
{
    ui->setupUi(this);
    armar({ui->toolbar, ui->nroDesde, ui->chkValorHasta, ui->nroHasta});
}

frmEditarModulo::~frmEditarModulo() = default;

void frmEditarModulo::Inicializar(Modo operacion, qint32 subconcepto, const clsModuloSellos& rango)
{
    setWindowTitle(operacion == Modo::modificar ? QStringLiteral("Modificar cantidad de módulos") : QStringLiteral("Nuevo rango con impuesto fijo"));
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
