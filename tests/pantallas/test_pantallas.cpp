// SPDX-License-Identifier: GPL-3.0-or-later
// The real forms, offscreen, with the keys and clicks of a person.

#include "apoyo/ventanas.h"
#include "computation/screens/frmDJ_detalle_op.h"
#include "core/reloj.h"
#include "declarations/screens/frmDJ_buscar.h"
#include "deeds/screens/frmDJ_detalle.h"
#include "declarations/screens/frmDJ_editar.h"
#include "agents/screens/frmRTN_buscar.h"
#include "manejo/manejo.h"
#include "printing/screens/ctlVistaPrevia.h"
#include "printing/screens/frmReportes.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QMessageBox>
#include <QLineEdit>
#include <QTest>

namespace {

using namespace manejo;

class Pantallas : public ConVentanas
{
protected:
    void SetUp() override
    {
        ConVentanas::SetUp();
        cnRtn.ejecutar(
            "insert into SEL_TB_RTN_PADRON (SRTN_NRO, SRTN_NRO_REGNOTARIAL, SRTN_TITULAR_NOMBRE, SRTN_TITULAR_CUIT, SRTN_DOMICILIO, GLOC_ID) "
            "values (7, 7, 'ÁVILA', 27222333445, 'CALLE 2', null); update SEL_TB_RTN_PADRON set SRTN_DOMICILIO='CALLE 1' where SRTN_NRO=101;"_u);
    }
    QWidget* abrirOperacion(const QString& dj)
    {
        cnRtn.ejecutar(
            "insert into SEL_TB_RTN_INS_PARTES (SPIN_ID, SEDJ_NRO, SEDD_ID, GTDC_ID, SPIN_NRODOC, SPIN_RSOCIAL, SPIN_NACIONALIDAD, SPIN_PORCEXENTO) values "
            "(1, '%1', 1, '80', '20123456786', 'UNO', 'A', 50), (2, '%1', 1, '96', '22333444', 'DOS', 'A', null)"_u.arg(
                dj));
        QWidget* e = abrirEscritura(false);
        pulsar(e, "tlbDetalle"_u, "cancelar"_u);
        solapa(e, "SSTab1"_u, 1);
        pulsar(e, "tlbOp"_u, "agregar"_u);
        return formulario("frmDJ_detalle_op");
    }
};

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
    EXPECT_EQ(QApplication::clipboard()->text(), "20123456786261001\t101\tPÉREZ\t2026\t10\t1\tNORMAL\t"_u);
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

TEST_F(Pantallas, UnaEscrituraYSusEstados)
{
    const QString dj = nueva_dj();
    QWidget* f = abrirEscritura(true);
    const char* claves = "salir aceptar cancelar editar recibo";
    EXPECT_EQ(f->windowTitle(), "Agregar instrumento"_u);
    EXPECT_EQ(texto(f, "txtPosicion"_u), "2026/10"_u);
    EXPECT_EQ(botones(f, "tlbDetalle", claves), "01100"_u);
    EXPECT_FALSE(control(f, "fraPartes"_u)->isEnabled());
    escribir(f, "txtNroEscritura"_u, "1x2"_u);
    EXPECT_EQ(texto(f, "txtNroEscritura"_u), "12"_u);
    escribir(f, "txtFolio"_u, "3"_u);
    escribir(f, "nroDia"_u, "4"_u);
    Cajas::durante({{"Falta el archivo del testimonio."_u, {}, false}},
                   [&] { pulsar(f, "tlbDetalle"_u, "aceptar"_u); });
    EXPECT_EQ(f->focusWidget(), control(f, "txtTestimonio"_u));
    EXPECT_EQ(dato("select count(*) from SEL_TB_RTN_DETDJ"_u), "0"_u);
    Cajas::durante({{"Falta el archivo del testimonio."_u}}, [&] { pulsar(f, "tlbDetalle"_u, "aceptar"_u); });
    EXPECT_EQ(botones(f, "tlbDetalle", claves), "10010"_u);
    EXPECT_EQ(texto(f, "txtRenglonDJ"_u), "1"_u);
    EXPECT_TRUE(control(f, "fraPartes"_u)->isEnabled());

    // Closing says what is missing, and may be refused.
    Cajas::durante(
        {{"La escritura está incompleta, falta ingresar la operacion del instrumento y el archivo del testimonio\n¿Desea completarla mas tarde?"_u,
          "Escritura incompleta"_u, false, -1, true}},
        [&] { pulsar(f, "tlbDetalle"_u, "salir"_u); });
    EXPECT_TRUE(f->isVisible());

    // Not reached with children: the question, and at once the deletion.
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_INS_PARTES (SPIN_ID, SEDJ_NRO, SEDD_ID, GTDC_ID, SPIN_RSOCIAL) values (1, '%1', 1, '80', 'X')"_u
            .arg(dj));
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_INS_OPERACIONES (SEDJ_NRO, SEDD_ID, SEDO_ID, SSUB_ID, SINS_MONTO_FINAL) values ('%1', 1, 1, 5707029, 30)"_u
            .arg(dj));
    cnRtn.ejecutar(
        "update SEL_TB_RTN_DETDJ set SEDD_TOTAL_IMPUESTO=30; update SEL_TB_RTN_CABDJ set SEDJ_TOTAL_RETENIDO=30"_u);
    static_cast<Formulario*>(f)->alActivar();
    EXPECT_EQ(texto(f, "nroTotalImpuesto"_u), "30,00"_u);
    pulsar(f, "tlbDetalle"_u, "editar"_u);
    Cajas::durante({{"La acción de marcar una escritura como NO ALCANZADA borrará"_u,
                     "Modificar instrumento - Escritura No Alcanzada"_u, false}},
                   [&] { elegir(f, "cboAlcanzado"_u, "No alcanzado"_u); });
    EXPECT_EQ(texto(f, "cboAlcanzado"_u), "Alcanzado"_u);
    // Turned to ERROSE, the deed loses its children when it is saved.
    elegir(f, "cboDET_Estado"_u, "ANULADA/ERROSE"_u);
    EXPECT_FALSE(control(f, "txtTestimonio"_u)->isEnabled());
    EXPECT_EQ(dato("select count(*) from SEL_TB_RTN_INS_PARTES"_u), "1"_u);
    pulsar(f, "tlbDetalle"_u, "aceptar"_u);
    EXPECT_EQ(
        filas(
            "select SEDD_ESTADO, SEDD_TOTAL_IMPUESTO, (select count(*) from SEL_TB_RTN_INS_PARTES), (select SEDJ_TOTAL_RETENIDO from SEL_TB_RTN_CABDJ) from SEL_TB_RTN_DETDJ"_u),
        "E|0.0|0|0.0"_u);
    EXPECT_EQ(cnRtn.transacciones(), 0);
    pulsar(f, "tlbDetalle"_u, "salir"_u);
    EXPECT_EQ(en_grilla(formulario("frmDJ_editar"), "flxOp"_u, 0, 4), "Anulado/ERROSE"_u);
}

