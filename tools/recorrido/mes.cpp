// SPDX-License-Identifier: GPL-3.0-or-later
// The road of the month, but for its deeds.

#include "recorrido/mes.h"

#include "application/screens/MDIPrincipal.h"
#include "widgets/formulario.h"

#include <QAction>
#include <QApplication>
#include <QTest>

using namespace Qt::StringLiterals;

using namespace manejo;

void Mes::correr()
{
    g_.foto(u"inicio"_s);
    agentes();
    nuevaDJ();
    escrituras();
    lista();
    emitir(u"30712345671261000"_s, u"emision"_s);
    rectificar();
    acercaDe();
}

void Mes::manual(QWidget* f)
{
    g_.paso(u"El manual, en la página del formulario"_s, [&] {
        auto* campo = f->focusWidget();
        QTest::keyClick(campo, Qt::Key_F1);
        g_.foto(u"manual"_s);
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->inherits("frmManual"))
                QTest::keyClick(w, Qt::Key_Escape);
        principal_.activateWindow();
        if (f->focusWidget() != campo)
            throw Inesperado(u"el manual dejó el campo "_s + campo->objectName());
    });
}

void Mes::acercaDe()
{
    g_.paso(u"Acerca de"_s, [&] {
        menu("smAcercaDe");
        g_.foto(u"acerca"_s);
        clic(formulario("frmAcercaDe"), u"cmdAceptar"_s);
    });
}

void Mes::menu(const char* nombre)
{
    auto* accion = principal_.findChild<QAction*>(QLatin1String(nombre));
    if (!accion || !accion->isEnabled())
        throw Inesperado(u"el menú no ofrece "_s + QLatin1String(nombre));
    accion->trigger();
    QApplication::processEvents();
}

void Mes::agentes()
{
    g_.paso(u"Registro de agentes"_s, [&] {
        menu("ssmRTN");
        g_.foto(u"agentes"_s);
        pulsar(formulario("frmRTN_buscar"), u"tlbRTN"_s, u"alta"_s);
    });
    g_.paso(u"Un agente con un CUIT que no vale"_s, [&] {
        auto* f = formulario("frmRTN_editar");
        escribir(f, u"nroRegNotarial"_s, u"45"_s);
        escribir(f, u"txtTitular"_s, u"solís ñandú carmen"_s);
        escribir(f, u"txtCUIT"_s, u"30-71234567-0"_s);
        Cajas::durante({{u"El CUIT del titular no es válido"_s, f->windowTitle()}},
                       [&] { pulsar(f, u"tlb"_s, u"aceptar"_s); });
    });
    g_.paso(u"El agente, bien; el segundo adscripto pasa al primer lugar"_s, [&] {
        auto* f = formulario("frmRTN_editar");
        comprobar(u"titular"_s, texto(f, u"txtTitular"_s), u"SOLÍS ÑANDÚ CARMEN"_s);
        escribir(f, u"txtCUIT"_s, u"30-71234567-1"_s);
        escribir(f, u"txtDomicilio"_s, u"av. del valle 1200"_s);
        elegir(f, u"cboLocalidad"_s, u"LOS ÑANDUES"_s);
        escribir(f, u"txtCodPostal"_s, u"9512"_s);
        escribir(f, u"txtAdscripto2_nombre"_s, u"peña luz"_s);
        escribir(f, u"txtAdscripto2_cuit"_s, u"27-30123456-8"_s);
        g_.foto(u"agente"_s);
        pulsar(f, u"tlb"_s, u"aceptar"_s);
        auto* lista = formulario("frmRTN_buscar");
        comprobar(u"agentes"_s, QString::number(filas(lista, u"flxRTN"_s)), u"4"_s);
        pulsar(lista, u"tlbRTN"_s, u"salir"_s);
    });
}

