// SPDX-License-Identifier: GPL-3.0-or-later
// The lower part of the deed's screen: parties, real estate and operations.

#include "deeds/screens/frmDJ_detalle.h"

#include "computation/screens/frmDJ_detalle_op.h"
#include "core/modGlobales.h"
#include "deeds/hijos_escritura.h"
#include "deeds/screens/frmDJ_editar_inmueble.h"
#include "parties/screens/frmDJ_detalle_parte.h"
#include "payment/comprobantes.h"
#include "printing/screens/frmReportes.h"
#include "ui_frmDJ_detalle.h"
#include "widgets/ctlEspera.h"
#include "widgets/mensajes.h"

using namespace Qt::StringLiterals;

// A failed read is told, and the grid stays with what it took until then.
void frmDJ_detalle::cargar_lista(BarraHerramientas* barra, Grilla* grilla, const char* que,
                                 const std::function<void(const AgregarFila&)>& leer)
{
    try {
        grilla->llenar([&] { leer([grilla](const QStringList& fila) { grilla->agregar(fila); }); });
    } catch (const ErrorAlmacen& e) {
        avisar(e.descripcion, u"%1 - Buscar %2"_s.arg(windowTitle(), QLatin1StringView(que)), Icono::informacion,
               e.motor);
    }
    habilitar_tlb(barra, grilla);
}

void frmDJ_detalle::cargar_partes()
{
    cargar_lista(ui->tlbPartes, ui->flxPartes, "partes",
                 [this](const AgregarFila& fila) { leer_partes(renglon(), fila); });
}

void frmDJ_detalle::cargar_inmuebles()
{
    cargar_lista(ui->tlbInm, ui->flxInm, "inmuebles",
                 [this](const AgregarFila& fila) { leer_inmuebles(renglon(), fila); });
}

void frmDJ_detalle::cargar_operaciones()
{
    ui->nroTotalImpuesto->setValue(0);
    cargar_lista(ui->tlbOp, ui->flxOp, "operaciones", [this](const AgregarFila& fila) {
        ui->nroTotalImpuesto->setValue(leer_operaciones(renglon(), fila));
    });
    habilitar_botones_edicion(ui->tlbDetalle->habilitada(u"aceptar"_s));
}

void frmDJ_detalle::borrar_hijos_escritura()
{
    const auto borrar_cada_una = [](const Grilla* grilla, const auto& borrar) {
        for (int i = 0; i < grilla->filas(); ++i)
            borrar(grilla->celda(i, 0));
    };
    DialogoPantalla dialogo(this);
    // The shown total stays the same through the loop: each operation takes all of it off.
    const QString total = ui->nroTotalImpuesto->toSQL();
    borrar_cada_una(ui->flxOp, [&](const QString& id) { borrar_operacion(renglon(), id, total, dialogo); });
    cargar_operaciones();
    borrar_cada_una(ui->flxPartes, [this](const QString& id) { borrar_parte(renglon(), id); });
    cargar_partes();
    borrar_cada_una(ui->flxInm, [this](const QString& id) { borrar_inmueble(renglon(), id); });
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

template <class Hijo>
void frmDJ_detalle::abrirHijo(Modo operacion, const Grilla* grilla)
{
    auto* hijo = cargar<Hijo>();
    hijo->fijarRenglon(ui->txtDJ_nro->text(), ui->txtRenglonDJ->text());
    hijo->Inicializar(operacion, operacion == Modo::nuevo ? 0 : grilla->clave().toInt());
    abrir(hijo);
}

void frmDJ_detalle::abrirParte(Modo operacion)
{
    abrirHijo<frmDJ_detalle_parte>(operacion, ui->flxPartes);
}

void frmDJ_detalle::abrirInmueble(Modo operacion)
{
    abrirHijo<frmDJ_editar_inmueble>(operacion, ui->flxInm);
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

void frmDJ_detalle::atender_lista(const QString& clave, const Grilla* grilla, void (frmDJ_detalle::*abrirUna)(Modo),
                                  const Mensaje& pregunta, const std::function<void(const QString&)>& borrar)
{
    if (clave == u"agregar")
        (this->*abrirUna)(Modo::nuevo);
    else if (grilla->filaActual() < 0)
        return;
    else if (clave == u"editar")
        (this->*abrirUna)(Modo::modificar);
    else if (preguntar(pregunta.texto, pregunta.titulo))
        borrar(grilla->clave());
}

void frmDJ_detalle::tlbPartes_pulsada(const QString& clave)
{
    atender_lista(clave, ui->flxPartes, &frmDJ_detalle::abrirParte,
                  {u"¿Está seguro que desea quitar la parte seleccionada?"_s, u"Quitar parte"_s},
                  [this](const QString& id) {
                      borrar_parte(renglon(), id);
                      cargar_partes();
                  });
}

void frmDJ_detalle::tlbInm_pulsada(const QString& clave)
{
    atender_lista(clave, ui->flxInm, &frmDJ_detalle::abrirInmueble,
                  {u"¿Esta seguro de borrar el inmueble seleccionado?"_s, u"Borrar inmueble"_s},
                  [this](const QString& id) {
                      borrar_inmueble(renglon(), id);
                      cargar_inmuebles();
                  });
}

void frmDJ_detalle::tlbOp_pulsada(const QString& clave)
{
    atender_lista(clave, ui->flxOp, &frmDJ_detalle::abrirOperacion,
                  {u"¿Está seguro que desea borrar la operación seleccionada?"_s, u"Borrar operación"_s},
                  [this](const QString& id) {
                      DialogoPantalla dialogo(this);
                      borrar_operacion(renglon(), id, ui->nroTotalImpuesto->toSQL(), dialogo);
                      cargar_operaciones();
                  });
}
