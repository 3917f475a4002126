// SPDX-License-Identifier: GPL-3.0-or-later
// A deed and its real estate by keys and clicks.

#include "apoyo/pantallas.h"

#include <QAction>
#include <QLineEdit>
#include <QMessageBox>

namespace {

using namespace manejo;

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
    cnRtn.ejecutarGuion(
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

TEST_F(PantallasFormularios, EscrituraNoAlcanzadaPorOtroMotivo)
{
    const QString dj = nueva_dj();
    QWidget* f = abrirEscritura(true);
    escribir(f, "txtNroEscritura"_u, "5"_u);
    escribir(f, "txtFolio"_u, "5"_u);
    escribir(f, "nroDia"_u, "5"_u);
    elegir(f, "cboAlcanzado"_u, "No alcanzado"_u);
    EXPECT_FALSE(control(f, "txtNoAlcanzado_Otro"_u)->isEnabled());
    elegir(f, "cboDesc_NoAlcanzado"_u, "Otro"_u);
    EXPECT_EQ(f->focusWidget(), control(f, "txtNoAlcanzado_Otro"_u));
    Cajas::durante({{"Ingrese la descripcion de la operación No Alcanzada"_u}},
                   [&] { pulsar(f, "tlbDetalle"_u, "aceptar"_u); });
    escribir(f, "txtNoAlcanzado_Otro"_u, "Un motivo"_u);
    pulsar(f, "tlbDetalle"_u, "aceptar"_u);
    EXPECT_EQ(filas("select SEDD_ESCRITURA_NRO, SEDD_ALCANZADO, SNAD_ID, SNAD_DESC_OTRO from SEL_TB_RTN_DETDJ"_u),
              "5|N|9|Un motivo"_u);
    EXPECT_FALSE(control(f, "fraOperaciones"_u)->isEnabled());
    pulsar(f, "tlbDetalle"_u, "editar"_u);
    escribir(f, "txtObs"_u, "no se guarda"_u);
    pulsar(f, "tlbDetalle"_u, "cancelar"_u);
    EXPECT_EQ(texto(f, "txtObs"_u), QString());
    pulsar(f, "tlbDetalle"_u, "salir"_u);  // nothing is missing, nothing is asked
    EXPECT_EQ(en_grilla(formulario("frmDJ_editar"), "flxOp"_u, 0, 4), "No alcanzado"_u);
    EXPECT_EQ(dj.size(), 17);
}

TEST_F(PantallasFormularios, InmuebleDeOtraJurisdiccion)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    QWidget* e = abrirEscritura(false);
    pulsar(e, "tlbInm"_u, "agregar"_u);
    auto* f = formulario("frmDJ_editar_inmueble");
    escribir(f, "txtINM_partida"_u, "1a2"_u);
    Cajas::durante({{"Indique la ubicación del inmueble"_u, "Alta de inmueble"_u}},
                   [&] { pulsar(f, "tlb"_u, "aceptar"_u); });
    elegir(f, "cboProv"_u, "CHACO"_u);
    elegir(f, "cboU_caracter"_u, "RURAL"_u);
    EXPECT_EQ(texto(f, "cboProv"_u), "MARVEN"_u);  // whatever it held
    elegir(f, "cboU_caracter"_u, "EXTRAÑA JURISDICCION"_u);
    EXPECT_EQ(texto(f, "cboProv"_u), QString());
    elegir(f, "cboProv"_u, "MENDOZA"_u);
    elegir(f, "cboU_caracter"_u, "EXTRAÑA JURISDICCION"_u);
    EXPECT_EQ(texto(f, "cboProv"_u), "MENDOZA"_u);
    elegir(f, "cboLoc"_u, "MENDOZA"_u);
    Cajas::durante({{"Indique la valuación fiscal del inmueble"_u}}, [&] { pulsar(f, "tlb"_u, "aceptar"_u); });
    escribir(f, "nroValFiscal"_u, "1234.5"_u);
    pulsar(f, "tlb"_u, "aceptar"_u);
    EXPECT_EQ(
        filas(
            "select SEII_PARTIDA, SEII_VAL_FISCAL, SEII_UBIC_CIUDAD, SEII_UBIC_PROVINCIA, GTUB_ID, SEII_UBIC_LOTE from SEL_TB_RTN_INS_INMUEBLES"_u),
        "12|1234.5|MENDOZA|MENDOZA|4|null"_u);
    pulsar(e, "tlbInm"_u, "editar"_u);
    f = formulario("frmDJ_editar_inmueble");
    EXPECT_EQ(texto(f, "cboLoc"_u) + texto(f, "nroValFiscal"_u), "MENDOZA1.234,50"_u);
    escribir(f, "txtU_Lote"_u, "L1"_u);
    pulsar(f, "tlb"_u, "cancelar"_u);
    EXPECT_EQ(dato("select SEII_UBIC_LOTE from SEL_TB_RTN_INS_INMUEBLES"_u), "null"_u);
    Cajas::durante({{"¿Esta seguro de borrar el inmueble seleccionado?"_u, "Borrar inmueble"_u}},
                   [&] { pulsar(e, "tlbInm"_u, "quitar"_u); });
    EXPECT_EQ(dato("select count(*) from SEL_TB_RTN_INS_INMUEBLES"_u), "0"_u);
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

TEST_F(Pantallas, ElReciboSeVaConLaUltimaOperacion)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    for (const char* n : {"1", "2"})
        cnRtn.ejecutar(
            "insert into SEL_TB_RTN_INS_OPERACIONES (SEDJ_NRO, SEDD_ID, SEDO_ID, SSUB_ID, SINS_MONTO_FINAL) values ('%1', 1, %2, 5707001, 0.005)"_u
                .arg(dj, QLatin1StringView(n)));
    QWidget* e = abrirEscritura(false);
    // Row by row through the field: half a cent goes up each time.
    EXPECT_EQ(texto(e, "nroTotalImpuesto"_u), "0,02"_u);
    pulsar(e, "tlbDetalle"_u, "cancelar"_u);
    solapa(e, "SSTab1"_u, 1);
    for (const bool queda : {true, false}) {
        EXPECT_TRUE(habilitado(e, "tlbDetalle"_u, "recibo"_u));
        Cajas::durante({{"¿Está seguro que desea borrar la operación seleccionada?"_u}},
                       [&] { pulsar(e, "tlbOp"_u, "quitar"_u); });
        EXPECT_EQ(habilitado(e, "tlbDetalle"_u, "recibo"_u), queda);
    }
}

// A text past what is emitted says so at once, and is stored all the same.
TEST_F(Pantallas, UnTextoMasLargoQueLoEmitidoLlevaUnaMarca)
{
    nueva_escritura(nueva_dj(), 1, 1, 1, 1);
    pulsar(abrirEscritura(false), "tlbInm"_u, "agregar"_u);
    auto* f = formulario("frmDJ_editar_inmueble");
    auto* calle = qobject_cast<QLineEdit*>(control(f, "txtU_calle"_u));
    const auto* marca = calle->findChild<QAction*>("largo"_u);
    ASSERT_TRUE(marca);
    teclear(f, "txtU_calle"_u, " belgrano 5"_u);
    EXPECT_FALSE(marca->isVisible());
    caracteres(calle, "0"_u);
    EXPECT_TRUE(marca->isVisible());
    EXPECT_EQ(calle->toolTip(), "La declaración jurada emitida toma 10 caracteres"_u);
    QTest::keyClick(calle, Qt::Key_Backspace);
    EXPECT_FALSE(marca->isVisible());
    EXPECT_EQ(calle->toolTip(), QString());
    caracteres(calle, "55"_u);
    escribir(f, "txtINM_partida"_u, "1"_u);
    escribir(f, "nroValFiscal"_u, "10"_u);
    elegir(f, "cboU_caracter"_u, "URBANO"_u);
    pulsar(f, "tlb"_u, "aceptar"_u);
    EXPECT_EQ(dato("select SEII_UBIC_CALLE from SEL_TB_RTN_INS_INMUEBLES"_u), " belgrano 555"_u);
}

}  // namespace
