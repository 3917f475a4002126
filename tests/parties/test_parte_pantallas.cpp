// SPDX-License-Identifier: GPL-3.0-or-later
// A party by keys and clicks.

#include "apoyo/pantallas.h"
#include <QComboBox>

#include <QLineEdit>
#include <QMessageBox>
#include <QTest>

namespace {

using namespace manejo;

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

// A foreigner whose country clears the type of document can't be stored without one, and a party that was is seen.
TEST_F(Pantallas, NingunaParteQuedaSinTipoDeDocumento)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_INS_PARTES (SPIN_ID, SEDJ_NRO, SEDD_ID, SPIN_RSOCIAL, SPIN_NACIONALIDAD) values (1, '%1', 1, 'perdida', 'E')"_u
            .arg(dj));
    QWidget* e = abrirEscritura(false);
    ASSERT_EQ(manejo::filas(e, "flxPartes"_u), 1);
    EXPECT_EQ(en_grilla(e, "flxPartes"_u, 0, 1) + en_grilla(e, "flxPartes"_u, 0, 3), "perdida"_u);
    pulsar(e, "tlbPartes"_u, "editar"_u);
    QWidget* f = formulario("frmDJ_detalle_parte");
    EXPECT_EQ(texto(f, "txtRazonSocial"_u), "PERDIDA"_u);
    auto* pais = qobject_cast<QComboBox*>(control(f, "cboCodigoPais"_u));
    elegir(f, "cboCodigoPais"_u, pais->itemText(pais->findText("Jurídica"_u, Qt::MatchContains)));
    Cajas::durante({{"Ingrese el tipo de documento del participante"_u}}, [&] { pulsar(f, "tlb"_u, "aceptar"_u); });
    EXPECT_EQ(con_foco(f), "cboTipoDoc"_u);
}

}  // namespace
