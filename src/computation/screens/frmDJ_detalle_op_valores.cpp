// SPDX-License-Identifier: GPL-3.0-or-later
// The operation's screen: the contract values.

#include "computation/screens/frmDJ_detalle_op.h"

#include "computation/anotador.h"
#include "computation/moneda.h"
#include "computation/valores_contractuales.h"
#include "tree/modABM_dj.h"
#include "ui_frmDJ_detalle_op.h"
#include "widgets/mensajes.h"

using namespace Qt::StringLiterals;

QString frmDJ_detalle_op::idMoneda() const
{
    return id_de_moneda(ui->cboMoneda->currentText());
}

void frmDJ_detalle_op::calcularParcial()
{
    CalcularValorParcial(subconcepto(), idMoneda(), ui->nroValorContractual->modelo(), ui->nroPorcIVA->modelo(),
                         ui->ctlValorCambio->modelo(), ui->nroBIParcial->modelo());
}

void frmDJ_detalle_op::cambioMoneda()
{
    const bool pesos = es_pesos(ui->cboMoneda->currentText());
    ui->ctlValorCambio->Habilitar(!pesos);
    if (pesos) {
        ui->ctlValorCambio->setValue(1);
    } else {
        ui->ctlValorCambio->ClearText();
        if (ui->ctlValorCambio->isVisible())
            ui->ctlValorCambio->setFocus();
    }
    calcularParcial();
}

void frmDJ_detalle_op::limpiarPanel()
{
    ui->nroValorContractual->ClearText();
    cambioMoneda();
    for (ctlNumero* n : {ui->nroPorcIVA, ui->nroBIParcial}) {
        n->ClearText();
        n->setValue(0);
    }
}

void frmDJ_detalle_op::botonesValores(bool reposo, bool entrada)
{
    ui->tlbBI->habilitar(u"nuevo"_s, reposo);
    for (const char* c : {"editar", "borrar"})
        ui->tlbBI->habilitar(QLatin1String(c), reposo && ui->flxVC->filas() > 0);
    for (const char* c : {"guardar", "cancelar"})
        ui->tlbBI->habilitar(QLatin1String(c), entrada);
}

void frmDJ_detalle_op::cerrarPanel()
{
    ui->fraEditarVC->hide();
    botonesValores(true, false);
}

void frmDJ_detalle_op::tlbBI_pulsada(const QString& tecla)
{
    if (tecla == u"nuevo") {
        modoValor_ = Modo::nuevo;
        botonesValores(false, true);
        limpiarPanel();
        ui->fraEditarVC->show();
        enfocar(u"nroValorContractual"_s);
    } else if (tecla == u"editar") {
        editarValor();
    } else if (tecla == u"guardar") {
        guardarValor();
    } else if (tecla == u"borrar") {
        borrarValorElegido();
    } else {
        limpiarPanel();
        cerrarPanel();
    }
}

void frmDJ_detalle_op::editarValor()
{
    idValor_ = ui->flxVC->clave();
    const auto v = idValor_.isEmpty() ? std::optional<ValorContractual>() : cargar_valor(clave(), idValor_);
    if (!v)
        return;
    modoValor_ = Modo::modificar;
    ui->cboMoneda->setCurrentIndex(v->moneda.isEmpty() ? -1 : ui->cboMoneda->findData(v->moneda));
    cambioMoneda();
    ui->ctlValorCambio->setValue(v->valorCambio.value_or(0));
    ui->nroValorContractual->setValue(v->valor.value_or(0));
    ui->nroPorcIVA->setValue(v->porcIva.value_or(0));
    calcularParcial();
    ui->fraEditarVC->show();
    botonesValores(false, true);
    enfocar(u"nroValorContractual"_s);
}

bool frmDJ_detalle_op::validarValor()
{
    if (!subconcepto_ || !subconcepto_->RequiereValorContractual)
        return true;
    const auto falla = primera_falla({
        {ui->nroValorContractual->Value() == 0, "Ingrese el valor contractual", "nroValorContractual"},
        {ui->cboMoneda->currentIndex() < 0, "Ingrese la moneda del valor contractual", "cboMoneda"},
        {ui->ctlValorCambio->Value() == 0, "Ingrese el valor de cambio para la moneda seleccionada", "ctlValorCambio"},
    });
    if (!falla)
        return true;
    ui->SSTab1->setCurrentIndex(SOLAPA_BASE);
    mostrarFalla(*falla);
    return false;
}

void frmDJ_detalle_op::guardarValor()
{
    calcularParcial();
    if (!validarValor())
        return;
    const ClaveOperacion c = clave();
    ValorContractual v{c.dj,
                       c.renglon.toInt(),
                       c.operacion.toInt(),
                       idValor_.toInt(),
                       ui->nroValorContractual->Value(),
                       ui->nroPorcIVA->Value(),
                       idMoneda(),
                       ui->ctlValorCambio->Value(),
                       ui->nroBIParcial->Value()};
    if (modoValor_ == Modo::nuevo) {
        DialogoPantalla dialogo(this);
        if (!alta_valor_contractual(v, true, dialogo))
            return;
    } else {
        modificar_valor(v);
    }
    recargarValores();
    calcularImpuesto();
    modoValor_ = Modo::nuevo;
    cerrarPanel();
}

void frmDJ_detalle_op::borrarValorElegido()
{
    const QString titulo = u"Borrar valor contractual"_s;
    if (!preguntar(u"Esta seguro que desea borrar el valor contractual seleccionado?"_s, titulo))
        return;
    try {
        borrar_valor(clave(), ui->flxVC->clave());
    } catch (const ErrorAlmacen&) {
        avisar(u"No se pudo borrar el valor contractual seleccionado"_s, titulo);
    }
    recargarValores();
    calcularImpuesto();
    botonesValores(true, false);
}

void frmDJ_detalle_op::recargarValores()
{
    if (ui->txtNroOP->text().isEmpty())
        return;
    double total = 0;
    pasosValores_.vaciar();
    ui->flxVC->llenar([&] {
        total = leer_valores(
            clave(), [this](const QStringList& fila) { ui->flxVC->agregar(fila); }, &pasosValores_);
    });
    tomar(&pasosValores_, ClasePaso::totalVC, ui->nroTotalVC->modelo(), total, {total});
    botonesValores(ui->tlbBI->habilitada(u"nuevo"_s), ui->tlbBI->habilitada(u"guardar"_s));
}
