// SPDX-License-Identifier: GPL-3.0-or-later

#include "recorrido/pasos_catalogo.h"

#include "manejo/manejo.h"
#include "recorrido/guia.h"
#include "widgets/formulario.h"

#include <QApplication>

using namespace Qt::StringLiterals;

using namespace manejo;

namespace {

void buscar(QWidget* catalogo, const QString& texto)
{
    elegir(catalogo, u"cboCriterioSubcon"_s, u"Contiene el texto"_s);
    escribir(catalogo, u"txtSubconcepto"_s, texto);
    pulsar(catalogo, u"toolbar"_s, u"buscar"_s);
}

void cabecera(Guia& g, QWidget* f)
{
    comprobar(u"código"_s, texto(f, u"nroCodigo"_s), u"5707051"_s);
    Cajas::durante({{u"Ingrese la descripción del subconcepto"_s, f->windowTitle()}},
                   [&] { pulsar(f, u"toolbar"_s, u"aceptar"_s); });
    escribir(f, u"txtDescripcion"_s, u"cesión de marcas y patentes"_s);
    Cajas::durante({{u"Seleccione el concepto"_s, f->windowTitle()}}, [&] { pulsar(f, u"toolbar"_s, u"aceptar"_s); });
    elegir(f, u"cboConcepto"_s, u"8 - Cesiones"_s);
    clic(f, u"cmd"_s);
    g.foto(u"subconcepto-tipos"_s);
    clic(f, u"cmd"_s);
    elegir(f, u"ctlTipoCalculo"_s, u"VARIABLE"_s);
    clic(f, u"chkCUIT_EnTramite"_s);
    g.foto(u"subconcepto-general"_s);
}

void base(Guia& g, QWidget* f)
{
    solapa(f, u"SSTab1"_s, 1);
    clic(f, u"chkBaseImponible"_s);
    clic(f, u"cmdElegirTCBI"_s);
    auto* tipos = formulario("frmTiposCalculoBI");
    celda(tipos, u"grillaTCBI"_s, 2, 1);
    g.foto(u"tipos-de-calculo"_s);
    pulsar(tipos, u"tlbTCBI"_s, u"seleccionar"_s);
    comprobar(u"tipo de la base"_s, texto(f, u"txtTipoCalculoBI"_s), u"Valor contractual"_s);
    escribir(f, u"nroPorcValorContractual"_s, u"1"_s);
    clic(f, u"chkObligAccesoria"_s);
    clic(f, u"optObligAccesoria_porc"_s);
    clic(f, u"cmdObligAccesoria_suma"_s);
    auto* mascara = formulario("frmCrearMascara");
    for (const int abajo : {0, 1}) {
        for (int i = 0; i < abajo; ++i)
            tecla(mascara, u"lstElem"_s, Qt::Key_Down);
        tecla(mascara, u"lstElem"_s, Qt::Key_Space);
    }
    comprobar(u"máscara"_s, texto(mascara, u"txtMascara"_s), u"3"_s);
    g.foto(u"mascara"_s);
    pulsar(mascara, u"tlb"_s, u"aceptar"_s);
    comprobar(u"máscara de la obligación"_s, texto(f, u"txtObligAccesoria_suma"_s), u"3"_s);
    g.foto(u"subconcepto-base"_s);
    pulsar(f, u"toolbar"_s, u"aceptar"_s);
}

void rango(Guia& g, QWidget* f, const char* desde, const char* hasta, const char* dividendo, const char* divisor)
{
    pulsar(f, u"tlbAlicuotas"_s, u"alta"_s);
    auto* r = formulario("frmEditarAlicuota");
    escribir(r, u"nroDesde"_s, QString::fromUtf8(desde));
    if (hasta) {
        clic(r, u"chkValorHasta"_s);
        escribir(r, u"nroHasta"_s, QString::fromUtf8(hasta));
    }
    escribir(r, u"nroDividendo"_s, QString::fromUtf8(dividendo));
    escribir(r, u"nroDivisor"_s, QString::fromUtf8(divisor));
    g.foto(u"alicuota"_s);
    tecla(r, u"nroAlicuota"_s, Qt::Key_Return);
    QApplication::processEvents();
}

void rol(Guia& g, QWidget* f, const char* descripcion, bool obligado)
{
    pulsar(f, u"tlbRoles"_s, u"alta"_s);
    auto* r = formulario("frmEditarRol");
    escribir(r, u"txtDescripcion"_s, QString::fromUtf8(descripcion));
    if (obligado)
        clic(r, u"chkParticipaImpuesto"_s);
    g.foto(u"rol"_s);
    pulsar(r, u"toolbar"_s, u"aceptar"_s);
}

// The number of modules of an item with a fixed tax, looked at and left as it is.
void modulos(Guia& g, QWidget* catalogo)
{
    buscar(catalogo, u"poder general"_s);
    celda(catalogo, u"grilla"_s, 0, 1);
    pulsar(catalogo, u"toolbar"_s, u"modificar"_s);
    auto* f = formulario("frmEditarSubconceptoSellos");
    pulsar(f, u"toolbar"_s, u"editar"_s);
    solapa(f, u"SSTab1"_s, 2);
    celda(f, u"grillaModulos"_s, 0, 0);
    pulsar(f, u"tlbModulos"_s, u"modificar"_s);
    g.foto(u"modulos"_s);
    pulsar(formulario("frmEditarModulo"), u"toolbar"_s, u"cancelar"_s);
    pulsar(f, u"toolbar"_s, u"cancelar"_s);
    pulsar(f, u"toolbar"_s, u"salir"_s);
}

}  // namespace

