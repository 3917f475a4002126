// SPDX-License-Identifier: GPL-3.0-or-later
// Brackets, roles and masks of an item.

#include "apoyo/catalogo.h"
#include "widgets/ctlNumero.h"

#include <QMessageBox>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

namespace {

using namespace manejo;

TEST_F(PantallasCatalogo, ElTipoDeCalculoAtadoASusRangos)
{
    cnRtn.ejecutarGuion(
        "delete from SEL_TB_MODULOS where SSUB_ID=5707001; delete from SEL_TB_ALICUOTAS where SSUB_ID=5707001;"
        "insert into SEL_TB_ALICUOTAS values (5707001, 5707001001, 0, -1, 0.01, null, null)"_u);
    QWidget* f = editor(5707001);
    auto* solapas = static_cast<QTabWidget*>(control(f, "SSTab1"_u));
    pulsar(f, "toolbar"_u, "editar"_u);
    EXPECT_EQ(solapas->tabText(2), "Alícuotas"_u);
    Cajas::durante(
        {{"No puede cambiar el tipo de calculo a FIJO ya que tiene alícuotas asignadas. Para cambiar el tipo de cálculo elimine primero las alícuotas asignadas."_u,
          f->windowTitle(), true, QMessageBox::Information, true}},
        [&] { elegir(f, "ctlTipoCalculo"_u, "FIJO PROPORCIONAL"_u); });
    EXPECT_EQ(texto(f, "ctlTipoCalculo"_u), "VARIABLE"_u);
    solapa(f, "SSTab1"_u, 2);
    Cajas::durante({{"¿Está seguro que desea borrar la alicuota seleccionada?"_u, "Borrar alicuota de sellos"_u, true,
                     QMessageBox::Question, true}},
                   [&] { pulsar(f, "tlbAlicuotas"_u, "borrar"_u); });
    EXPECT_EQ(botones(f, "tlbAlicuotas", "alta modificar borrar"), "100"_u);
    solapa(f, "SSTab1"_u, 0);
    elegir(f, "ctlTipoCalculo"_u, "FIJO"_u);
    EXPECT_EQ(solapas->tabText(2), "Módulos"_u);
    solapa(f, "SSTab1"_u, 2);
    pulsar(f, "tlbModulos"_u, "alta"_u);
    auto* m = formulario("frmEditarModulo");
    EXPECT_EQ(m->windowTitle(), "Nuevo rango con impuesto fijo"_u);
    Cajas::durante({{"Insgrese la cantidad de módulos."_u, m->windowTitle(), true, QMessageBox::Information, true}},
                   [&] { tecla(m, "nroModulos"_u, Qt::Key_Return); });
    escribir(m, "nroModulos"_u, "7.5"_u);
    tecla(m, "nroModulos"_u, Qt::Key_Return);
    EXPECT_EQ(en_grilla(f, "grillaModulos"_u, 0, 0) + u' ' + en_grilla(f, "grillaModulos"_u, 0, 2), "0,00 7,5"_u);
    // As many decimals as the calculation takes, and never an exponent.
    pulsar(f, "tlbModulos"_u, "modificar"_u);
    m = formulario("frmEditarModulo");
    EXPECT_EQ(texto(m, "nroModulos"_u), "7,5000"_u);
    escribir(m, "nroModulos"_u, "0.00012"_u);
    tecla(m, "nroModulos"_u, Qt::Key_Return);
    EXPECT_EQ(dato("select SMOD_MODULOS=0.0001 from SEL_TB_MODULOS where SSUB_ID=5707001"_u), "1"_u);
    EXPECT_EQ(en_grilla(f, "grillaModulos"_u, 0, 2), "0,0001"_u);
    for (const auto& [valor, muestra] : {std::pair{"1e-05", "0,00001"}, {"1e6", "1000000"}, {"20", "20"}}) {
        cnRtn.ejecutar(
            "update SEL_TB_MODULOS set SMOD_MODULOS=%1 where SSUB_ID=5707001"_u.arg(QLatin1StringView(valor)));
        static_cast<frmEditarSubconceptoSellos*>(f)->obtener_modulos();
        EXPECT_EQ(en_grilla(f, "grillaModulos"_u, 0, 2), QLatin1StringView(muestra));
    }
    solapa(f, "SSTab1"_u, 0);
    Cajas::durante({{"No puede cambiar el tipo de calculo a VARIABLE ya que tiene rangos con impusto fijo."_u}},
                   [&] { elegir(f, "ctlTipoCalculo"_u, "VARIABLE"_u); });
    EXPECT_EQ(texto(f, "ctlTipoCalculo"_u), "FIJO"_u);
    // A row chosen by a click in the list that is still open counts when the item is saved.
    QTest::mouseClick(control(f, "ctlTipoCalculo"_u)->findChild<QToolButton*>(), Qt::LeftButton);
    auto* lista = control(f, "ctlTipoCalculo"_u)->findChild<QTreeWidget*>();
    lista->setFocus();
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, lista->visualItemRect(lista->topLevelItem(1)).center());
    pulsar(f, "toolbar"_u, "aceptar"_u);
    EXPECT_EQ(dato("select STIC_ID from SEL_TB_SUBCONCEPTOS where SSUB_ID=5707001"_u), "2"_u);
}