TEST_F(Pantallas, ParteExtranjeraYSociedades)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1, "P", "S");
    QWidget* e = abrirEscritura(false);
    pulsar(e, "tlbPartes"_u, "agregar"_u);
    auto* f = formulario("frmDJ_detalle_parte");
    Cajas::durante({{"Indique la nacionalidad del contribuyente"_u, "Alta de parte"_u, true, QMessageBox::Information}},
                   [&] { pulsar(f, "tlb"_u, "aceptar"_u); });
    clic(f, "optExtranjera"_u);
    elegir(f, "cboCodigoPais"_u, "CHILE - Jurídica"_u);
    EXPECT_EQ(texto(f, "cboTipoDoc"_u) + texto(f, "cboTipoSociedad"_u).left(11), "DESCONOCIDA"_u);
    elegir(f, "cboCodigoPais"_u, "CHILE - Física"_u);
    EXPECT_EQ(texto(f, "cboTipoDoc"_u), "PASAPORTE"_u);
    EXPECT_TRUE(control(f, "txtPasaporte"_u)->isVisible());
    EXPECT_EQ(f->focusWidget(), control(f, "txtPasaporte"_u));
    escribir(f, "txtPasaporte"_u, "ab12"_u);
    escribir(f, "txtRazonSocial"_u, "o'higgins ñ."_u);
    teclear(f, "cboProv"_u, "mar"_u);
    QTest::keyClick(control(f, "cboProv"_u)->findChild<QLineEdit*>(), Qt::Key_Tab);
    EXPECT_EQ(texto(f, "cboProv"_u), "MARVEN"_u);
    teclear(f, "cboLoc"_u, "nada"_u);
    Cajas::durante({{"El texto ingresado no es una localidad válida"_u}}, [&] { pulsar(f, "tlb"_u, "aceptar"_u); });
    escribir(f, "cboLoc"_u, "el sau"_u);
    pulsar(f, "tlb"_u, "aceptar"_u);
    EXPECT_EQ(
        filas(
            "select SPIN_ID, GTDC_ID, SPIN_NRODOC, SPIN_RSOCIAL, GTSO_ID, GPRO_ID, GLOC_ID, SPIN_NACIONALIDAD, CPAI_CODIGO from SEL_TB_RTN_INS_PARTES"_u),
        "1|94|AB12|O'HIGGINS Ñ.|1|13|6|E|50000000516"_u);
    EXPECT_EQ(en_grilla(e, "flxPartes"_u, 0, 4), "CHILE - Física (50000000516)"_u);
    pulsar(e, "tlbPartes"_u, "editar"_u);
    f = formulario("frmDJ_detalle_parte");
    EXPECT_EQ(texto(f, "cboCodigoPais"_u), "CHILE - Física (50000000516)"_u);
    EXPECT_EQ(texto(f, "cboLoc"_u), "EL SAUCE"_u);
    clic(f, "optArgentina"_u);
    elegir(f, "cboTipoSociedad"_u, "COOPERATIVA"_u);
    EXPECT_EQ(texto(f, "cboTipoDoc"_u), "CUIT"_u);
    clic(f, "chkCUIT_EnTramite"_u);
    pulsar(f, "tlb"_u, "aceptar"_u);
    EXPECT_EQ(
        filas(
            "select GTDC_ID, SPIN_NRODOC, SPIN_CUIT_EN_TRAMITE, SPIN_NACIONALIDAD, CPAI_CODIGO from SEL_TB_RTN_INS_PARTES"_u),
        "80|null|1|A|null"_u);
    Cajas::durante(
        {{"¿Está seguro que desea quitar la parte seleccionada?"_u, "Quitar parte"_u, true, QMessageBox::Question}},
        [&] { pulsar(e, "tlbPartes"_u, "quitar"_u); });
    EXPECT_EQ(botones(e, "tlbPartes", "agregar quitar editar"), "100"_u);
}

