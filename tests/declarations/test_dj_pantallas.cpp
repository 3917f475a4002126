// SPDX-License-Identifier: GPL-3.0-or-later
// The DJs, their list, their editor and their slips, by keys and clicks.

#include "apoyo/pantallas.h"
#include "core/reloj.h"
#include "declarations/screens/frmDJ_buscar.h"
#include "declarations/screens/frmDJ_editar.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QMessageBox>
#include <QTest>

namespace {

using namespace manejo;

TEST_F(Pantallas, ListaDeDJFiltraYConservaLaFila)
{
    nueva_dj();
    nueva_dj(1);
    nueva_dj(2);
    auto* f = cargar<frmDJ_buscar>();
    f->mostrar();
    EXPECT_EQ(manejo::filas(f, "flx"_u), 3);
    EXPECT_EQ(botones(f, "tlbDJ", "nueva modificar borrar rectificar emitir salir"), "111111"_u);
    celda(f, "flx"_u, 1, 0);
    auto* grilla = control(f, "flx"_u);
    QTest::keyClick(grilla, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "DJ Nº\tAR Nº\tMunicipio\tAño\tMes\tRectif.\tEstado\tObservaciones\n"
                                                 "20123456786261001\t101\tPÉREZ\t2026\t10\t1\tNORMAL\t"_u);
    escribir(f, "nroAnio"_u, "2026"_u);
    EXPECT_EQ(en_grilla(f, "flx"_u, 1, 0), "20123456786261001"_u);
    escribir(f, "nroAnio"_u, "2020"_u);
    EXPECT_EQ(manejo::filas(f, "flx"_u), 0);
    EXPECT_EQ(botones(f, "tlbDJ", "nueva modificar borrar rectificar emitir salir"), "100001"_u);
    escribir(f, "nroAnio"_u, "0"_u);
    EXPECT_EQ(texto(f, "nroAnio"_u), QString());
    // A month that is none keeps the focus, and Enter lists as leaving does.
    teclear(f, "nroMes"_u, "13"_u);
    QTest::keyClick(control(f, "nroMes"_u)->focusProxy(), Qt::Key_Tab);
    QApplication::processEvents();
    EXPECT_EQ(f->focusWidget(), control(f, "nroMes"_u)->focusProxy());
    teclear(f, "nroMes"_u, "10"_u);
    QTest::keyClick(control(f, "nroMes"_u)->focusProxy(), Qt::Key_Return);
    EXPECT_EQ(manejo::filas(f, "flx"_u), 3);
    elegir(f, "cboRTN"_u, "ÁVILA"_u);
    EXPECT_EQ(manejo::filas(f, "flx"_u), 0);
    elegir(f, "cboRTN"_u, "(sin filtro)"_u);
    Cajas::durante(
        {{"¿Esta seguro que desea borrar la DJ seleccionada?"_u, "Borrar DJ"_u, false, QMessageBox::Question, true}},
        [&] { pulsar(f, "tlbDJ"_u, "borrar"_u); });
    EXPECT_EQ(manejo::filas(f, "flx"_u), 3);
    Cajas::durante({{"¿Esta seguro que desea borrar la DJ seleccionada?"_u}},
                   [&] { pulsar(f, "tlbDJ"_u, "borrar"_u); });
    EXPECT_EQ(manejo::filas(f, "flx"_u), 2);
}

TEST_F(Pantallas, EmisionQueNoHaceArchivo)
{
    nueva_dj();
    QFile obstaculo(carpeta.path() + "/data"_u);
    ASSERT_TRUE(obstaculo.open(QIODevice::WriteOnly));
    auto* f = cargar<frmDJ_buscar>();
    f->mostrar();
    Cajas::durante(
        {{"No se puede emitir la DJ impresa sin generar el archivo previamente \ndebido a que se genera un código de verificación de la integridad entre el diskete y la DJ impresa"_u,
          {},
          true,
          QMessageBox::NoIcon,
          true}},
        [&] { pulsar(f, "tlbDJ"_u, "emitir"_u); });
}

// All of them in one box, before anything is made.
TEST_F(Pantallas, LoQueNoEntraEnElArchivoSeDiceAntesDeEmitir)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 12, 1, 1, "P", "N");
    cnRtn.ejecutarGuion(
        "update SEL_TB_RTN_DETDJ set SNAD_ID=1, SEDD_FOLIO=null; "
        "insert into SEL_TB_RTN_INS_PARTES (SPIN_ID, SEDJ_NRO, SEDD_ID, GTDC_ID, SPIN_NRODOC, SPIN_RSOCIAL, SPIN_NACIONALIDAD) values "
        "(1, '%1', 1, '96', '22333444', '%2', 'A'); "
        "insert into SEL_TB_RTN_INS_INMUEBLES (SEDJ_NRO, SEDD_ID, SEII_ID, SEII_PARTIDA, SEII_UBIC_CALLE, SEII_UBIC_NRO) values "
        "('%1', 1, 1, '55', 'AVENIDA DEL LIBERTADOR', '  1234567890  ')"_u.arg(dj, QString(60, u'Ñ')));
    auto* f = cargar<frmDJ_buscar>();
    f->mostrar();
    Cajas::durante(
        {{"La declaración jurada tiene valores que no entran en el archivo a presentar. Corríjalos y vuelva a emitirla.\n\n"
          "Escritura Nº 12: Folio no tiene valor\n"
          "Escritura Nº 12, parte 1 %1: Denominación tiene 60 caracteres, y entran 50\n"
          "Escritura Nº 12, inmueble 1 55: Calle tiene 22 caracteres, y entran 10"_u.arg(QString(40, u'Ñ')),
          "Emitir DJ "_u + dj, true, QMessageBox::Warning, true}},
        [&] { pulsar(f, "tlbDJ"_u, "emitir"_u); });
    EXPECT_FALSE(QFile::exists(carpeta.path() + "/data"_u));
    EXPECT_EQ(dato("select SEDJ_MD5 from SEL_TB_RTN_CABDJ"_u), "null"_u);
}

