// SPDX-License-Identifier: GPL-3.0-or-later
// The tab of the deposit slips.

#include "core/almacen.h"
#include "declarations/screens/frmDJ_editar.h"
#include "payment/boletas.h"
#include "printing/datos_boleta.h"
#include "printing/screens/frmReportes.h"
#include "ui_frmDJ_editar.h"
#include "widgets/ctlComunes.h"
#include "widgets/ctlEspera.h"

using namespace Qt::StringLiterals;

void frmDJ_editar::conectarBoletas()
{
    atender(ui->tlbB, &BarraHerramientas::pulsada, &frmDJ_editar::tlbB_pulsada);
    ui->flxB->setBarra(ui->tlbB);
    atender(ui->flxB, &Grilla::elegida, [this] { ui->tlbB->pulsar(u"imprimir"_s); });
    for (ctlNumero* n : {ui->nroImpuesto, ui->nroInteres})
        atender(n, &ctlNumero::cambiado, &frmDJ_editar::sumarDeposito);
    for (ctlNumero* n : {ui->nroEfectivo, ui->nroCheque1_monto, ui->nroCheque2_monto})
        atender(n, &ctlNumero::cambiado, &frmDJ_editar::sumarBoleta);
    habilitar_botones_boleta();
}

namespace {

// What can't be read is told when it is used, not at each key.
bool legibles(std::initializer_list<const ctlNumero*> campos)
{
    return std::all_of(campos.begin(), campos.end(), [](const ctlNumero* n) { return n->modelo().legible(); });
}

}  // namespace

void frmDJ_editar::sumarDeposito()
{
    if (!legibles({ui->nroImpuesto, ui->nroInteres}))
        return;
    ui->nroBOL_Total_depositar->setValue(ui->nroImpuesto->Value() + ui->nroInteres->Value());
}

void frmDJ_editar::sumarBoleta()
{
    if (!legibles({ui->nroEfectivo, ui->nroCheque1_monto, ui->nroCheque2_monto}))
        return;
    ui->nroTotalBoleta->setValue(ui->nroCheque1_monto->Value() + ui->nroCheque2_monto->Value()
                                 + ui->nroEfectivo->Value());
}

void frmDJ_editar::alDescargar()
{
    puntero_normal();
}

void frmDJ_editar::devolverBoletas()
{
    ui->tlbB->setEnabled(true);
}

void frmDJ_editar::cargar_boletas()
{
    ui->flxB->llenar(
        [this] { leer_boletas(ui->txtNroDJ->text(), [this](const QStringList& fila) { ui->flxB->agregar(fila); }); });
    habilitar_botones_boleta();
}

void frmDJ_editar::habilitar_botones_boleta()
{
    for (const char* clave : {"borrar", "imprimir"})
        ui->tlbB->habilitar(QLatin1String(clave), ui->flxB->filas() > 0);
}

std::array<std::pair<QString*, QLineEdit*>, 4> frmDJ_editar::textos_cheques(ControlesBoleta& c) const
{
    return {{{&c.cheques[0].nro, ui->txtCheque1_nro},
             {&c.cheques[0].banco, ui->txtCheque1_banco},
             {&c.cheques[1].nro, ui->txtCheque2_nro},
             {&c.cheques[1].banco, ui->txtCheque2_banco}}};
}

ControlesBoleta frmDJ_editar::leer_boleta_de_pantalla() const
{
    ControlesBoleta c;
    c.dj = ui->txtNroDJ->text();
    c.agenteNro = ui->txtRTN_nro->text();
    c.agenteNombre = ui->cboRTN->currentText();
    c.anio = ui->txtAnio->text();
    c.mes = elegido(ui->cboMes).value_or(0);
    c.secuencia = elegido(ui->cboRectificativa).value_or(0);
    c.emision = ui->dtpBOL_emision->date();
    c.vencimiento = ui->dtpBOL_venc->date();
    const std::pair<Numero*, ctlNumero*> numeros[] = {{&c.impuesto, ui->nroImpuesto},
                                                      {&c.interes, ui->nroInteres},
                                                      {&c.totalDepositar, ui->nroBOL_Total_depositar},
                                                      {&c.efectivo, ui->nroEfectivo},
                                                      {&c.cheques[0].monto, ui->nroCheque1_monto},
                                                      {&c.cheques[1].monto, ui->nroCheque2_monto},
                                                      {&c.totalBoleta, ui->nroTotalBoleta}};
    for (const auto& [numero, campo] : numeros)
        numero->copiarTexto(campo->modelo());
    for (const auto& [texto, campo] : textos_cheques(c))
        *texto = campo->text();
    c.filial = ui->txtFilialBanco->text();
    return c;
}

// A refused check deliberately leaves the toolbar disabled and the pointer an hourglass, until the
// report window gives them back or the editor closes.
void frmDJ_editar::generar_boleta()
{
    sumarBoleta();
    ControlesBoleta c = leer_boleta_de_pantalla();
    for (const Numero* n : {&c.impuesto, &c.interes, &c.efectivo, &c.cheques[0].monto, &c.cheques[1].monto})
        if (!n->legible())
            throw ErrorConversion();
    ui->tlbB->setEnabled(false);
    puntero_de_espera();
    const auto falla = validar_boleta(c);
    for (const auto& [texto, campo] : textos_cheques(c))
        campo->setText(*texto);
    if (falla) {
        mostrarFalla(*falla);
        return;
    }
    QString nro;
    try {
        nro = insertar_boleta(c);
    } catch (...) {
        devolverBoletas();
        puntero_normal();
        throw;
    }
    cargar_boletas();
    imprimir_boleta(nro);
    habilitar_botones_boleta();
}

void frmDJ_editar::imprimir_boleta(const QString& nro)
{
    QList<BoletaImpresa> boletas;
    try {
        boletas = leer_boleta(nro);
    } catch (const ErrorAlmacen&) {
        // Nothing is told: the slip is stored, and may be printed again.
    }
    if (boletas.isEmpty()) {
        devolverBoletas();
        puntero_normal();
        return;
    }
    auto* reporte = cargar<frmReportes>();
    connect(reporte, &frmReportes::cerrado, this, &frmDJ_editar::devolverBoletas, Qt::UniqueConnection);
    reporte->BolDep(boletas);
    abrir(reporte);
}

void frmDJ_editar::tlbB_pulsada(const QString& clave)
{
    if (clave == u"generar") {
        generar_boleta();
        return;
    }
    const QString nro = ui->flxB->clave();
    if (nro.isEmpty())
        return;
    if (clave == u"imprimir") {
        imprimir_boleta(nro);
        return;
    }
    const QString titulo = u"Borrar boleta"_s;
    if (!preguntar(u"¿Esta seguro de borrar la boleta seleccionada?"_s, titulo))
        return;
    if (borrar_boleta(nro) == 0)
        avisar(u"No se pudo borrar la boleta seleccionada"_s, titulo);
    else
        cargar_boletas();
}