void nuevo_subconcepto(Guia& g, QWidget* operacion)
{
    clic(operacion, u"cmdBuscarSubcon"_s);
    auto* catalogo = formulario("frmSubconceptos");
    buscar(catalogo, u"cesion"_s);
    g.foto(u"catalogo"_s);
    pulsar(catalogo, u"toolbar"_s, u"nuevo"_s);
    auto* f = formulario("frmEditarSubconceptoSellos");
    cabecera(g, f);
    base(g, f);
    pulsar(f, u"toolbar"_s, u"editar"_s);
    solapa(f, u"SSTab1"_s, 2);
    rango(g, f, "0", "1000000", "5", "1000");
    rango(g, f, "1000000", nullptr, "1", "100");
    comprobar(u"rangos"_s, QString::number(filas(f, u"grillaAlicuotas"_s)), u"2"_s);
    g.foto(u"subconcepto-alicuotas"_s);
    solapa(f, u"SSTab1"_s, 3);
    rol(g, f, "cedente", true);
    rol(g, f, "cesionario", false);
    comprobar(u"roles"_s, QString::number(filas(f, u"grillaRoles"_s)), u"2"_s);
    g.foto(u"subconcepto-roles"_s);
    pulsar(f, u"toolbar"_s, u"aceptar"_s);
    pulsar(f, u"toolbar"_s, u"salir"_s);
    modulos(g, catalogo);
    buscar(catalogo, u"patentes"_s);
    comprobar(u"hallados"_s, texto(catalogo, u"lblResultado"_s), u"1 registro"_s);
    tecla(catalogo, u"grilla"_s, Qt::Key_Return);
    QApplication::processEvents();
    comprobar(u"subconcepto elegido"_s, texto(operacion, u"txtSubconcepto"_s), u"CESIÓN DE MARCAS Y PATENTES"_s);
}

void parte_anterior(Guia& g, QWidget* parte)
{
    pulsar(parte, u"tlb"_s, u"buscar"_s);
    auto* f = formulario("frmDJ_buscar_parte");
    elegir(f, u"cboCriterioRazonSocial"_s, u"Contiene el texto"_s);
    teclear(f, u"txtRazonSocial"_s, u"rosa, sosa"_s);
    tecla(f, u"txtRazonSocial"_s, Qt::Key_Return);
    g.foto(u"buscar-parte"_s);
    celda(f, u"flx"_s, 0, 3);
    tecla(f, u"flx"_s, Qt::Key_Return);
    QApplication::processEvents();
}
