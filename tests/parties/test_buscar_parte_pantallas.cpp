// SPDX-License-Identifier: GPL-3.0-or-later
// The search of a person by keys and clicks.

#include "apoyo/catalogo.h"
#include "declarations/screens/frmDJ_buscar.h"

#include <QApplication>
#include <QRadioButton>

namespace {

using namespace manejo;

TEST_F(PantallasCatalogo, UnaPersonaDeUnaDJAnterior)
{
    const QString dj = nueva_dj(1);
    nueva_escritura(dj, 1, 1, 1, 1);
    cnRtn.ejecutar("insert into SEL_TB_RTN_CABDJ (SEDJ_NRO, SEDJ_ANIO, SEDJ_MES) values ('A', 2020, 1)"_u);
    nueva_escritura("A"_u, 2, 2, 2, 2);
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_INS_PARTES (SPIN_ID, SEDJ_NRO, SEDD_ID, GTDC_ID, SPIN_NRODOC, SPIN_CUIT, SPIN_CUIT_EN_TRAMITE, SPIN_RSOCIAL, SPIN_PORCEXENTO, SPIN_OBS, GTSO_ID, SPIN_DOMICILIO,"
        " SPIN_CODPOSTAL, GLOC_ID, GPRO_ID, SPIN_NACIONALIDAD, CPAI_CODIGO) values "
        "(1, 'A', 2, '80', '20123456786', 20123456786, 0, 'D''ANGELO ANA', 25, 'OBS', 1, 'CALLE 9', '9500', 2, 13, 'A', null),"
        "(2, 'A', 2, '94', 'AB''1', null, 0, 'SILVA JOÃO', null, null, 1, null, null, null, null, 'E', '50000000116'),"
        "(3, 'A', 2, '80', null, null, 1, 'SIN NUMERO', null, null, 1, null, null, null, null, 'A', null)"_u);
    cargar<frmDJ_buscar>()->mostrar();
    escribir(cargar<frmDJ_buscar>(), "nroAnio"_u, "2026"_u);
    QWidget* e = abrirEscritura(false);
    pulsar(e, "tlbPartes"_u, "agregar"_u);
    auto* f = formulario("frmDJ_detalle_parte");
    escribir(f, "txtDomicilio"_u, "antes"_u);
    pulsar(f, "tlb"_u, "buscar"_u);
    auto* b = formulario("frmDJ_buscar_parte");
    EXPECT_FALSE(control(b, "txtRazonSocial"_u)->isEnabled() || control(b, "txtNroDoc"_u)->isEnabled());
    pulsar(b, "tlb"_u, "seleccionar"_u);
    pulsar(b, "tlb"_u, "buscar"_u);
    EXPECT_EQ(texto(b, "lblEncontrados"_u), "Registros encontrados: 3"_u);
    // Sorted by number, the null first; such a party is not found again.
    EXPECT_EQ(en_grilla(b, "flx"_u, 0, 3), "SIN NUMERO"_u);
    pulsar(b, "tlb"_u, "seleccionar"_u);
    elegir(b, "cboTipoDoc"_u, "CUIT"_u);
    teclear(b, "txtNroDoc"_u, "20x"_u);
    Cajas::durante({{"El valor ingresado para CUIT no es válido"_u}}, [&] { tecla(b, "txtNroDoc"_u, Qt::Key_Return); });
    EXPECT_EQ(texto(b, "lblEncontrados"_u) + texto(b, "txtNroDoc"_u), "Registros encontrados: 020X"_u);
    elegir(b, "cboTipoDoc"_u, "(sin filtro)"_u);
    elegir(b, "cboCriterioRazonSocial"_u, "Coincidencia exacta"_u);
    teclear(b, "txtRazonSocial"_u, "ana;(d'angelo)"_u);
    tecla(b, "txtRazonSocial"_u, Qt::Key_Return);
    EXPECT_EQ(texto(b, "txtRazonSocial"_u), "ANA D'ANGELO"_u);
    ASSERT_EQ(manejo::filas(b, "flx"_u), 1);
    tecla(b, "flx"_u, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_TRUE(f->isEnabled());
    EXPECT_EQ(elemento_activo(f), "txtCP"_u);  // where it was before the search
    EXPECT_EQ(texto(f, "cboTipoDoc"_u) + texto(f, "nroDoc"_u) + texto(f, "txtRazonSocial"_u)
                  + texto(f, "txtDomicilio"_u) + texto(f, "txtCP"_u) + texto(f, "cboProv"_u)
                  + texto(f, "nroExencionPorc"_u) + texto(f, "txtObs"_u),
              "CUIT20123456786D'ANGELO ANACALLE 99500MARVEN25,00OBS"_u);
    EXPECT_EQ(texto(f, "cboLoc"_u), dato("select GLOC_DESCRIPCION from GLB_TB_LOCALIDADES where GLOC_ID=2"_u));
    // A foreigner on top of it: the passport's field, the country, and what the row lacks stays.
    pulsar(f, "tlb"_u, "buscar"_u);
    b = formulario("frmDJ_buscar_parte");
    elegir(b, "cboCriterioRazonSocial"_u, "Contiene el texto"_u);
    teclear(b, "txtRazonSocial"_u, "silva"_u);
    tecla(b, "txtRazonSocial"_u, Qt::Key_Return);
    pulsar(b, "tlb"_u, "seleccionar"_u);
    EXPECT_EQ(texto(f, "txtPasaporte"_u) + texto(f, "cboCodigoPais"_u) + texto(f, "cboProv"_u),
              "AB'1ALEMANIA - Física (50000000116)MARVEN"_u);
    EXPECT_TRUE(control(f, "txtPasaporte"_u)->isVisible()
                && static_cast<QRadioButton*>(control(f, "optExtranjera"_u))->isChecked());
    EXPECT_FALSE(control(f, "nroDoc"_u)->isVisible());
    EXPECT_EQ(dato("select count(*) from SEL_TB_RTN_INS_PARTES where SEDJ_NRO='%1'"_u.arg(dj)), "0"_u);
}

}  // namespace
