// SPDX-License-Identifier: GPL-3.0-or-later
// An operation by keys and clicks.

#include "apoyo/pantallas.h"
#include "computation/screens/frmDJ_detalle_op.h"
#include "computation/screens/frmPasos.h"
#include "declarations/renglones.h"
#include "deeds/screens/frmDJ_detalle.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

namespace {

using namespace manejo;

// A step that fails leaves what was done before it, and the fields as they were; a disk that takes nothing leaves nothing.
TEST_F(PantallasFormularios, GuardarLaOperacionEsUnSoloTrabajo)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    cnRtn.ejecutarGuion(
        "update SEL_TB_ROLES set SROL_REQUERIDO=0; create trigger sin_total before update of SEDJ_TOTAL_RETENIDO on SEL_TB_RTN_CABDJ "
        "begin select raise(abort, 'x'); end"_u);
    QWidget* f = abrirOperacion("29");
    const QString importe = texto(f, "nroImpuesto"_u);
    Cajas::durante({{"Atención: No se pudo modificar el monto del renglón de la DJ"_u}},
                   [&] { pulsar(f, "tlb"_u, "guardar_det"_u); });
    EXPECT_TRUE(habilitado(f, "tlb"_u, "guardar_det"_u));
    EXPECT_EQ(texto(f, "nroImpuesto"_u), importe);
    const auto guardado = [] {
        return dato(
            "select (SINS_MONTO_FINAL>0)||' '||SEDD_TOTAL_IMPUESTO||' '||SEDJ_TOTAL_RETENIDO from SEL_TB_RTN_INS_OPERACIONES "
            "join SEL_TB_RTN_DETDJ using (SEDJ_NRO, SEDD_ID) join SEL_TB_RTN_CABDJ using (SEDJ_NRO)"_u);
    };
    EXPECT_EQ(guardado(), "1 0.0 0.0"_u);
    EXPECT_EQ(cnRtn.transacciones(), 0);