TEST_F(Pantallas, OperacionDePuntaAPunta)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_INS_INMUEBLES (SEDJ_NRO, SEDD_ID, SEII_ID, SEII_PARTIDA, SEII_VAL_FISCAL) values ('%1', 1, 1, '5', 3000.10)"_u
            .arg(dj));
    QWidget* f = abrirOperacion(dj);
    const char* claves = "salir cambiar_op guardar_op editar_det guardar_det cancelar";
    EXPECT_EQ(botones(f, "tlb", claves), "001001"_u);
    Cajas::durante({{"Ingrese el código de operación"_u}}, [&] { pulsar(f, "tlb"_u, "guardar_op"_u); });
    for (const auto& [codigo, mensaje] :
         {std::pair{"99", "El subconcepto 99 no se encuentra en la ley 5707"},
          {"33", "El subconcepto 33 no se encuentra habilitado para el módulo para escribanos"},
          {"36", "El subconcepto 36 no se encuentra habilitado para el módulo para escribanos"}}) {
        teclear(f, "ctlCodS"_u, QLatin1StringView(codigo));
        Cajas::durante({{QString::fromUtf8(mensaje)}}, [&] { tecla(f, "ctlCodS"_u, Qt::Key_Return); });
    }
    pulsar(f, "tlb"_u, "cancelar"_u);
    Cajas::durante({{"Ingrese el codigo de operación"_u}}, [&] { pulsar(f, "tlb"_u, "salir"_u); });
    teclear(f, "ctlCodS"_u, "1"_u);
    pulsar(f, "tlb"_u, "guardar_op"_u);
    EXPECT_EQ(botones(f, "tlb", claves), "010011"_u);
    EXPECT_EQ(filas("select SEDO_ID, SSUB_ID, SINS_MONTO_FINAL from SEL_TB_RTN_INS_OPERACIONES"_u), "1|5707001|null"_u);
    Cajas::durante({{"Ingrese (o guarde) el valor contractual de la operación"_u}},
                   [&] { pulsar(f, "tlb"_u, "guardar_det"_u); });

    // A contract value in foreign currency, with its checks.
    EXPECT_EQ(botones(f, "tlbBI", "nuevo editar borrar guardar cancelar"), "10000"_u);
    pulsar(f, "tlbBI"_u, "nuevo"_u);
    EXPECT_EQ(botones(f, "tlbBI", "nuevo editar borrar guardar cancelar"), "00011"_u);
    Cajas::durante({{"Ingrese el valor contractual"_u}}, [&] { pulsar(f, "tlbBI"_u, "guardar"_u); });
    escribir(f, "nroValorContractual"_u, "1000"_u);
    elegir(f, "cboMoneda"_u, "DOLARES"_u);
    Cajas::durante({{"Ingrese el valor de cambio para la moneda seleccionada"_u}},
                   [&] { pulsar(f, "tlbBI"_u, "guardar"_u); });
    escribir(f, "ctlValorCambio"_u, "3.5"_u);
    teclear(f, "nroPorcIVA"_u, "21"_u);
    tecla(f, "nroPorcIVA"_u, Qt::Key_Return);  // Enter saves the row
    EXPECT_EQ(
        filas(
            "select SVCI_VALOR_CONTRACTUAL, SVCI_PORC_IVA, GMON_ID, SVCI_VALORCAMBIO, SVCI_TOTAL from SEL_TB_RTN_INS_VC"_u),
        "1000.0|21.0|DOL|3.5|4235.0"_u);
    EXPECT_EQ(texto(f, "nroTotalVC"_u), "4.235,00"_u);
    EXPECT_EQ(texto(f, "nroValuacionFiscal"_u).remove(u'.'), "3000,10"_u);

    // The role that the law asks for; the exemption acts when the tab changes.
    Cajas::durante(
        {{"Los roles de carga obligatoria son:\n - COMPRADOR\n - VENDEDOR\nPor favor, ingrese los roles de las partes."_u,
          "Nueva operación - Atención!"_u, true, QMessageBox::Warning, true}},
        [&] { pulsar(f, "tlb"_u, "guardar_det"_u); });
    celda(f, "flxPartes"_u, 0, 5);
    elegir(f, "cboRoles"_u, "VENDEDOR"_u);
    celda(f, "flxPartes"_u, 1, 5);
    elegir(f, "cboRoles"_u, "COMPRADOR"_u);
    EXPECT_EQ(texto(f, "nroExencionPorc"_u), "0,00"_u);
    solapa(f, "SSTab1"_u, 1);
    EXPECT_EQ(texto(f, "nroExencionPorc"_u), "25,00"_u);
    // 4235 at one per cent stays below 50 modules of 150; a quarter of the minimum is exempt.
    EXPECT_EQ(texto(f, "ctlImpuestoCalculado"_u) + u' ' + texto(f, "nroMontoExento"_u) + u' '
                  + texto(f, "nroImpuesto"_u),
              "42,35 1.875,00 5.625,00"_u);
    escribir(f, "nroPagoACuenta"_u, "25.5"_u);
    escribir(f, "txtObs"_u, "it's"_u);
    pulsar(f, "tlb"_u, "guardar_det"_u);
    EXPECT_EQ(
        filas(
            "select SINS_BASEIMPONIBLE, SINS_VALUACION_FISCAL, SINS_MODULOS, SINS_ALICUOTA, SINS_IMPUESTO_CALCULADO, SINS_PORC_EXENTO, SINS_MONTO_EXENTO, SINS_MONTO_INICIAL, "
            "SINS_MONTO_FINAL, SINS_NRO, SINS_PAGO_CTA_MONTO, SINS_OBLIG_ACCESORIA_FOP, SINS_HIPOTECA, SINS_LEY_APLIC_IMPUESTO, SINS_OBS from SEL_TB_RTN_INS_OPERACIONES"_u),
        "4235.0|3000.1|null|0.01|42.35|25.0|1875.0|5599.5|5599.5|1|25.5|null|null|5707|it's"_u);
    EXPECT_EQ(filas("select SPIN_ID, SROL_ID from SEL_TB_RTN_INS_ROLES"_u), "1|5707001001\n2|5707001002"_u);
    EXPECT_EQ(filas("select SEDD_TOTAL_IMPUESTO, SEDJ_TOTAL_RETENIDO from SEL_TB_RTN_DETDJ D, SEL_TB_RTN_CABDJ C"_u),
              "5599.5|5599.5"_u);
    EXPECT_EQ(botones(f, "tlb", claves), "110100"_u);
    EXPECT_EQ(texto(cargada<frmDJ_detalle>(), "nroTotalImpuesto"_u), "5.599,50"_u);

    // Another item: roles that it does not have go, after a question.
    Cajas::durante(
        {{"Esta acción borrará los roles asignados a las partes que no se correspondan con la nueva operación.\n¿Esta seguro de cambiar la operación?"_u,
          "Nueva operación - Cambiar operación"_u, true, -1, true}},
        [&] { pulsar(f, "tlb"_u, "cambiar_op"_u); });
    EXPECT_EQ(botones(f, "tlb", claves), "001001"_u);
    teclear(f, "ctlCodS"_u, "29"_u);
    tecla(f, "ctlCodS"_u, Qt::Key_Return);
    pulsar(f, "tlb"_u, "guardar_op"_u);
    EXPECT_EQ(botones(f, "tlb", claves), "000011"_u);
    EXPECT_EQ(en_grilla(f, "flxPartes"_u, 0, 5), "(ninguno)"_u);
    EXPECT_FALSE(qobject_cast<QTabWidget*>(control(f, "SSTab1"_u))->isTabEnabled(0));
    pulsar(f, "tlb"_u, "cancelar"_u);
    EXPECT_EQ(texto(f, "ctlCodS"_u), "1"_u);
    EXPECT_EQ(dato("select SSUB_ID from SEL_TB_RTN_INS_OPERACIONES"_u), "5707001"_u);
    pulsar(f, "tlb"_u, "editar_det"_u);
    Cajas::durante({{"¿Descartar los cambios?"_u, {}, false}},
                   [&] { EXPECT_FALSE(static_cast<Formulario*>(f)->descargar()); });
    Cajas::durante({{"¿Descartar los cambios?"_u}}, [&] { EXPECT_TRUE(static_cast<Formulario*>(f)->descargar()); });

    // Opening it again shows what was saved, without a calculation.
    cnRtn.ejecutar(
        "update SEL_TB_ALICUOTAS set SALI_ALICUOTA=0.5 where SSUB_ID=5707001; update SEL_TB_RTN_INS_OPERACIONES set SINS_MONTO_FINAL=7"_u);
    auto* escritura = formulario("frmDJ_detalle");
    celda(escritura, "flxOp"_u, 0, 0);
    QTest::mouseDClick(control(escritura, "flxOp"_u)->findChild<QWidget*>("qt_scrollarea_viewport"_u), Qt::LeftButton,
                       {}, {20, 10});
    f = formulario("frmDJ_detalle_op");
    EXPECT_EQ(texto(f, "nroImpuesto"_u), "7,00"_u);
    EXPECT_EQ(texto(f, "txtObs"_u), "it's"_u);
    solapa(f, "SSTab1"_u, 1);
    EXPECT_EQ(texto(f, "nroMoA"_u), "0,5000"_u);
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

