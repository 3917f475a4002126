// SPDX-License-Identifier: GPL-3.0-or-later
// The lower part of the deed's screen: parties, real estate and operations.

#include "deeds/screens/frmDJ_detalle.h"

#include "computation/screens/frmDJ_detalle_op.h"
#include "widgets/ctlEspera.h"
#include "widgets/mensajes.h"
#include "core/modGlobales.h"
#include "parties/screens/frmDJ_detalle_parte.h"
#include "deeds/screens/frmDJ_editar_inmueble.h"
#include "deeds/hijos_escritura.h"
#include "payment/comprobantes.h"
#include "printing/screens/frmReportes.h"
#include "ui_frmDJ_detalle.h"

using namespace Qt::StringLiterals;

namespace {

// A failed read is told, and the grid stays with what it took until then.
template <class F>
void leer_en(Grilla* grilla, F leer, const std::function<void(const QString&)>& contar)
{
    try {
        grilla->llenar([&] { leer([grilla](const QStringList& fila) { grilla->agregar(fila); }); });
    } catch (const ErrorAlmacen& e) {
        contar(e.descripcion);
    }
}

}  // namespace

void frmDJ_detalle::cargar_partes()
{
    leer_en(
        ui->flxPartes, [this](const AgregarFila& fila) { leer_partes(renglon(), fila); },
        [this](const QString& error) { avisar(error, windowTitle() + u" - Buscar partes"_s); });
    habilitar_tlb(ui->tlbPartes, ui->flxPartes);
}

void frmDJ_detalle::cargar_inmuebles()
{
    leer_en(
        ui->flxInm, [this](const AgregarFila& fila) { leer_inmuebles(renglon(), fila); },
        [this](const QString& error) { avisar(error, windowTitle() + u" - Buscar inmuebles"_s); });
    habilitar_tlb(ui->tlbInm, ui->flxInm);
}

void frmDJ_detalle::cargar_operaciones()
{
    ui->nroTotalImpuesto->setValue(0);
    leer_en(
        ui->flxOp,
        [this](const AgregarFila& fila) { ui->nroTotalImpuesto->setValue(leer_operaciones(renglon(), fila)); },
        [this](const QString& error) { avisar(error, windowTitle() + u" - Buscar operaciones"_s); });
    habilitar_tlb(ui->tlbOp, ui->flxOp);
}

void frmDJ_detalle::habilitar_tlb(BarraHerramientas* barra, Grilla* grilla)
{
    for (const char* clave : {"quitar", "editar"})
        barra->habilitar(QLatin1String(clave), grilla->filas() > 0 && alcanzado());
}

void frmDJ_detalle::borrar_hijos_escritura()
{
    DialogoPantalla dialogo(this);
    // The shown total stays the same through the loop: each operation takes all of it off.
    const QString total = ui->nroTotalImpuesto->toSQL();
    for (int i = 0; i < ui->flxOp->filas(); ++i)
        borrar_operacion(renglon(), ui->flxOp->celda(i, 0), total, dialogo);
    cargar_operaciones();
    for (int i = 0; i < ui->flxPartes->filas(); ++i)
        borrar_parte(renglon(), ui->flxPartes->celda(i, 0));
    cargar_partes();
    for (int i = 0; i < ui->flxInm->filas(); ++i)
        borrar_inmueble(renglon(), ui->flxInm->celda(i, 0));
    cargar_inmuebles();
}