TEST_F(Pantallas, EditorDeDJEstadoPorEstado)
{
    auto* lista = cargar<frmDJ_buscar>();
    lista->mostrar();
    pulsar(lista, "tlbDJ"_u, "nueva"_u);
    auto* f = formulario("frmDJ_editar");
    EXPECT_FALSE(lista->isEnabled());
    const char* claves = "aceptar cancelar editar salir";
    EXPECT_EQ(f->windowTitle(), "Nueva DJ"_u);
    EXPECT_EQ(botones(f, "tlbDJ", claves), "1100"_u);
    pulsar(f, "tlbDJ"_u, "cancelar"_u);
    EXPECT_EQ(botones(f, "tlbDJ", claves), "0011"_u);
    EXPECT_FALSE(control(f, "fraGeneral"_u)->isEnabled());
    pulsar(f, "tlbDJ"_u, "editar"_u);
    // An agent without a locality is not found.
    escribir(f, "txtRTN_nro"_u, "7"_u);
    EXPECT_EQ(texto(f, "cboRTN"_u) + texto(f, "txtCUIT"_u), "ÁVILA"_u);
    escribir(f, "txtRTN_nro"_u, "101"_u);
    escribir(f, "txtAnio"_u, "2026"_u);
    elegir(f, "cboMes"_u, "7"_u);
    EXPECT_EQ(texto(f, "txtNroDJ"_u), "20123456786260700"_u);
    EXPECT_EQ(texto(f, "dtpBOL_venc"_u), "17/08/2026"_u);
    clic(f, "chkCambiarFechaVenc"_u);
    elegir(f, "cboMes"_u, "8"_u);
    EXPECT_EQ(texto(f, "dtpBOL_venc"_u), "17/08/2026"_u);  // a ticked box keeps the date
    escribir(f, "nroAcred_resolucion"_u, "12"_u);
    escribir(f, "nroAcred_resolucion_anio"_u, "26"_u);
    escribir(f, "nroAcred_monto"_u, "100.50"_u);
    EXPECT_EQ(texto(f, "nroTotal_depositar"_u), "-100,50"_u);
    escribir(f, "txtObs"_u, "it's"_u);
    pulsar(f, "tlbDJ"_u, "aceptar"_u);
    EXPECT_EQ(
        filas(
            "select SEDJ_NRO, SEDJ_FVENCIMIENTO, SEDJ_ACRED_MONTO, SEDJ_ACRED_RESOLUCION, SEDJ_OBSERVACIONES, SEDJ_TITULAR_NOMBRE, SEDJ_DOMICILIO from SEL_TB_RTN_CABDJ"_u),
        "20123456786260800|2026-08-17|100.5|0012/26|it's|PÉREZ|CALLE 1"_u);
    EXPECT_EQ(botones(f, "tlbDJ", claves), "0011"_u);
    EXPECT_TRUE(control(f, "lblAviso"_u)->isVisible());
    EXPECT_EQ(botones(f, "tlbDetalle", "agregar editar borrar"), "100"_u);
    pulsar(f, "tlbDJ"_u, "editar"_u);
    EXPECT_FALSE(control(f, "cboMes"_u)->isEnabled());  // the posición of a stored DJ stays

    nueva_escritura("20123456786260800"_u, 1, 1, 1, 1);
    Cajas::durante(
        {{"Atención: Hay escrituras cargadas. \nLa acción de marcarla SIN MOVIMIENTOS borrará todas las escrituras cargadas en esta DJ."_u,
          "DJ - Marcar SIN MOVIMIENTOS"_u, true, QMessageBox::Information, true}},
        [&] { elegir(f, "cboDJ_Estado"_u, "SIN MOVIMIENTOS"_u); });
    pulsar(f, "tlbDJ"_u, "cancelar"_u);
    EXPECT_EQ(dato("select count(*) from SEL_TB_RTN_DETDJ"_u), "1"_u);
    pulsar(f, "tlbDJ"_u, "editar"_u);
    Cajas::durante({{"Atención: Hay escrituras"_u}}, [&] { elegir(f, "cboDJ_Estado"_u, "SIN MOVIMIENTOS"_u); });
    pulsar(f, "tlbDJ"_u, "aceptar"_u);
    EXPECT_EQ(dato("select count(*) from SEL_TB_RTN_DETDJ"_u), "0"_u);
    EXPECT_EQ(dato("select SEDJ_ESTADO from SEL_TB_RTN_CABDJ"_u), "1"_u);
    EXPECT_FALSE(control(f, "fraDetalle"_u)->isEnabled());
    pulsar(f, "tlbDJ"_u, "salir"_u);
    EXPECT_TRUE(lista->isEnabled());
    EXPECT_EQ(manejo::filas(lista, "flx"_u), 1);  // the list is read again on activation
}