TEST_F(PantallasCatalogo, UnaAlicuotaPorSuFraccion)
{
    cnRtn.ejecutar("delete from SEL_TB_ALICUOTAS where SSUB_ID=5707001"_u);
    QWidget* f = editor(5707001);
    solapa(f, "SSTab1"_u, 2);
    EXPECT_EQ(botones(f, "tlbAlicuotas", "alta modificar borrar"), "000"_u);
    pulsar(f, "toolbar"_u, "editar"_u);
    pulsar(f, "tlbAlicuotas"_u, "alta"_u);
    auto* a = formulario("frmEditarAlicuota");
    const auto caja = [&](const char* texto, const char* foco, bool si = true, bool pregunta = false) {
        Cajas::durante({{QString::fromUtf8(texto), a->windowTitle(), si,
                         pregunta ? QMessageBox::Question : QMessageBox::Information, true}},
                       [&] { pulsar(a, "toolbar"_u, "aceptar"_u); });
        EXPECT_EQ(elemento_activo(a), QLatin1StringView(foco));
    };
    EXPECT_EQ(a->windowTitle(), "Nueva alicuota"_u);
    escribir(a, "nroDesde"_u, ""_u);
    caja("Insgrese el Valor Desde", "nroDesde");
    escribir(a, "nroDesde"_u, "100"_u);
    clic(a, "chkValorHasta"_u);
    caja("Insgrese el Valor Hasta", "nroHasta");
    escribir(a, "nroHasta"_u, "100"_u);
    caja("La alicuota es nula\n¿Está seguro que desea darla de alta?", "nroAlicuota", false, true);
    escribir(a, "nroDividendo"_u, "1"_u);
    escribir(a, "nroDivisor"_u, "3"_u);
    EXPECT_EQ(texto(a, "nroAlicuota"_u), "0,3333"_u);
    escribir(a, "nroDivisor"_u, "0"_u);
    escribir(a, "nroAlicuota"_u, "0.005"_u);
    caja("El Valor Desde debe ser menor que el Valor Hasta", "nroDesde");
    escribir(a, "nroHasta"_u, "200"_u);
    pulsar(a, "toolbar"_u, "aceptar"_u);
    EXPECT_EQ(filas("select * from SEL_TB_ALICUOTAS where SSUB_ID=5707001"_u),
              "5707001|5707001001|100.0|200.0|0.005|0.0|1.0"_u);
    pulsar(f, "tlbAlicuotas"_u, "alta"_u);
    a = formulario("frmEditarAlicuota");
    escribir(a, "nroDesde"_u, "150"_u);
    escribir(a, "nroAlicuota"_u, "1"_u);
    caja("El rango ingresado se solapa con otro rango ya ingresado para el subconcepto", "nroDesde");
    tecla(a, "nroAlicuota"_u, Qt::Key_Escape);
    pulsar(f, "tlbAlicuotas"_u, "modificar"_u);
    a = formulario("frmEditarAlicuota");
    EXPECT_EQ(a->windowTitle() + texto(a, "nroHasta"_u) + elemento_activo(a), "Modificar alicuota200,00nroAlicuota"_u);
    EXPECT_FALSE(static_cast<ctlNumero*>(control(a, "nroDesde"_u))->Enabled()
                 || control(a, "chkValorHasta"_u)->isEnabled());
    teclear(a, "nroAlicuota"_u, "0.020004"_u);  // stored as it will show
    tecla(a, "nroAlicuota"_u, Qt::Key_Return);
    EXPECT_EQ(dato("select SALI_ALICUOTA from SEL_TB_ALICUOTAS where SSUB_ID=5707001"_u), "0.02"_u);
    EXPECT_EQ(en_grilla(f, "grillaAlicuotas"_u, 0, 2), "0,02"_u);
}

