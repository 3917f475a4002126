// SPDX-License-Identifier: GPL-3.0-or-later
// The list of the catalogue by keys and clicks.

#include "apoyo/catalogo.h"
#include "widgets/grilla.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QMessageBox>
#include <QTest>

namespace {

using namespace manejo;

TEST_F(PantallasCatalogo, ElCatalogoSeFiltraSeOrdenaYSeElige)
{
    QWidget* op = operacion();
    clic(op, "cmdBuscarSubcon"_u);
    auto* f = formulario("frmSubconceptos");
    EXPECT_FALSE(op->isEnabled());
    EXPECT_EQ(elemento_activo(f), "txtSubconcepto"_u);
    const int todos = dato("select count(*) from SEL_TB_SUBCONCEPTOS where SSUB_ID>5707000"_u).toInt();
    EXPECT_EQ(texto(f, "lblResultado"_u), "%1 registros"_u.arg(todos));
    auto* grilla = static_cast<Grilla*>(control(f, "grilla"_u));
    QHeaderView* titulos = grilla->horizontalHeader();
    QTest::mouseClick(titulos->viewport(), Qt::LeftButton, {}, {titulos->sectionViewportPosition(1) + 10, 5});
    EXPECT_EQ(
        en_grilla(f, "grilla"_u, 0, 1),
        dato(
            "select SSUB_DESCRIPCION from SEL_TB_SUBCONCEPTOS where SSUB_ID>5707000 order by SSUB_DESCRIPCION collate ESPANOL"_u));
    EXPECT_EQ(botones(f, "toolbar", "salir buscar seleccionar nuevo modificar borrar marcar desmarcar"), "11111111"_u);
    clic(f, "chkUso"_u);
    elegir(f, "cboCriterioSubcon"_u, "Termina con"_u);
    escribir(f, "txtSubconcepto"_u, "compraventa de inmuebles"_u);
    pulsar(f, "toolbar"_u, "buscar"_u);
    ASSERT_EQ(texto(f, "lblResultado"_u), "1 registro"_u);
    EXPECT_EQ(en_grilla(f, "grilla"_u, 0, 0) + u' ' + en_grilla(f, "grilla"_u, 0, 7), "1 01/01/2025"_u);
    for (const auto& [modulos, muestra] : {std::pair{"50", "50"}, {"7.5", "7,5"}, {"0", "0"}, {"null", ""}}) {
        cnRtn.ejecutar("update SEL_TB_SUBCONCEPTOS set SSUB_MODULOSMIN=%1 where SSUB_ID=5707001"_u.arg(
            QLatin1StringView(modulos)));
        pulsar(f, "toolbar"_u, "buscar"_u);
        EXPECT_EQ(en_grilla(f, "grilla"_u, 0, 5), QLatin1StringView(muestra));
    }
    pulsar(f, "toolbar"_u, "desmarcar"_u);
    EXPECT_EQ(texto(f, "lblResultado"_u), "0 registros"_u);
    EXPECT_EQ(botones(f, "toolbar", "salir buscar seleccionar nuevo modificar borrar marcar desmarcar"), "11010000"_u);
    clic(f, "chkUso"_u);
    pulsar(f, "toolbar"_u, "buscar"_u);
    // An item that is not marked for this program is refused where it is to be used.
    Cajas::durante({{"El subconcepto 1 no se encuentra habilitado para el módulo para escribanos"_u}},
                   [&] { pulsar(f, "toolbar"_u, "seleccionar"_u); });
    EXPECT_TRUE(op->isEnabled());
    EXPECT_EQ(texto(op, "txtSubconcepto"_u), QString());
    clic(op, "cmdBuscarSubcon"_u);
    f = formulario("frmSubconceptos");
    elegir(f, "cboCriterioSubcon"_u, "Termina con"_u);
    escribir(f, "txtSubconcepto"_u, "compraventa de inmuebles"_u);
    pulsar(f, "toolbar"_u, "buscar"_u);
    pulsar(f, "toolbar"_u, "marcar"_u);
    grilla = static_cast<Grilla*>(control(f, "grilla"_u));
    const QPoint celda_1 = grilla->visualRect(grilla->model()->index(0, 1)).center();
    QTest::mouseClick(grilla->viewport(), Qt::LeftButton, {}, celda_1);
    QTest::mouseDClick(grilla->viewport(), Qt::LeftButton, {}, celda_1);
    QApplication::processEvents();
    EXPECT_EQ(texto(op, "txtSubconcepto"_u), "COMPRAVENTA DE INMUEBLES"_u);
    EXPECT_TRUE(op->isEnabled());
}

// The menu's entry, were it ever shown, opens the catalogue once.
TEST_F(PantallasCatalogo, LaEntradaDelMenu)
{
    auto* entrada = principal->findChild<QAction*>("smSubconceptos"_u);
    EXPECT_FALSE(entrada->isVisible() || entrada->isEnabled());
    entrada->setVisible(true);
    principal->Hab_Deshab_Menu(true);
    entrada->trigger();
    auto* f = formulario("frmSubconceptos");
    EXPECT_FALSE(entrada->isEnabled());
    EXPECT_EQ(texto(f, "lblResultado"_u), dato("select count(*)||' registros' from SEL_TB_SUBCONCEPTOS"_u));
    pulsar(f, "toolbar"_u, "salir"_u);
    EXPECT_TRUE(entrada->isEnabled());
}

TEST_F(PantallasCatalogo, BorrarUnSubconceptoQueSeUsa)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_INS_OPERACIONES (SEDJ_NRO, SEDD_ID, SEDO_ID, SSUB_ID) values ('%1', 1, 1, 5707001)"_u
            .arg(dj));
    QWidget* f = catalogo();
    EXPECT_FALSE(habilitado(f, "toolbar"_u, "seleccionar"_u));
    elegir(f, "cboCriterioSubcon"_u, "Termina con"_u);
    escribir(f, "txtSubconcepto"_u, "compraventa de inmuebles"_u);
    clic(f, "chkLey"_u);
    escribir(f, "txtLey"_u, "5707"_u);
    pulsar(f, "toolbar"_u, "buscar"_u);
    const CajaEsperada pregunta{"¿Está seguro que desea borrar el subconcepto seleccionado? "_u, "Borrar subconcepto"_u,
                                false, QMessageBox::Question, true};
    Cajas::durante({pregunta}, [&] { pulsar(f, "toolbar"_u, "borrar"_u); });
    Cajas::durante(
        {{pregunta.texto}, {"El dato está en uso"_u, "Borrar subconcepto de sellos"_u, true, QMessageBox::Information}},
        [&] { pulsar(f, "toolbar"_u, "borrar"_u); });
    // A role of the item that is in use holds it too.
    cnRtn.ejecutarGuion(
        "delete from SEL_TB_RTN_INS_OPERACIONES; insert into SEL_TB_RTN_INS_ROLES values ('%1', 1, 1, 1, 5707001001, null)"_u
            .arg(dj));
    Cajas::durante({{pregunta.texto}, {"El dato está en uso"_u, "Borrar subconcepto de sellos"_u}},
                   [&] { pulsar(f, "toolbar"_u, "borrar"_u); });
    EXPECT_EQ(dato("select count(*) from SEL_TB_ROLES where SSUB_ID=5707001"_u), "3"_u);
    cnRtn.ejecutar("delete from SEL_TB_RTN_INS_ROLES"_u);
    Cajas::durante({{pregunta.texto}}, [&] { pulsar(f, "toolbar"_u, "borrar"_u); });
    EXPECT_EQ(texto(f, "lblResultado"_u), "0 registros"_u);
    EXPECT_EQ(dato("select count(*) from SEL_TB_SUBCONCEPTOS where SSUB_ID=5707001"_u), "0"_u);
}

}  // namespace