    cnRtn.ejecutarGuion("drop trigger sin_total; update SEL_TB_RTN_INS_OPERACIONES set SINS_MONTO_FINAL=0; "
                        "create trigger sin_disco before update of SEDD_TOTAL_IMPUESTO on SEL_TB_RTN_DETDJ "
                        "begin select raise(rollback, 'y'); end"_u);
    Cajas::durante({{"Atención: No se pudo modificar el monto del renglón de la DJ"_u}},
                   [&] { pulsar(f, "tlb"_u, "guardar_det"_u); });
    EXPECT_EQ(guardado(), "0 0.0 0.0"_u);
    EXPECT_EQ(cnRtn.transacciones(), 0);
    cnRtn.ejecutar("drop trigger sin_disco"_u);
    pulsar(f, "tlb"_u, "guardar_det"_u);
    EXPECT_FALSE(habilitado(f, "tlb"_u, "guardar_det"_u));
    EXPECT_EQ(diferencia_de_totales(dj), QString());
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
    cnRtn.ejecutarGuion(
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

// The panel tells the calculation that was made, whether it still stands, and changes no field.
TEST_F(PantallasFormularios, LosPasosDelUltimoCalculoYLosDeUnaOperacionGuardada)
{
    nueva_escritura(nueva_dj(), 1, 1, 1, 1);
    cnRtn.ejecutar("update SEL_TB_ROLES set SROL_REQUERIDO=0"_u);
    QWidget* f = abrirOperacion("29");
    escribir(f, "nroAdicionales"_u, "10"_u);
    const auto abrir_pasos = [&f](const char* aviso, const char* ultimo) {
        if (!cargada<frmPasos>())
            clic(f, "cmdPasos"_u);
        QWidget* p = formulario("frmPasos");
        EXPECT_TRUE(texto(p, "lblAviso"_u).contains(QString::fromUtf8(aviso)));
        const int n = manejo::filas(p, "flxPasos"_u);
        EXPECT_EQ(n == 0 ? QString() : en_grilla(p, "flxPasos"_u, n - 1, 4).replace(QChar::Nbsp, u' '),
                  QLatin1StringView(ultimo));
        return p;
    };
    QWidget* p = abrir_pasos("como se hicieron.", "$ 3.010,00");
    clic(p, "cmdCopiar"_u);
    EXPECT_TRUE(QApplication::clipboard()->text().endsWith(
        "Impuesto de la operación\tMenos el pago a cuenta, más los adicionales: $ 3.000,00 - $ 0,00 + $ 10,00\ta 2 decimales\t$ 3.010,00\n"_u));
    clic(p, "cmdImprimir"_u);
    EXPECT_TRUE(formulario("frmReportes")->descargar());
    clic(p, "cmdCerrar"_u);
    pulsar(f, "tlb"_u, "guardar_det"_u);
    cnRtn.ejecutar("update SEL_TB_MODULOS set SMOD_MODULOS=1 where SSUB_ID=5707029"_u);
    clic(abrir_pasos("Después cambió algo", "$ 3.010,00"), "cmdCerrar"_u);
    pulsar(f, "tlb"_u, "salir"_u);

    pulsar(formulario("frmDJ_detalle"), "tlbOp"_u, "editar"_u);
    f = formulario("frmDJ_detalle_op");
    p = abrir_pasos("como fue guardada", "");
    EXPECT_FALSE(control(p, "cmdImprimir"_u)->isEnabled());
    clic(p, "cmdCalcular"_u);
    clic(abrir_pasos("Calculado aparte", "$ 160,00"), "cmdCerrar"_u);
    EXPECT_EQ(texto(f, "nroImpuesto"_u) + u' ' + texto(f, "nroMoA"_u), "3.010,00 20,0000"_u);
}

TEST_F(PantallasFormularios, ObligacionAccesoriaYPoliza)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    QWidget* f = abrirOperacion("11");
    valor(f, "1000");
    clic(f, "chkObligAccesoria"_u);
    elegir(f, "cboObligAccesoria_modo"_u, "Prenda"_u);  // not in the item's mask: it adds nothing
    clic(f, "optObligAccesoria_fijo"_u);
    escribir(f, "nroObligAccesoria"_u, "500"_u);
    EXPECT_EQ(texto(f, "nroBaseImponible"_u).remove(u'.'), "1000,00"_u);
    EXPECT_FALSE(control(f, "txtObligAccesoria_poliza"_u)->isVisible());
    elegir(f, "cboObligAccesoria_modo"_u, "Seguro de Caución"_u);
    escribir(f, "txtObligAccesoria_poliza"_u, "P-1"_u);
    solapa(f, "SSTab1"_u, 1);
    EXPECT_EQ(texto(f, "nroBaseImponible"_u).remove(u'.'), "1500,00"_u);
    solapa(f, "SSTab1"_u, 0);
    clic(f, "optObligAccesoria_porc"_u);
    escribir(f, "nroObligAccesoria"_u, "10"_u);
    EXPECT_EQ(texto(f, "nroBaseImponible"_u).remove(u'.'), "1100,00"_u);
    cnRtn.ejecutar("update SEL_TB_ROLES set SROL_REQUERIDO=0"_u);
    static_cast<frmDJ_detalle_op*>(f)->SeleccionarSubconcepto(5707011);
    EXPECT_EQ(texto(f, "ctlCodS"_u), "11"_u);  // the code by its place in the identifier
    clic(f, "chkObligAccesoria"_u);
    clic(f, "chkObligAccesoria"_u);
    elegir(f, "cboObligAccesoria_modo"_u, "Seguro de Caución"_u);
    pulsar(f, "tlb"_u, "guardar_det"_u);
    EXPECT_EQ(
        filas(
            "select SINS_OBLIG_ACCESORIA_FOP, SINS_OBLIG_ACCESORIA_VALOR, SINS_OBLIG_ACCESORIA_MODO, SINS_OBLIG_ACCESORIA_POLIZA from SEL_TB_RTN_INS_OPERACIONES"_u),
        "P|10.0|1|P-1"_u);
    clic(f, "cmdDetallesSSUB"_u);
    auto* detalle = formulario("frmDetalleSSUB");
    EXPECT_EQ(texto(detalle, "txtCodS"_u) + texto(detalle, "txtDescripcion"_u), "11CONSTITUCION DE HIPOTECA"_u);
    clic(detalle, "cmdCerrar"_u);
    pulsar(f, "tlb"_u, "salir"_u);
    pulsar(formulario("frmDJ_detalle"), "tlbOp"_u, "editar"_u);
    f = formulario("frmDJ_detalle_op");
    // The column holds 1 or 0: the first mode of that kind shows, not the one that was chosen.
    EXPECT_EQ(texto(f, "cboObligAccesoria_modo"_u), "Fianza"_u);
}

TEST_F(PantallasFormularios, PrestamoYValoresBorrados)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    for (const int id : {1, 2})
        cnRtn.ejecutar(
            "insert into SEL_TB_RTN_INS_INMUEBLES (SEDJ_NRO, SEDD_ID, SEII_ID, SEII_PARTIDA, SEII_VAL_FISCAL) values ('%1', 1, %2, '5', %3)"_u
                .arg(dj)
                .arg(id)
                .arg(id * 1000));
    QWidget* f = abrirOperacion("6");
    valor(f, "5000");
    Cajas::durante({{"Ingrese la valuación fiscal"_u}}, [&] { pulsar(f, "tlb"_u, "guardar_det"_u); });
    clic(f, "cmdBienes"_u);
    celda(f, "flxInm"_u, 1, 1);
    EXPECT_EQ(texto(f, "lblValuacionFiscal"_u), "Valuación fiscal - Val.Fiscal: $2.000,00"_u);
    Cajas::durante({{"Ingrese el monto de la hipoteca"_u}}, [&] { pulsar(f, "tlb"_u, "guardar_det"_u); });
    escribir(f, "nroHipoteca"_u, "6000"_u);
    // Both the base and the tax are computed on the change of the tab, and each says it.
    const CajaEsperada prestamo{"El préstamo no puede ser mayor que el precio de venta"_u, "Atención"_u};
    Cajas::durante({prestamo, prestamo}, [&] { solapa(f, "SSTab1"_u, 1); });
    EXPECT_EQ(texto(f, "ctlBaseImponiblePesos"_u), "0,00"_u);
    Cajas::durante({prestamo, prestamo}, [&] { solapa(f, "SSTab1"_u, 0); });
    escribir(f, "nroHipoteca"_u, "1000"_u);
    solapa(f, "SSTab1"_u, 1);
    EXPECT_EQ(texto(f, "ctlBaseImponiblePesos"_u), "4.000,00"_u);
    solapa(f, "SSTab1"_u, 0);
    pulsar(f, "tlbBI"_u, "editar"_u);
    EXPECT_EQ(texto(f, "nroValorContractual"_u).remove(u'.'), "5000,00"_u);
    escribir(f, "nroValorContractual"_u, "3000"_u);
    pulsar(f, "tlbBI"_u, "cancelar"_u);
    EXPECT_EQ(dato("select SVCI_VALOR_CONTRACTUAL from SEL_TB_RTN_INS_VC"_u), "5000.0"_u);
    Cajas::durante(
        {{"Esta seguro que desea borrar el valor contractual seleccionado?"_u, "Borrar valor contractual"_u}},
        [&] { pulsar(f, "tlbBI"_u, "borrar"_u); });
    EXPECT_EQ(texto(f, "nroTotalVC"_u), "0,00"_u);
    EXPECT_FALSE(habilitado(f, "tlbBI"_u, "borrar"_u));
}