TEST_F(Pantallas, ReciboSoloConPartes)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 2);
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_INS_OPERACIONES (SEDJ_NRO, SEDD_ID, SEDO_ID, SSUB_ID, SINS_MONTO_FINAL) values ('%1', 1, 1, 5707029, 1234.5)"_u
            .arg(dj));
    QWidget* f = abrirEscritura(false);
    EXPECT_FALSE(habilitado(f, "tlbDetalle"_u, "recibo"_u));
    pulsar(f, "tlbDetalle"_u, "cancelar"_u);
    Cajas::durante(
        {{"Ingrese las partes intervinientes de la escritura\nEscritura incompleta: No se puede emitir el comprobante de retención."_u,
          "Emitir comprobante de retención"_u, true, QMessageBox::Information, true}},
        [&] { pulsar(f, "tlbDetalle"_u, "recibo"_u); });
    EXPECT_EQ(dato("select count(*) from SEL_TB_RTN_COMP_RET"_u), "0"_u);
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_INS_PARTES (SPIN_ID, SEDJ_NRO, SEDD_ID, GTDC_ID, SPIN_RSOCIAL) values (1, '%1', 1, '80', 'X')"_u
            .arg(dj));
    static_cast<Formulario*>(f)->alActivar();
    pulsar(f, "tlbDetalle"_u, "recibo"_u);
    EXPECT_EQ(formulario("frmReportes")->windowTitle(), "Comprobante de retención"_u);
    EXPECT_EQ(
        filas(
            "select SEDD_ID, SCRT_ANULADO, SCRT_MONTO_RETENIDO, SCRT_FECHA_ESCRITURA, SCRT_RTN_NOMBRE from SEL_TB_RTN_COMP_RET"_u),
        "1|N|1234.5|02/10/2026|PÉREZ"_u);
}