void frmDJ_detalle::emitir_recibo()
{
    const QString titulo = u"Emitir comprobante de retención"_s;
    const QString incompleta = u"\nEscritura incompleta: No se puede emitir el comprobante de retención."_s;
    const auto falta = [&](const char* que, int solapa) {
        avisar(QString::fromUtf8(que) + incompleta, titulo);
        ui->SSTab1->setCurrentIndex(solapa);
        puntero_normal();
    };
    if (ui->flxOp->filas() == 0) {
        falta("Ingrese la operación de la escritura", 1);
        return;
    }
    if (ui->flxPartes->filas() == 0) {
        falta("Ingrese las partes intervinientes de la escritura", 0);
        return;
    }
    const QString dj = ui->txtDJ_nro->text();
    const QString posicion = ui->txtPosicion->text();
    QString nro;
    try {
        nro = proximo_comprobante(dj);
    } catch (const ErrorAlmacen&) {
        return;  // nothing is written, and nothing is told
    }
    emitir_comprobante(nro, {dj, ui->txtRenglonDJ->text(), ui->nroTotalImpuesto->toSQL(),
                             QDate(posicion.left(4).toInt(), posicion.mid(5, 2).toInt(), int(ui->nroDia->Value())),
                             dj_.agente});
    auto* reporte = cargar<frmReportes>();
    connect(reporte, &frmReportes::cerrado, this, &frmDJ_detalle::reporteCerrado, Qt::UniqueConnection);
    reporte->recibo(nro, dj);
    abrir(reporte);
}

void frmDJ_detalle::abrirParte(Modo operacion)
{
    auto* hijo = cargar<frmDJ_detalle_parte>();
    hijo->fijarRenglon(ui->txtDJ_nro->text(), ui->txtRenglonDJ->text());
    hijo->Inicializar(operacion, operacion == Modo::nuevo ? 0 : ui->flxPartes->clave().toInt());
    abrir(hijo);
}

void frmDJ_detalle::abrirInmueble(Modo operacion)
{
    auto* hijo = cargar<frmDJ_editar_inmueble>();
    hijo->fijarRenglon(ui->txtDJ_nro->text(), ui->txtRenglonDJ->text());
    hijo->Inicializar(operacion, operacion == Modo::nuevo ? 0 : ui->flxInm->clave().toInt());
    abrir(hijo);
}

void frmDJ_detalle::abrirOperacion(Modo operacion)
{
    auto* hijo = cargar<frmDJ_detalle_op>();
    connect(hijo, &frmDJ_detalle_op::totalesGuardados, this, &frmDJ_detalle::mostrarTotales, Qt::UniqueConnection);
    hijo->fijarRenglon(ui->txtDJ_nro->text(), ui->txtRenglonDJ->text(), ui->nroDia->toString(),
                       ui->txtPosicion->text());
    hijo->Iniciar(operacion, operacion == Modo::nuevo ? -1 : ui->flxOp->clave().toInt());
    abrir(hijo);
}

void frmDJ_detalle::mostrarTotales(double renglon, double dj)
{
    ui->nroTotalImpuesto->setValue(renglon);
    emit totalDJ(dj);
}

void frmDJ_detalle::tlbPartes_pulsada(const QString& clave)
{
    if (clave == u"agregar")
        abrirParte(Modo::nuevo);
    else if (ui->flxPartes->filaActual() < 0)
        return;
    else if (clave == u"editar")
        abrirParte(Modo::modificar);
    else if (preguntar(u"¿Está seguro que desea quitar la parte seleccionada?"_s, u"Quitar parte"_s)) {
        borrar_parte(renglon(), ui->flxPartes->clave());
        cargar_partes();
    }
}

void frmDJ_detalle::tlbInm_pulsada(const QString& clave)
{
    if (clave == u"agregar")
        abrirInmueble(Modo::nuevo);
    else if (ui->flxInm->filaActual() < 0)
        return;
    else if (clave == u"editar")
        abrirInmueble(Modo::modificar);
    else if (preguntar(u"¿Esta seguro de borrar el inmueble seleccionado?"_s, u"Borrar inmueble"_s)) {
        borrar_inmueble(renglon(), ui->flxInm->clave());
        cargar_inmuebles();
    }
}

void frmDJ_detalle::tlbOp_pulsada(const QString& clave)
{
    if (clave == u"agregar")
        abrirOperacion(Modo::nuevo);
    else if (ui->flxOp->filaActual() < 0)
        return;
    else if (clave == u"editar")
        abrirOperacion(Modo::modificar);
    else if (preguntar(u"¿Está seguro que desea borrar la operación seleccionada?"_s, u"Borrar operación"_s)) {
        DialogoPantalla dialogo(this);
        borrar_operacion(renglon(), ui->flxOp->clave(), ui->nroTotalImpuesto->toSQL(), dialogo);
        cargar_operaciones();
    }
}