// The keys over the grid of roles: which editor is open, where the grid stands, what it holds.
TEST_F(PantallasFormularios, TeclasEnLaGrillaDeRoles)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    for (const char* id : {"1", "2"})
        cnRtn.ejecutar("insert into SEL_TB_RTN_INS_PARTES (SEDJ_NRO, SEDD_ID, SPIN_ID, GTDC_ID, SPIN_CUIT_EN_TRAMITE,"
                       " SPIN_RSOCIAL, SPIN_NACIONALIDAD) values ('%1', 1, %2, '80', 1, 'P', 'A')"_u.arg(
                           dj, QLatin1StringView(id)));
    QWidget* f = abrirOperacion("1");
    solapa(f, "SSTab1"_u, 2);
    auto* grilla = f->findChild<QTableView*>("flxPartes"_u);
    auto* lista = grilla->findChild<QComboBox*>("cboRoles"_u);
    auto* obs = grilla->findChild<QLineEdit*>("txtRolObs"_u);
    const auto estado = [&] {
        const QModelIndex i = grilla->currentIndex();
        QString abierto = "-"_u;
        if (lista->isVisible())
            abierto = "lista "_u + lista->currentText();
        else if (obs->isVisible())
            abierto = "obs "_u + obs->text() + u'/' + obs->selectedText();
        return "%1,%2 %3"_u.arg(QString::number(i.row()), QString::number(i.column()), abierto);
    };
    struct K
    {
        Qt::Key tecla;
        const char* estado;  // the cell, and the editor over it with its text and what is selected of it
    };
    celda(f, "flxPartes"_u, 0, 6);
    for (const K& k : {
             K{Qt::Key_Escape, "0,6 -"},
             K{Qt::Key_X, "0,6 obs x/"},
             K{Qt::Key_Y, "0,6 obs xy/"},
             K{Qt::Key_Left, "0,6 obs xy/"},
             K{Qt::Key_Home, "0,6 obs xy/"},
             K{Qt::Key_Left, "0,5 lista "},      // at the start of the text it goes to the next cell
             K{Qt::Key_Right, "0,6 obs xy/xy"},  // which wrote what was typed
             K{Qt::Key_Right, "0,7 -"},          // no editor there
             K{Qt::Key_A, "0,7 -"},
             K{Qt::Key_Down, "1,7 -"},
             K{Qt::Key_Left, "1,6 -"},
             K{Qt::Key_Z, "1,6 obs z/"},
             K{Qt::Key_Down, "1,6 obs z/"},  // the last row
             K{Qt::Key_Up, "0,6 obs xy/xy"},
             K{Qt::Key_Delete, "0,6 obs /"},
             K{Qt::Key_Escape, "0,6 -"},  // dropped: the cell keeps its text
             K{Qt::Key_Down, "1,6 obs z/z"},
             K{Qt::Key_Up, "0,6 obs xy/xy"},
             K{Qt::Key_Return, "0,6 -"},
             K{Qt::Key_Left, "0,5 -"},
             K{Qt::Key_Space, "0,5 lista "},
             K{Qt::Key_Left, "0,3 -"},  // the column of the identifiers is hidden
         }) {
        QTest::keyClick(f->focusWidget(), k.tecla);
        QApplication::processEvents();
        EXPECT_EQ(estado(), QString::fromUtf8(k.estado));
    }
    EXPECT_EQ(en_grilla(f, "flxPartes"_u, 0, 6) + en_grilla(f, "flxPartes"_u, 1, 6), "xyz"_u);
}