TEST_F(Pantallas, VistaPreviaDeUnaDJLarga)
{
    const QString dj = nueva_dj();
    for (int i = 1; i <= 300; ++i)
        nueva_escritura(dj, i, i, i, 1);
    auto* r = cargar<frmReportes>();
    r->DJ(dj, "9DCABBEC95C60F7B69846C4A8513C009"_u);
    r->mostrar();
    EXPECT_TRUE(texto(r, "lblPaginas"_u).endsWith(u'…'));  // the first page shows before the last is laid out
    ASSERT_TRUE(QTest::qWaitFor([&] { return !texto(r, "lblPaginas"_u).endsWith(u'…'); }));
    const int paginas = texto(r, "lblPaginas"_u).mid(3).toInt();
    EXPECT_GT(paginas, 5);
    auto* vista = r->findChild<ctlVistaPrevia*>();
    clic(r, "cmdSiguiente"_u);
    EXPECT_EQ(vista->paginaActual(), 1);
    teclear(r, "spnPagina"_u, "4"_u);
    tecla(r, "spnPagina"_u, Qt::Key_Return);
    EXPECT_EQ(vista->paginaActual(), 3);
    for (const char* zoom : {"Página entera", "200 %", "50 %", "Ajustar al ancho"}) {
        elegir(r, "cboZoom"_u, QString::fromUtf8(zoom));
        EXPECT_EQ(vista->paginas(), paginas);
        EXPECT_FALSE(vista->grab().isNull());
    }
    EXPECT_FALSE(r->guardarPDF("/no/hay/carpeta.pdf"_u));
}

