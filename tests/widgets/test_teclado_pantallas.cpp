// SPDX-License-Identifier: GPL-3.0-or-later
// Focus and keys, as a person who works without the mouse meets them.

#include "agents/screens/frmRTN_buscar.h"
#include "apoyo/catalogo.h"
#include "apoyo/pantallas.h"
#include "application/screens/frmAcercaDe.h"
#include "catalogue/screens/frmCrearMascara.h"
#include "declarations/screens/frmDJ_buscar.h"
#include "declarations/screens/frmDJ_editar.h"
#include "widgets/ctlNumero.h"
#include "widgets/grilla.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

namespace {

using namespace manejo;

class PantallasTeclado : public Pantallas
{
protected:
    void SetUp() override
    {
        Pantallas::SetUp();
        dj_ = nueva_dj();
        for (int i = 1; i <= 3; ++i)
            nueva_escritura(dj_, i, i, i, i);
    }
    static QWidget* lista()
    {
        auto* f = cargar<frmDJ_buscar>();
        f->mostrar();
        return f;
    }
    static QWidget* editorDJ(const char* boton)
    {
        pulsar(lista(), "tlbDJ"_u, QLatin1StringView(boton));
        return formulario("frmDJ_editar");
    }
    static QWidget* parte()
    {
        QWidget* e = abrirEscritura(false);
        pulsar(e, "tlbPartes"_u, "agregar"_u);
        return formulario("frmDJ_detalle_parte");
    }
    static QLineEdit* caja(QWidget* f, const char* numero)
    {
        return control(f, QLatin1StringView(numero))->findChild<QLineEdit*>("txt"_u);
    }
    static void rueda(QWidget* w)
    {
        QWheelEvent evento(QPointF(3, 3), w->mapToGlobal(QPointF(3, 3)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                           Qt::NoScrollPhase, false);
        QApplication::sendEvent(w, &evento);
    }

    QString dj_;
};

TEST_F(PantallasTeclado, ElPrimerClicEnUnNumeroLoEligeTodoYElSegundoPoneElCursor)
{
    QWidget* f = lista();
    QLineEdit* txt = caja(f, "nroMes");
    txt->setText("10"_u);
    caja(f, "nroAnio")->setFocus();
    const QPoint medio(txt->width() - 3, txt->height() / 2);
    QTest::mouseClick(txt, Qt::LeftButton, Qt::NoModifier, medio);
    EXPECT_EQ(txt->selectedText(), "10"_u);
    QTest::keyClicks(txt, "9"_u);
    EXPECT_EQ(txt->text(), "9"_u);
    QTest::keyClicks(txt, "8"_u);
    QTest::mouseClick(txt, Qt::LeftButton, Qt::NoModifier, QPoint(1, txt->height() / 2));
    EXPECT_FALSE(txt->hasSelectedText());
    // A letter never gets in, whatever is held down with it.
    for (const auto m : {Qt::AltModifier, Qt::MetaModifier, Qt::GroupSwitchModifier, Qt::NoModifier})
        QTest::keyClick(txt, Qt::Key_Z, m);
    EXPECT_EQ(txt->text(), "98"_u);
}

TEST_F(PantallasTeclado, LaComaSeDiceYNoEntra)
{
    QWidget* e = editorDJ("modificar");
    solapa(e, "SSTab1"_u, 2);
    QToolTip::hideText();
    teclear(e, "nroEfectivo"_u, "20000,50"_u);
    EXPECT_EQ(texto(e, "nroEfectivo"_u), "2000050"_u);
    EXPECT_EQ(QToolTip::text(), "Los decimales se escriben con el punto"_u);
    teclear(e, "nroEfectivo"_u, "20000.50"_u);
    EXPECT_EQ(texto(e, "nroEfectivo"_u), "20000,50"_u);
}

TEST_F(PantallasTeclado, PegarUnNumero)
{
    QWidget* e = editorDJ("modificar");
    solapa(e, "SSTab1"_u, 2);
    struct Caso
    {
        const char* pegado;
        const char* queda;  ///< after leaving the field
    };
    for (const Caso& c : {Caso{"$ 1.500,00", "1.500,00"},
                          {"1500.5", "1.500,50"},
                          {" 1 500 ", "1.500,00"},
                          {"U$S 1,500.75", "1.500,75"},
                          {"12.345", "12.345,00"},
                          {"45\r\n", "45,00"}}) {
        pegar(e, "nroEfectivo"_u, QString::fromUtf8(c.pegado));
        QTest::keyClick(caja(e, "nroEfectivo"), Qt::Key_Tab);
        EXPECT_EQ(texto(e, "nroEfectivo"_u), QString::fromUtf8(c.queda)) << c.pegado;
    }
    // What is no number goes in as it is, and is refused when it is read: nothing is stored, nothing ends.
    for (const char* malo : {"1.50.00", "doce", "-5", "12,5,5", "1e3", "1; delete from SEL_TB_RTN_CABDJ"}) {
        pegar(e, "nroEfectivo"_u, QString::fromUtf8(malo));
        EXPECT_EQ(texto(e, "nroEfectivo"_u), QString::fromUtf8(malo));
        Cajas::durante({{"No coinciden los tipos"_u, "Modificar DJ"_u}}, [&] { pulsar(e, "tlbB"_u, "generar"_u); });
        EXPECT_EQ(con_foco(e), "nroEfectivo"_u);
        EXPECT_EQ(texto(e, "nroEfectivo"_u), QString::fromUtf8(malo));
    }
    EXPECT_EQ(dato("select count(*) from SEL_TB_RTN_BOLDEP"_u) + dato("select count(*) from SEL_TB_RTN_CABDJ"_u),
              "01"_u);
    static_cast<Formulario*>(e)->descargar();
    QWidget* p = parte();
    for (const auto& [pegado, queda] : {std::pair{"20-12345678-6", "20123456786"},
                                        {"N° 45", "45"},
                                        {"Nro. 22.333.444", "22333444"},
                                        {"nº22333444", "22333444"}}) {
        pegar(p, "nroDoc"_u, QString::fromUtf8(pegado));
        EXPECT_EQ(texto(p, "nroDoc"_u), QLatin1StringView(queda)) << pegado;
    }
}

TEST_F(PantallasTeclado, UnFormularioSeAbreEnSuPrimerCampo)
{
    EXPECT_EQ(con_foco(lista()), "nroAnio"_u);
    QWidget* e = editorDJ("nueva");
    EXPECT_EQ(con_foco(e), "txtRTN_nro"_u);
    acceso(e, Qt::Key_C);  // "cancelar": at rest, where the tabs are what is of use
    EXPECT_EQ(con_foco(e), "SSTab1"_u);
    acceso(e, Qt::Key_E);
    EXPECT_EQ(con_foco(e), "txtRTN_nro"_u);
    static_cast<Formulario*>(e)->descargar();
    e = editorDJ("modificar");
    acceso(e, Qt::Key_E);
    EXPECT_EQ(con_foco(e), "txtObs"_u);
    acceso(e, Qt::Key_P);
    EXPECT_FALSE(habilitado(e, "tlbDJ"_u, "aceptar"_u));
    EXPECT_EQ(con_foco(e), "SSTab1"_u);
    solapa(e, "SSTab1"_u, 1);
    pulsar(e, "tlbDetalle"_u, "editar"_u);
    QWidget* d = formulario("frmDJ_detalle");
    EXPECT_EQ(con_foco(d), "txtNroEscritura"_u);
    acceso(d, Qt::Key_C);
    acceso(d, Qt::Key_E);
    EXPECT_EQ(con_foco(d), "txtNroEscritura"_u);
    pulsar(d, "tlbInm"_u, "agregar"_u);
    EXPECT_EQ(con_foco(formulario("frmDJ_editar_inmueble")), "txtINM_partida"_u);
}

TEST_F(PantallasTeclado, LaOperacionConservaUnFocoQueSirve)
{
    cnRtn.ejecutar("delete from SEL_TB_RTN_DETDJ where SEDD_ID>1"_u);
    QWidget* f = abrirOperacion(dj_);
    EXPECT_EQ(con_foco(f), "ctlCodS"_u);
    ASSERT_TRUE(QApplication::focusWidget());
    EXPECT_TRUE(f->isAncestorOf(QApplication::focusWidget()));
    EXPECT_FALSE(qobject_cast<QLineEdit*>(control(f, "txtSubconcepto"_u))->isReadOnly());
    acceso(f, Qt::Key_B);
    QTest::qWait(300);
    auto* catalogo = formulario("frmSubconceptos");
    acceso(catalogo, Qt::Key_I);
    EXPECT_EQ(con_foco(f), "ctlCodS"_u);
    teclear(f, "ctlCodS"_u, "1"_u);
    acceso(f, Qt::Key_U);
    EXPECT_EQ(con_foco(f), "flxVC"_u);
    EXPECT_TRUE(qobject_cast<QLineEdit*>(control(f, "txtSubconcepto"_u))->isReadOnly());
    pulsar(f, "tlbBI"_u, "nuevo"_u);
    EXPECT_EQ(con_foco(f), "nroValorContractual"_u);
    teclear(f, "nroValorContractual"_u, "77"_u);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(control(f, "fraEditarVC"_u)->isVisible());
    EXPECT_EQ(manejo::filas(f, "flxVC"_u), 0);
    acceso(f, Qt::Key_C);
    EXPECT_NE(con_foco(f), QString());
    acceso(f, Qt::Key_E);
    EXPECT_EQ(con_foco(f), "flxVC"_u);

    // No rate for the base while its tab is in front: the tab of the tax, and the focus in its field.
    cnRtn.ejecutar("delete from SEL_TB_ALICUOTAS where SSUB_ID=5707001"_u);
    Cajas::durante({{"Error: No se encuentra la alícuota correspondiente para este subconcepto"_u}}, [&] {
        teclear(f, "nroValuacionFiscal"_u, "100"_u);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    });
    EXPECT_EQ(qobject_cast<QTabWidget*>(control(f, "SSTab1"_u))->currentIndex(), 1);
    EXPECT_EQ(con_foco(f), "nroMoA"_u);
}

TEST_F(PantallasTeclado, LoQueSoloMuestraSeCierraConEscapeYEnterAcepta)
{
    auto* acerca = cargar<frmAcercaDe>();
    acerca->mostrar();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(cargada<frmAcercaDe>());

    QLineEdit destino;
    auto* mascara = cargar<frmCrearMascara>();
    mascara->volcar_en(&destino);
    mascara->mostrar();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(cargada<frmCrearMascara>());
    EXPECT_EQ(destino.text(), QString());
    mascara = cargar<frmCrearMascara>();
    mascara->volcar_en(&destino);
    mascara->mostrar_mascara(0);
    auto* elementos = mascara->findChild<QListWidget*>("lstElem"_u);
    elementos->addItem("uno"_u);
    elementos->item(0)->setData(Qt::UserRole, 4);
    elementos->item(0)->setCheckState(Qt::Checked);
    mascara->mostrar();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(cargada<frmCrearMascara>());
    EXPECT_EQ(destino.text(), "4"_u);

    QWidget* p = parte();
    teclear(p, "txtRazonSocial"_u, "uno"_u);
    Cajas::durante({{"Indique la nacionalidad del contribuyente"_u}},
                   [&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); });
}

TEST_F(PantallasTeclado, ElBotonDeLaVentanaPreguntaPorLoQueNoSeGuardo)
{
    const CajaEsperada no{"¿Descartar los cambios?"_u, {}, false};
    const CajaEsperada si{"¿Descartar los cambios?"_u};
    auto* agentes = cargar<frmRTN_buscar>();
    agentes->mostrar();
    pulsar(agentes, "tlbRTN"_u, "alta"_u);
    auto* a = formulario("frmRTN_editar");
    EXPECT_TRUE(a->cerrar());
    pulsar(agentes, "tlbRTN"_u, "alta"_u);
    a = formulario("frmRTN_editar");
    teclear(a, "txtTitular"_u, "x"_u);
    Cajas::durante({no}, [&] { EXPECT_FALSE(a->parentWidget()->close()); });
    EXPECT_EQ(texto(a, "txtTitular"_u), "X"_u);
    // The exit of the program asks too, and "cancelar" of the bar does not.
    Cajas::durante({{"¿Está seguro que desea salir del sistema?"_u}, no}, [&] { EXPECT_FALSE(principal->close()); });
    pulsar(a, "tlb"_u, "cancelar"_u);
    EXPECT_FALSE(a->isVisible());
    agentes->descargar();

    QWidget* p = parte();
    teclear(p, "nroDoc"_u, "5"_u);
    Cajas::durante({si}, [&] { EXPECT_TRUE(p->parentWidget()->close()); });
    pulsar(formulario("frmDJ_detalle"), "tlbInm"_u, "agregar"_u);
    QWidget* i = formulario("frmDJ_editar_inmueble");
    teclear(i, "nroValFiscal"_u, "0"_u);
    EXPECT_TRUE(i->parentWidget()->close());  // nothing has changed
    Cajas::durante({{"La escritura está incompleta"_u}}, [] { formulario("frmDJ_detalle")->parentWidget()->close(); });
}

TEST_F(PantallasTeclado, ElEditorDeLaDJPreguntaSoloMientrasEdita)
{
    QWidget* e = editorDJ("modificar");
    EXPECT_TRUE(e->parentWidget()->close());
    e = editorDJ("modificar");
    acceso(e, Qt::Key_E);
    teclear(e, "txtObs"_u, "algo"_u);
    Cajas::durante({{"¿Descartar los cambios?"_u, "Modificar DJ"_u, false}},
                   [&] { EXPECT_FALSE(e->parentWidget()->close()); });
    acceso(e, Qt::Key_P);
    EXPECT_TRUE(e->parentWidget()->close());
    EXPECT_EQ(dato("select SEDJ_OBSERVACIONES from SEL_TB_RTN_CABDJ"_u), "algo"_u);
}

TEST_F(PantallasTeclado, AlCerrarUnoSigueElDeArribaYElMinimizadoVuelve)
{
    QWidget* l = lista();
    escribir(l, "nroAnio"_u, "2026"_u);
    caja(l, "nroMes")->setFocus();
    auto* agentes = cargar<frmRTN_buscar>();
    agentes->mostrar();
    acceso(agentes, Qt::Key_I);
    QApplication::processEvents();
    EXPECT_EQ(QApplication::focusWidget(), caja(l, "nroMes"));
    auto* ventana = qobject_cast<QMdiSubWindow*>(l->parentWidget());
    ventana->showMinimized();
    cargar<frmDJ_buscar>()->mostrar();
    EXPECT_FALSE(ventana->isMinimized());
    EXPECT_TRUE(l->isVisible());
}

TEST_F(PantallasTeclado, LaRuedaNoCambiaLoQueNoTieneElFoco)
{
    QWidget* e = editorDJ("nueva");
    auto* mes = qobject_cast<QComboBox*>(control(e, "cboMes"_u));
    auto* fecha = qobject_cast<QDateEdit*>(control(e, "dtpBOL_venc"_u));
    clic(e, "chkCambiarFechaVenc"_u);
    const int antes = mes->currentIndex();
    const QDate dia = fecha->date();
    control(e, "txtRTN_nro"_u)->setFocus();
    rueda(mes);
    rueda(fecha);
    EXPECT_EQ(mes->currentIndex(), antes);
    EXPECT_EQ(fecha->date(), dia);
    mes->setCurrentIndex(3);
    mes->setFocus();
    rueda(mes);
    EXPECT_EQ(mes->currentIndex(), 4);
}

TEST_F(PantallasTeclado, TrasBorrarSigueLaFilaSiguiente)
{
    QWidget* e = editorDJ("modificar");
    solapa(e, "SSTab1"_u, 1);
    celda(e, "flxOp"_u, 1, 1);
    Cajas::durante({{"¿Está seguro que desea borrar el renglón seleccionado?"_u}},
                   [&] { pulsar(e, "tlbDetalle"_u, "borrar"_u); });
    auto* grilla = qobject_cast<Grilla*>(control(e, "flxOp"_u));
    EXPECT_EQ(grilla->clave(), "3"_u);
    Cajas::durante({{"¿Está seguro que desea borrar el renglón seleccionado?"_u}},
                   [&] { pulsar(e, "tlbDetalle"_u, "borrar"_u); });
    EXPECT_EQ(grilla->clave(), "1"_u);
}

TEST_F(PantallasTeclado, UnMesQueNoEsDejaLaListaComoEstaba)
{
    cnRtn.ejecutar("update SEL_TB_RTN_CABDJ set SEDJ_MES=9"_u);
    nueva_dj(1);
    QWidget* l = lista();
    escribir(l, "nroMes"_u, "10"_u);
    EXPECT_EQ(manejo::filas(l, "flx"_u), 1);
    teclear(l, "nroMes"_u, "13"_u);
    acceso(l, Qt::Key_M);  // "modificar" is stopped
    QApplication::processEvents();
    EXPECT_EQ(con_foco(l), "nroMes"_u);
    EXPECT_FALSE(cargada<frmDJ_editar>());
    static_cast<Formulario*>(l)->alActivar();
    EXPECT_EQ(manejo::filas(l, "flx"_u), 1);
    acceso(l, Qt::Key_I);  // the way out is open
    EXPECT_FALSE(cargada<frmDJ_buscar>());
}

TEST_F(PantallasTeclado, LaSociedadReaccionaAlTabuladorYElTipoNoEchaElFoco)
{
    QWidget* p = parte();
    auto* sociedad = qobject_cast<QComboBox*>(control(p, "cboTipoSociedad"_u));
    auto* tipo = qobject_cast<QComboBox*>(control(p, "cboTipoDoc"_u));
    sociedad->setFocus();
    {
        const QSignalBlocker callado(sociedad);
        sociedad->setCurrentIndex(sociedad->findText("SOCIEDAD"_u, Qt::MatchStartsWith));
    }
    ASSERT_GE(sociedad->currentIndex(), 0);
    QTest::keyClick(sociedad, Qt::Key_Tab);
    EXPECT_EQ(tipo->currentText(), "CUIT"_u);
    tipo->setFocus();
    QTest::keyClick(tipo, Qt::Key_P);
    EXPECT_EQ(tipo->currentText(), "PASAPORTE"_u);
    EXPECT_TRUE(control(p, "txtPasaporte"_u)->isVisible());
    EXPECT_EQ(con_foco(p), "cboTipoDoc"_u);
    elegir(p, "cboTipoDoc"_u, "DNI"_u);
    EXPECT_EQ(con_foco(p), "nroDoc"_u);
}

}  // namespace
