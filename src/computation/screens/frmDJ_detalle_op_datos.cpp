// SPDX-License-Identifier: GPL-3.0-or-later
// The operation's screen: loading a saved operation, the fields of the calculation, the
// properties of the deed, and the contract values.

#include "computation/screens/frmDJ_detalle_op.h"

#include "computation/operacion.h"
#include "widgets/ctlComunes.h"
#include "widgets/mensajes.h"
#include "core/modGlobales.h"
#include "tree/modABM_dj.h"
#include "ui_frmDJ_detalle_op.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int SOLAPA_BASE = 0;
constexpr int POSICION_MONEDA = 50;

void poner(ctlNumero* n, const std::optional<double>& valor)
{
    if (valor)
        n->setValue(*valor);
}

}  // namespace

CamposImpuesto frmDJ_detalle_op::campos()
{
    return {ui->nroTotalVC->modelo(),
            ui->nroValuacionFiscal->modelo(),
            ui->nroHipoteca->modelo(),
            ui->nroObligAccesoria->modelo(),
            ui->nroBaseImponible->modelo(),
            ui->ctlBaseImponiblePesos->modelo(),
            ui->nroAux->modelo(),
            ui->nroMoA->modelo(),
            ui->nroExencionPorc->modelo(),
            ui->nroMontoExento->modelo(),
            ui->ctlImpuestoCalculado->modelo(),
            ui->ctlImporteMinimo->modelo(),
            ui->nroPagoACuenta->modelo(),
            ui->nroAdicionales->modelo(),
            ui->nroImpuesto->modelo(),
            ui->ctlValorCambio->modelo()};
}

EstadoOperacion frmDJ_detalle_op::estadoOperacion() const
{
    EstadoOperacion e;
    e.subconcepto = subconcepto_ ? &*subconcepto_ : nullptr;
    for (const ParteRol& p : partesDeGrilla())
        e.partes << EstadoOperacion::Parte{p.rol, p.porcExento};
    e.idMoneda = idMoneda();
    e.obligAccesoria = ui->chkObligAccesoria->isChecked();
    e.obligAccesoriaDato = ui->cboObligAccesoria_modo->currentIndex() < 0 ? -1 : item_data(ui->cboObligAccesoria_modo);
    e.obligAccesoriaFijo = ui->optObligAccesoria_fijo->isChecked();
    e.obligAccesoriaPorc = ui->optObligAccesoria_porc->isChecked();
    e.titulo = windowTitle();
    e.lblMoA = ui->lblMoA->text();
    return e;
}

void frmDJ_detalle_op::calcularImpuesto()
{
    DialogoPantalla dialogo(this);
    EstadoOperacion e = estadoOperacion();
    CalcularImpuesto(campos(), e, dialogo);
    ui->lblMoA->setText(e.lblMoA);
    if (e.enfocarMoA)
        ui->nroMoA->setFocus();
}

void frmDJ_detalle_op::calcularBaseEImpuesto()
{
    DialogoPantalla dialogo(this);
    CalcularBaseImponible(campos(), estadoOperacion(), dialogo);
    calcularImpuesto();
}

void frmDJ_detalle_op::limpiarImportes()
{
    for (ctlNumero* n :
         {ui->nroTotalVC, ui->nroHipoteca, ui->nroObligAccesoria, ui->nroBaseImponible, ui->ctlBaseImponiblePesos,
          ui->nroMoA, ui->nroExencionPorc, ui->nroMontoExento, ui->ctlImpuestoCalculado, ui->nroPagoACuenta,
          ui->nroAdicionales, ui->nroImpuesto, ui->nroValuacionFiscal})
        n->setValue(0);
    ui->chkObligAccesoria->setChecked(false);
    ui->optObligAccesoria_porc->setChecked(true);
    ui->cboObligAccesoria_modo->setCurrentIndex(-1);
    limpiarPanel();
}