TEST_F(PantallasCatalogo, RolesYMascaras)
{
    QWidget* f = editor(5707001);
    pulsar(f, "toolbar"_u, "editar"_u);
    solapa(f, "SSTab1"_u, 3);
    pulsar(f, "tlbRoles"_u, "alta"_u);
    auto* r = formulario("frmEditarRol");
    clic(r, "chkSSUBAtributo"_u);
    elegir(r, "cboSSUBAtributos"_u, "SSUB_HIPOTECA"_u);
    clic(r, "optEsporadico"_u);
    clic(r, "optRequerido"_u);
    // Always required, it depends on nothing; the attribute stays behind the frame.
    EXPECT_FALSE(control(r, "fraSSUBAtributo"_u)->isEnabled());
    EXPECT_EQ(texto(r, "cboSSUBAtributos"_u), "SSUB_HIPOTECA"_u);
    escribir(r, "txtDescripcion"_u, "acompañante"_u);
    Cajas::durante({{"Ingrese el valor para el atributo SSUB_HIPOTECA para el cual será exigible este rol"_u,
                     "Nuevo rol de participante"_u}},
                   [&] { tecla(r, "txtDescripcion"_u, Qt::Key_Return); });
    clic(r, "optEsporadico"_u);
    clic(r, "chkSSUBAtributo"_u);
    EXPECT_EQ(texto(r, "cboSSUBAtributos"_u), QString());
    tecla(r, "txtDescripcion"_u, Qt::Key_Return);
    ASSERT_EQ(manejo::filas(f, "grillaRoles"_u),
              dato("select count(*) from SEL_TB_ROLES where SSUB_ID=5707001"_u).toInt());
    EXPECT_EQ(en_grilla(f, "grillaRoles"_u, 0, 1) + en_grilla(f, "grillaRoles"_u, 0, 2)
                  + en_grilla(f, "grillaRoles"_u, 0, 3),
              "ACOMPAÑANTEEsporádicoNo"_u);
    celda(f, "grillaRoles"_u, 0, 1);
    Cajas::durante({{"¿Está seguro que desea borrar la parte seleccionada?"_u, "Borrar parte"_u, true,
                     QMessageBox::Question, true}},
                   [&] { pulsar(f, "tlbRoles"_u, "borrar"_u); });
    EXPECT_EQ(dato("select count(*) from SEL_TB_ROLES where SROL_DESCRIPCION='ACOMPAÑANTE'"_u), "0"_u);
    // A role that a party has in a deed stays.
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_INS_ROLES values ('X', 1, 1, 1, %1, null)"_u.arg(en_grilla(f, "grillaRoles"_u, 0, 0)));
    const int quedan = manejo::filas(f, "grillaRoles"_u);
    celda(f, "grillaRoles"_u, 0, 1);
    Cajas::durante({{"¿Está seguro que desea borrar la parte seleccionada?"_u},
                    {"El dato está en uso"_u, "Borrar rol"_u, true, QMessageBox::Information}},
                   [&] { pulsar(f, "tlbRoles"_u, "borrar"_u); });
    EXPECT_EQ(manejo::filas(f, "grillaRoles"_u), quedan);

    solapa(f, "SSTab1"_u, 1);
    for (const char* n : {"chkGarantiaCumplimiento"})
        clic(f, QLatin1StringView(n));
    escribir(f, "txtGarantiaCumplimiento_suma"_u, "9"_u);
    clic(f, "cmdGaranCump_generar"_u);
    auto* m = formulario("frmCrearMascara");
    EXPECT_EQ(m->windowTitle() + texto(m, "txtMascara"_u), "Modalidad de pago - Garantia de Cumplimiento9"_u);
    tecla(m, "lstElem"_u, Qt::Key_Home);
    tecla(m, "lstElem"_u, Qt::Key_Space);
    EXPECT_EQ(texto(m, "txtMascara"_u), "8"_u);
    tecla(m, "lstElem"_u, Qt::Key_Space);
    tecla(m, "lstElem"_u, Qt::Key_Down);
    tecla(m, "lstElem"_u, Qt::Key_Space);
    EXPECT_EQ(texto(m, "txtMascara"_u), "11"_u);
    pulsar(m, "tlb"_u, "cancelar"_u);
    EXPECT_EQ(texto(f, "txtGarantiaCumplimiento_suma"_u), "9"_u);
}

}  // namespace