TEST_F(Pantallas, SalirPreguntaYCierraEnOrden)
{
    cargar<frmRTN_buscar>()->mostrar();
    const CajaEsperada pregunta{"¿Está seguro que desea salir del sistema?"_u, "VEDRA-RTN"_u, false,
                                QMessageBox::Question, true};
    Cajas::durante({pregunta}, [&] { EXPECT_FALSE(principal->close()); });
    EXPECT_TRUE(cargada<frmRTN_buscar>());
    CajaEsperada si = pregunta;
    si.si = true;
    Cajas::durante({si}, [&] { EXPECT_TRUE(principal->close()); });
    EXPECT_FALSE(cnRtn.abierta());
    EXPECT_FALSE(cargada<frmRTN_buscar>());
}

// The tab key walks each form line by line, from left to right.
TEST_F(Pantallas, ElTabuladorRecorreComoSeLee)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    QWidget* e = abrirEscritura(false);
    pulsar(e, "tlbInm"_u, "agregar"_u);
    auto* f = formulario("frmDJ_editar_inmueble");
    control(f, "txtINM_partida"_u)->setFocus();
    QPoint antes(-1, -1);
    int pasos = 0;
    for (QWidget* w = f->focusWidget(); w; w = f->focusWidget()) {
        const QPoint aqui = w->mapTo(f, QPoint(0, w->height() / 2));
        EXPECT_TRUE(aqui.y() > antes.y() + 8 || (std::abs(aqui.y() - antes.y()) <= 8 && aqui.x() > antes.x()))
            << w->objectName().toStdString() << " " << w->parentWidget()->objectName().toStdString();
        antes = aqui;
        if (++pasos == 24)
            break;
        QTest::keyClick(w, Qt::Key_Tab);
    }
    EXPECT_EQ(pasos, 24);
}

}  // namespace
