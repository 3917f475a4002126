// SPDX-License-Identifier: GPL-3.0-or-later

#include "recorrido/pasos_catalogo.h"

#include "widgets/formulario.h"
#include "manejo/manejo.h"
#include "recorrido/guia.h"

#include <QApplication>

using namespace manejo;

namespace {

QString u(const char* texto)
{
    return QString::fromUtf8(texto);
}

void buscar(QWidget* catalogo, const QString& texto)
{
    elegir(catalogo, u("cboCriterioSubcon"), u("Contiene el texto"));
    escribir(catalogo, u("txtSubconcepto"), texto);
    pulsar(catalogo, u("toolbar"), u("buscar"));
}

void cabecera(Guia& g, QWidget* f)
{
    comprobar(u("código"), texto(f, u("nroCodigo")), u("5707051"));
    Cajas::durante({{u("Ingrese la descripción del subconcepto"), f->windowTitle()}},
                   [&] { pulsar(f, u("toolbar"), u("aceptar")); });
    escribir(f, u("txtDescripcion"), u("cesión de marcas y patentes"));
    Cajas::durante({{u("Seleccione el concepto"), f->windowTitle()}}, [&] { pulsar(f, u("toolbar"), u("aceptar")); });
    elegir(f, u("cboConcepto"), u("8 - Cesiones"));
    clic(f, u("cmd"));
    g.foto(u("subconcepto-tipos"));
    clic(f, u("cmd"));
    elegir(f, u("ctlTipoCalculo"), u("VARIABLE"));
    clic(f, u("chkCUIT_EnTramite"));
    g.foto(u("subconcepto-general"));
}

void base(Guia& g, QWidget* f)
{
    solapa(f, u("SSTab1"), 1);
    clic(f, u("chkBaseImponible"));
    clic(f, u("cmdElegirTCBI"));
    auto* tipos = formulario("frmTiposCalculoBI");
    celda(tipos, u("grillaTCBI"), 2, 1);
    g.foto(u("tipos-de-calculo"));
    pulsar(tipos, u("tlbTCBI"), u("seleccionar"));
    comprobar(u("tipo de la base"), texto(f, u("txtTipoCalculoBI")), u("Valor contractual"));
    escribir(f, u("nroPorcValorContractual"), u("1"));
    clic(f, u("chkObligAccesoria"));
    clic(f, u("optObligAccesoria_porc"));
    clic(f, u("cmdObligAccesoria_suma"));
    auto* mascara = formulario("frmCrearMascara");
    for (const int abajo : {0, 1}) {
        for (int i = 0; i < abajo; ++i)
            tecla(mascara, u("lstElem"), Qt::Key_Down);
        tecla(mascara, u("lstElem"), Qt::Key_Space);
    }
    comprobar(u("máscara"), texto(mascara, u("txtMascara")), u("3"));
    g.foto(u("mascara"));
    pulsar(mascara, u("tlb"), u("aceptar"));
    comprobar(u("máscara de la obligación"), texto(f, u("txtObligAccesoria_suma")), u("3"));
    g.foto(u("subconcepto-base"));
    pulsar(f, u("toolbar"), u("aceptar"));
}

void rango(Guia& g, QWidget* f, const char* desde, const char* hasta, const char* dividendo, const char* divisor)
{
    pulsar(f, u("tlbAlicuotas"), u("alta"));
    auto* r = formulario("frmEditarAlicuota");
    escribir(r, u("nroDesde"), u(desde));
    if (hasta) {
        clic(r, u("chkValorHasta"));
        escribir(r, u("nroHasta"), u(hasta));
    }
    escribir(r, u("nroDividendo"), u(dividendo));
    escribir(r, u("nroDivisor"), u(divisor));
    g.foto(u("alicuota"));
    tecla(r, u("nroAlicuota"), Qt::Key_Return);
    QApplication::processEvents();
}

void rol(Guia& g, QWidget* f, const char* descripcion, bool obligado)
{
    pulsar(f, u("tlbRoles"), u("alta"));
    auto* r = formulario("frmEditarRol");
    escribir(r, u("txtDescripcion"), u(descripcion));
    if (obligado)
        clic(r, u("chkParticipaImpuesto"));
    g.foto(u("rol"));
    pulsar(r, u("toolbar"), u("aceptar"));
}

}  // namespace

void nuevo_subconcepto(Guia& g, QWidget* operacion)
{
    clic(operacion, u("cmdBuscarSubcon"));
    auto* catalogo = formulario("frmSubconceptos");
    buscar(catalogo, u("cesion"));
    g.foto(u("catalogo"));
    pulsar(catalogo, u("toolbar"), u("nuevo"));
    auto* f = formulario("frmEditarSubconceptoSellos");
    cabecera(g, f);
    base(g, f);
    pulsar(f, u("toolbar"), u("editar"));
    solapa(f, u("SSTab1"), 2);
    rango(g, f, "0", "1000000", "5", "1000");
    rango(g, f, "1000000", nullptr, "1", "100");
    comprobar(u("rangos"), QString::number(filas(f, u("grillaAlicuotas"))), u("2"));
    g.foto(u("subconcepto-alicuotas"));
    solapa(f, u("SSTab1"), 3);
    rol(g, f, "cedente", true);
    rol(g, f, "cesionario", false);
    comprobar(u("roles"), QString::number(filas(f, u("grillaRoles"))), u("2"));
    g.foto(u("subconcepto-roles"));
    pulsar(f, u("toolbar"), u("aceptar"));
    pulsar(f, u("toolbar"), u("salir"));
    buscar(catalogo, u("patentes"));
    comprobar(u("hallados"), texto(catalogo, u("lblResultado")), u("1 registro"));
    tecla(catalogo, u("grilla"), Qt::Key_Return);
    QApplication::processEvents();
    comprobar(u("subconcepto elegido"), texto(operacion, u("txtSubconcepto")), u("CESIÓN DE MARCAS Y PATENTES"));
}

void parte_anterior(Guia& g, QWidget* parte)
{
    pulsar(parte, u("tlb"), u("buscar"));
    auto* f = formulario("frmDJ_buscar_parte");
    elegir(f, u("cboCriterioRazonSocial"), u("Contiene el texto"));
    teclear(f, u("txtRazonSocial"), u("rosa, sosa"));
    tecla(f, u("txtRazonSocial"), Qt::Key_Return);
    g.foto(u("buscar-parte"));
    celda(f, u("flx"), 0, 3);
    tecla(f, u("flx"), Qt::Key_Return);
    QApplication::processEvents();
}