void Mes::nuevaDJ()
{
    g_.paso(u"Declaraciones juradas"_s, [&] {
        menu("ssmDJ");
        auto* f = formulario("frmDJ_buscar");
        escribir(f, u"nroAnio"_s, u"2026"_s);
        g_.foto(u"declaraciones"_s);
        pulsar(f, u"tlbDJ"_s, u"nueva"_s);
    });
    g_.paso(u"La DJ de octubre de 2026"_s, [&] {
        auto* f = formulario("frmDJ_editar");
        Cajas::durante({{u"Ingrese el Nº Agente de Retención"_s, QString()}},
                       [&] { pulsar(f, u"tlbDJ"_s, u"aceptar"_s); });
        escribir(f, u"txtRTN_nro"_s, u"45"_s);
        comprobar(u"agente"_s, texto(f, u"cboRTN"_s), u"SOLÍS ÑANDÚ CARMEN"_s);
        Cajas::durante({{u"La posicion a declarar con este aplicativo debe ser posterior a 2006/06"_s}},
                       [&] { escribir(f, u"txtAnio"_s, u"2005"_s); });
        escribir(f, u"txtAnio"_s, u"2026"_s);
        elegir(f, u"cboMes"_s, u"10"_s);
        comprobar(u"número"_s, texto(f, u"txtNroDJ"_s), u"30712345671261000"_s);
        comprobar(u"vencimiento"_s, texto(f, u"dtpBOL_venc"_s), u"16/11/2026"_s);
        g_.foto(u"dj-cabecera"_s);
        pulsar(f, u"tlbDJ"_s, u"aceptar"_s);
        solapa(f, u"SSTab1"_s, 1);
    });
}

void Mes::boletas()
{
    g_.paso(u"Una boleta de depósito, con un cheque"_s, [&] {
        auto* f = formulario("frmDJ_editar");
        solapa(f, u"SSTab1"_s, 2);
        comprobar(u"impuesto a depositar"_s, texto(f, u"nroImpuesto"_s), u"47.325,00"_s);
        escribir(f, u"nroEfectivo"_s, u"17325"_s);
        escribir(f, u"txtCheque1_nro"_s, u"12345678"_s);
        escribir(f, u"txtCheque1_banco"_s, u"BANCO DEL SUR"_s);
        escribir(f, u"nroCheque1_monto"_s, u"30000"_s);
        comprobar(u"total de la boleta"_s, texto(f, u"nroTotalBoleta"_s), u"47.325,00"_s);
        pulsar(f, u"tlbB"_s, u"generar"_s);
        reporte(u"Boleta de depósito"_s, u"boleta"_s);
        comprobar(u"boleta"_s, en_grilla(f, u"flxB"_s, 0, 0), u"2023071234567126100000"_s);
        g_.foto(u"dj-boletas"_s);
        pulsar(f, u"tlbB"_s, u"imprimir"_s);
        reporte(u"Boleta de depósito"_s, u"boleta-otra-vez"_s);
    });
}

void Mes::lista()
{
    g_.paso(u"La lista de escrituras y los totales"_s, [&] {
        auto* f = formulario("frmDJ_editar");
        comprobar(u"escrituras"_s, QString::number(filas(f, u"flxOp"_s)), u"9"_s);
        comprobar(u"total retenido"_s, texto(f, u"nroTotalRetenido"_s), u"47.325,00"_s);
        g_.foto(u"dj-renglones"_s);
        manual(f);
    });
    boletas();
    g_.paso(u"Cierra la DJ"_s, [&] { pulsar(formulario("frmDJ_editar"), u"tlbDJ"_s, u"salir"_s); });
}

void Mes::rectificar()
{
    g_.paso(u"Una rectificativa"_s, [&] {
        auto* f = formulario("frmDJ_buscar");
        buscarFila(f, u"30712345671261000"_s);
        pulsar(f, u"tlbDJ"_s, u"rectificar"_s);
        auto* e = formulario("frmDJ_editar");
        comprobar(u"título"_s, e->windowTitle(), u"Rectificar DJ"_s);
        comprobar(u"número"_s, texto(e, u"txtNroDJ"_s), u"30712345671261001"_s);
        pulsar(e, u"tlbDJ"_s, u"editar"_s);
        escribir(e, u"txtObs"_s, u"Corrige el domicilio de una parte"_s);
        pulsar(e, u"tlbDJ"_s, u"aceptar"_s);
        g_.foto(u"rectificativa"_s);
        pulsar(e, u"tlbDJ"_s, u"salir"_s);
    });
    emitir(u"30712345671261001"_s, u"emision-rectificativa"_s);
    g_.paso(u"Otra vez sobre la original: pregunta"_s, [&] {
        auto* f = formulario("frmDJ_buscar");
        buscarFila(f, u"30712345671261000"_s);
        Cajas::durante({{u"La DJ  Original para la posicion 10/26 ya fue rectificada"_s, u"Nueva DJ"_s, false}},
                       [&] { pulsar(f, u"tlbDJ"_s, u"rectificar"_s); });
    });
    emitir(u"27145678906250600"_s, u"emision-sin-movimientos"_s);
    g_.paso(u"Cierra la lista"_s, [&] { pulsar(formulario("frmDJ_buscar"), u"tlbDJ"_s, u"salir"_s); });
}