TEST_F(Pantallas, UnaDJRepetidaNoEntra)
{
    nueva_dj();
    auto* lista = cargar<frmDJ_buscar>();
    lista->mostrar();
    pulsar(lista, "tlbDJ"_u, "nueva"_u);
    auto* f = formulario("frmDJ_editar");
    elegir(f, "cboRTN"_u, "PÉREZ"_u);
    escribir(f, "txtAnio"_u, "2026"_u);
    elegir(f, "cboMes"_u, "10"_u);
    Cajas::durante({{"Ya existe la  Original para la posicion 10/2026"_u, "Nueva DJ"_u, true, -1, true}},
                   [&] { pulsar(f, "tlbDJ"_u, "aceptar"_u); });
    EXPECT_TRUE(habilitado(f, "tlbDJ"_u, "aceptar"_u));
}

TEST_F(Pantallas, BoletaRechazadaYEmitida)
{
    const QString dj = nueva_dj();
    cnRtn.ejecutar("update SEL_TB_RTN_CABDJ set SEDJ_TOTAL_RETENIDO=1500.5, SEDJ_ACRED_MONTO=500"_u);
    fijar_hoy(QDate(2026, 11, 16));
    auto* lista = cargar<frmDJ_buscar>();
    lista->mostrar();
    pulsar(lista, "tlbDJ"_u, "modificar"_u);
    auto* f = formulario("frmDJ_editar");
    solapa(f, "SSTab1"_u, 2);
    EXPECT_EQ(texto(f, "nroImpuesto"_u), "1.000,50"_u);
    EXPECT_EQ(botones(f, "tlbB", "generar borrar imprimir"), "100"_u);
    // A refused check leaves the toolbar disabled and the pointer an hourglass.
    Cajas::durante({{"Ingrese la forma de pago en la boleta de depósito."_u, "Generar boleta de deposito"_u, true,
                     QMessageBox::Information, true}},
                   [&] { pulsar(f, "tlbB"_u, "generar"_u); });
    EXPECT_FALSE(control(f, "tlbB"_u)->isEnabled());
    EXPECT_TRUE(QApplication::overrideCursor());
    EXPECT_EQ(f->focusWidget(), control(f, "nroEfectivo"_u)->focusProxy());
    pulsar(f, "tlbDJ"_u, "salir"_u);
    EXPECT_FALSE(QApplication::overrideCursor());
    pulsar(lista, "tlbDJ"_u, "modificar"_u);
    f = formulario("frmDJ_editar");
    solapa(f, "SSTab1"_u, 2);
    escribir(f, "nroEfectivo"_u, "1000.50"_u);
    pulsar(f, "tlbB"_u, "generar"_u);
    auto* r = formulario("frmReportes");
    EXPECT_EQ(r->windowTitle(), "Boleta de depósito"_u);
    EXPECT_FALSE(QApplication::overrideCursor());
    EXPECT_FALSE(f->isEnabled());
    QTest::keyClick(r, Qt::Key_Escape);
    EXPECT_TRUE(control(f, "tlbB"_u)->isEnabled());
    EXPECT_EQ(botones(f, "tlbB", "generar borrar imprimir"), "111"_u);
    EXPECT_EQ(filas("select SBDI_NROBOLETA, SBDI_TOTAL, SBDI_FECHA_EMISION from SEL_TB_RTN_BOLDEP"_u),
              "202"_u + dj + "00|1000.5|2026-11-16"_u);
    Cajas::durante(
        {{"¿Esta seguro de borrar la boleta seleccionada?"_u, "Borrar boleta"_u, true, QMessageBox::Question}},
        [&] { pulsar(f, "tlbB"_u, "borrar"_u); });
    EXPECT_EQ(botones(f, "tlbB", "generar borrar imprimir"), "100"_u);
    fijar_hoy({});
}