void frmDJ_detalle_op::cargarOperacion()
{
    limpiarImportes();
    const auto o = cargar_operacion(clave());
    if (!o)
        return;
    ley_ = o->subconcepto / 1000;
    codigoAnterior_ = o->subconcepto - ley_ * 1000;
    ui->ctlCodS->setValue(codigoAnterior_);
    cargarSubconcepto();
    recargarValores();
    leerInmuebles();
    poner(ui->nroBaseImponible, o->baseImponible);
    poner(ui->ctlBaseImponiblePesos, o->baseImponible);
    poner(ui->nroHipoteca, o->hipoteca);
    poner(ui->ctlImpuestoCalculado, o->impuestoCalculado);
    poner(ui->nroImpuesto, o->montoFinal);
    poner(ui->nroValuacionFiscal, o->valuacionFiscal);
    if (o->alicuota || o->modulos) {
        poner(ui->nroMoA, o->alicuota ? o->alicuota : o->modulos);
        ui->lblMoA->setText(o->alicuota ? u"Alícuota"_s : u"Módulos"_s);
    }
    ui->nroExencionPorc->setValue(o->porcExento.value_or(0));
    ui->nroMontoExento->setValue(o->montoExento.value_or(0));
    if (!o->obligFop.isEmpty()) {
        ui->optObligAccesoria_fijo->setChecked(o->obligFop == u"F");
        ui->optObligAccesoria_porc->setChecked(o->obligFop == u"P");
        ui->chkObligAccesoria->setChecked(true);
        poner(ui->nroObligAccesoria, o->obligValor);
        // The column holds 1 or 0, so that the first mode of that kind shows, not the one chosen.
        seleccionar_item(ui->cboObligAccesoria_modo, o->obligModo.value_or(-1));
        ui->txtObligAccesoria_poliza->setText(o->obligPoliza);
    }
    poner(ui->nroAdicionales, o->adicionales);
    poner(ui->nroPagoACuenta, o->pagoACuenta);
    ui->txtObs->setText(o->observaciones);
}

void frmDJ_detalle_op::leerInmuebles()
{
    ui->flxInm->llenar([this] {
        for (Recordset rs(cnRtn, u"select SEII_ID, SEII_PARTIDA, SEII_VAL_FISCAL  from SEL_VW_RTN_DJ_INMUEBLES "_s
                                     + clave().deRenglon().donde() + u" order by  SEII_ID"_s);
             !rs.eof(); rs.siguiente())
            ui->flxInm->agregar({rs.texto(0), rs.texto(1), importe_llano(rs.real(2))});
    });
    if (ui->flxInm->filas() == 1)
        ui->nroValuacionFiscal->setValue(numero_de_texto(ui->flxInm->celda(0, 2)));
}

void frmDJ_detalle_op::elegirInmueble(int fila)
{
    if (fila < 0)
        return;
    inmuebleVinculado_ = ui->flxInm->celda(fila, 0).toInt();
    ui->nroValuacionFiscal->setValue(numero_de_texto(ui->flxInm->celda(fila, 2)));
    ui->lblValuacionFiscal->setText((subconcepto_ ? subconcepto_->NombreValuacionFiscal : QString())
                                    + u" - Val.Fiscal: $"_s + ui->nroValuacionFiscal->toString());
    calcularBaseEImpuesto();
}

QString frmDJ_detalle_op::idMoneda() const
{
    return ui->cboMoneda->currentText().mid(POSICION_MONEDA);
}

void frmDJ_detalle_op::calcularParcial()
{
    CalcularValorParcial(subconcepto_ ? &*subconcepto_ : nullptr, idMoneda(), ui->nroValorContractual->modelo(),
                         ui->nroPorcIVA->modelo(), ui->ctlValorCambio->modelo(), ui->nroBIParcial->modelo());
}

void frmDJ_detalle_op::cambioMoneda()
{
    const bool pesos = ui->cboMoneda->currentText().left(POSICION_MONEDA).trimmed() == u"PESOS";
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
        ui->fraEditarVC->hide();
        botonesValores(true, false);
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

void frmDJ_detalle_op::guardarValor()
{
    calcularParcial();
    if (subconcepto_ && subconcepto_->RequiereValorContractual) {
        const auto falla = primera_falla({
            {ui->nroValorContractual->Value() == 0, "Ingrese el valor contractual", "nroValorContractual"},
            {ui->cboMoneda->currentIndex() < 0, "Ingrese la moneda del valor contractual", "cboMoneda"},
            {ui->ctlValorCambio->Value() == 0, "Ingrese el valor de cambio para la moneda seleccionada",
             "ctlValorCambio"},
        });
        if (falla) {
            ui->SSTab1->setCurrentIndex(SOLAPA_BASE);
            mostrarFalla(*falla);
            return;
        }
    }
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
    ui->fraEditarVC->hide();
    botonesValores(true, false);
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
    ui->flxVC->llenar(
        [&] { total = leer_valores(clave(), [this](const QStringList& fila) { ui->flxVC->agregar(fila); }); });
    ui->nroTotalVC->setValue(total);
    botonesValores(ui->tlbBI->habilitada(u"nuevo"_s), ui->tlbBI->habilitada(u"guardar"_s));
}