// The question of another item, what the catalogue hands over, and what a party's window leaves in the grid.
TEST_F(Pantallas, CambiarLaOperacionYLasObservacionesSinRol)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    QWidget* f = abrirOperacion(dj);
    teclear(f, "ctlCodS"_u, "1"_u);
    pulsar(f, "tlb"_u, "guardar_op"_u);
    solapa(f, "SSTab1"_u, 2);
    // A letter on a role's cell goes to the first role that begins with it.
    auto* grilla = control(f, "flxPartes"_u);
    celda(f, "flxPartes"_u, 0, 3);
    celda(f, "flxPartes"_u, 0, 5);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QTest::keyClick(grilla, Qt::Key_C);
    EXPECT_EQ(qobject_cast<QComboBox*>(control(f, "cboRoles"_u))->currentText(), "COMPRADOR"_u);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    celda(f, "flxPartes"_u, 1, 6);
    QTest::keyClicks(QApplication::focusWidget(), "sin rol"_u);
    pulsar(f, "tlbPartes"_u, "editar"_u);
    pulsar(formulario("frmDJ_detalle_parte"), "tlb"_u, "cancelar"_u);
    EXPECT_EQ(en_grilla(f, "flxPartes"_u, 1, 6), "sin rol"_u);

    // Nothing is asked while no party has a role, nor when every one has "(ninguno)".
    pulsar(f, "tlb"_u, "cambiar_op"_u);
    Cajas::durante({{"El subconcepto 101 no se encuentra en la ley 5707"_u}},
                   [&] { static_cast<frmDJ_detalle_op*>(f)->SeleccionarSubconcepto(5707101); });
    EXPECT_EQ(texto(f, "ctlCodS"_u), "101"_u);
    static_cast<frmDJ_detalle_op*>(f)->SeleccionarSubconcepto(5707001);
    EXPECT_EQ(texto(f, "txtSubconcepto"_u), "COMPRAVENTA DE INMUEBLES"_u);
    pulsar(f, "tlb"_u, "guardar_op"_u);
    EXPECT_EQ(en_grilla(f, "flxPartes"_u, 0, 5), "(ninguno)"_u);
    pulsar(f, "tlb"_u, "cancelar"_u);
    pulsar(f, "tlb"_u, "cambiar_op"_u);
    pulsar(f, "tlb"_u, "guardar_op"_u);
    solapa(f, "SSTab1"_u, 2);
    celda(f, "flxPartes"_u, 0, 5);
    elegir(f, "cboRoles"_u, "VENDEDOR"_u);
    pulsar(f, "tlb"_u, "cancelar"_u);
    Cajas::durante({{"Esta acción borrará los roles"_u, {}, false}}, [&] { pulsar(f, "tlb"_u, "cambiar_op"_u); });
}

}  // namespace