TEST_F(PantallasFormularios, RectificarYCancelarNoCopiaDeNuevo)
{
    nueva_dj();
    auto* lista = cargar<frmDJ_buscar>();
    lista->mostrar();
    pulsar(lista, "tlbDJ"_u, "rectificar"_u);
    auto* f = formulario("frmDJ_editar");
    EXPECT_EQ(f->windowTitle() + texto(f, "cboRectificativa"_u), "Rectificar DJ1"_u);
    pulsar(f, "tlbDJ"_u, "editar"_u);
    escribir(f, "txtObs"_u, "x"_u);
    pulsar(f, "tlbDJ"_u, "cancelar"_u);
    EXPECT_EQ(texto(f, "txtObs"_u), QString());
    EXPECT_EQ(dato("select count(*) from SEL_TB_RTN_CABDJ"_u), "2"_u);
    pulsar(f, "tlbDJ"_u, "salir"_u);
    EXPECT_EQ(manejo::filas(lista, "flx"_u), 2);
}

// What could not begin does not stand half loaded in the way of the next attempt.
TEST_F(PantallasFormularios, UnEditorQueNoPudoEmpezarNoQuedaCargado)
{
    nueva_dj();
    auto* lista = cargar<frmDJ_buscar>();
    lista->mostrar();
    cnRtn.ejecutar("alter table SEL_TB_RTN_DETDJ rename to OTRA"_u);
    Cajas::durante({{"La base de datos no pudo hacer lo que se le pidió."_u}},
                   [&] { pulsar(lista, "tlbDJ"_u, "rectificar"_u); });
    EXPECT_EQ(cargada<frmDJ_editar>(), nullptr);
    cnRtn.ejecutar("alter table OTRA rename to SEL_TB_RTN_DETDJ"_u);
    pulsar(lista, "tlbDJ"_u, "modificar"_u);
    EXPECT_EQ(formulario("frmDJ_editar")->windowTitle(), "Modificar DJ"_u);
}

TEST_F(Pantallas, SinVencimientoGuardadoValeElDeLaPosicion)
{
    nueva_dj();
    cnRtn.ejecutar("update SEL_TB_RTN_CABDJ set SEDJ_FVENCIMIENTO=null"_u);
    auto* lista = cargar<frmDJ_buscar>();
    lista->mostrar();
    pulsar(lista, "tlbDJ"_u, "modificar"_u);
    auto* e = formulario("frmDJ_editar");
    pulsar(e, "tlbDJ"_u, "editar"_u);
    pulsar(e, "tlbDJ"_u, "aceptar"_u);
    EXPECT_EQ(dato("select SEDJ_FVENCIMIENTO from SEL_TB_RTN_CABDJ"_u), "2026-11-16"_u);
}

}  // namespace
