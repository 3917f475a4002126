// SPDX-License-Identifier: GPL-3.0-or-later
// The screens of the catalogue and the search of a person, by keys and clicks.

#include "apoyo/ventanas.h"
#include "catalogue/screens/frmEditarSubconceptoSellos.h"
#include "catalogue/screens/frmSubconceptos.h"
#include "computation/screens/frmDJ_detalle_op.h"
#include "widgets/ctlCombo.h"
#include "widgets/ctlNumero.h"
#include "widgets/grilla.h"
#include "core/reloj.h"
#include "declarations/screens/frmDJ_buscar.h"
#include "manejo/manejo.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

#include <random>

namespace {

using namespace manejo;

class PantallasCatalogo : public ConVentanas
{
protected:
    static QWidget* catalogo()
    {
        auto* f = cargar<frmSubconceptos>();
        f->mostrar();
        return f;
    }
    static QWidget* editor(int id)
    {
        auto* f = cargar<frmEditarSubconceptoSellos>();
        f->Inicializar(id == 0 ? Modo::nuevo : Modo::modificar, id, 0);
        f->mostrar();
        return f;
    }
    QWidget* operacion()
    {
        const QString dj = nueva_dj();
        nueva_escritura(dj, 1, 1, 1, 1);
        QWidget* e = abrirEscritura(false);
        solapa(e, "SSTab1"_u, 1);
        pulsar(e, "tlbOp"_u, "agregar"_u);
        return formulario("frmDJ_detalle_op");
    }
    // What every control of the form shows.
    static QStringList retrato(QWidget* f)
    {
        QStringList s;
        for (QWidget* w : f->findChildren<QWidget*>()) {
            const QString n = w->objectName() + u'=';
            if (const auto* b = qobject_cast<QAbstractButton*>(w); b && b->isCheckable() && !b->inherits("QToolButton"))
                s << n + (b->isChecked() ? u'1' : u'0') + (b->isEnabled() ? u'+' : u'-');
            else if (qobject_cast<ctlNumero*>(w) || qobject_cast<ctlCombo*>(w) || qobject_cast<QComboBox*>(w)
                     || qobject_cast<QDateEdit*>(w)
                     || (qobject_cast<QLineEdit*>(w) && w->objectName().startsWith("txt"_u)
                         && w->objectName() != u"txt"))
                s << n + texto(f, w->objectName());
        }
        s.sort();
        return s;
    }
    static QString elemento_activo(QWidget* f)
    {
        QWidget* w = f->focusWidget();
        return !w ? QString() : w->objectName() == u"txt" ? w->parentWidget()->objectName() : w->objectName();
    }
};

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
        {{pregunta.texto}, {"FOREIGN KEY"_u, "Borrar subconcepto de sellos"_u, true, QMessageBox::Information}},
        [&] { pulsar(f, "toolbar"_u, "borrar"_u); });
    cnRtn.ejecutar("delete from SEL_TB_RTN_INS_OPERACIONES"_u);
    Cajas::durante({{pregunta.texto}}, [&] { pulsar(f, "toolbar"_u, "borrar"_u); });
    EXPECT_EQ(texto(f, "lblResultado"_u), "0 registros"_u);
    EXPECT_EQ(dato("select count(*) from SEL_TB_SUBCONCEPTOS where SSUB_ID=5707001"_u), "0"_u);
}

// The checks in their order: each step mends what the box before it told.
TEST_F(PantallasCatalogo, UnSubconceptoNuevoComprobacionPorComprobacion)
{
    fijar_hoy({2026, 11, 12});
    QWidget* f = editor(0);
    EXPECT_EQ(f->windowTitle() + elemento_activo(f), "Nuevo subconcepto de sellostxtDescripcion"_u);
    EXPECT_EQ(botones(f, "toolbar", "salir aceptar cancelar editar"), "0110"_u);
    auto* solapas = static_cast<QTabWidget*>(control(f, "SSTab1"_u));
    EXPECT_FALSE(solapas->isTabEnabled(2) || solapas->isTabEnabled(3));
    EXPECT_EQ(texto(f, "nroCodigo"_u) + texto(f, "txtLeyVigencia"_u) + texto(f, "dtpFechaVigencia"_u),
              "5707051LEY 5707 - ART 16º - INC )02/01/2008"_u);
    struct Paso
    {
        const char* mensaje;
        const char* foco;
        std::function<void()> remedio;
    };
    const auto marcar = [f](std::initializer_list<const char*> nombres) {
        for (const char* n : nombres) {
            solapa(f, "SSTab1"_u,
                   static_cast<QTabWidget*>(control(f, "SSTab1"_u))
                           ->widget(0)
                           ->isAncestorOf(control(f, QString::fromUtf8(n)))
                       ? 0
                       : 1);
            clic(f, QString::fromUtf8(n));
        }
    };
    const auto numero = [f](const char* nombre) {
        return [f, nombre] { escribir(f, QLatin1StringView(nombre), "12"_u); };
    };
    escribir(f, "txtLeyVigencia"_u, "  "_u);
    marcar({"chkBaseImponible", "chkPeriodoBI", "chkRequiereDuracion", "chkDuracionDefault", "chkDur_cotaSup",
            "chkPermiteProrroga", "chkProrrogaDefault", "chkPro_CotaSup", "chkCargaRapida", "chkFondoReparo",
            "chkFondoReparo_Porc", "chkGarantiaCumplimiento", "chkGarantiaCumplimiento_porc", "chkObligAccesoria",
            "chkObligAccesoria_porcDef"});
    const QList<Paso> pasos{
        {"Ingrese la descripción del subconcepto", "txtDescripcion",
         [&] { escribir(f, "txtDescripcion"_u, " d'acto  "_u); }},
        {"Ingrese la Ley de vigencia del subconcepto", "txtLeyVigencia",
         [&] { escribir(f, "txtLeyVigencia"_u, "ley 9"_u); }},
        {"Seleccione el concepto", "cboConcepto", [&] { elegir(f, "cboConcepto"_u, "4 - "_u); }},
        {"Ingrese el tipo de calculo del impuesto", "ctlTipoCalculo",
         [&] { elegir(f, "ctlTipoCalculo"_u, "VARIABLE"_u); }},
        {"Ingrese el tipo de cálculo del subconcepto", nullptr,
         [&] {
             auto* tipos = formulario("frmTiposCalculoBI");
             EXPECT_EQ(tipos->windowTitle(), "Tipos de cálculo de la base imponible"_u);
             celda(tipos, "grillaTCBI"_u, 0, 1);
             tecla(tipos, "grillaTCBI"_u, Qt::Key_Return);
             QApplication::processEvents();
             EXPECT_EQ(texto(f, "txtTipoCalculoBI"_u), "Mayor entre valor contractual y valuación fiscal"_u);
         }},
        {"Ingrese el periodo que se utilizará para el cálculo de la base imponible", "nroPeriodoBI",
         numero("nroPeriodoBI")},
        {"Ingrese la duración por defecto", "nroDuracionDefault", numero("nroDuracionDefault")},
        {"Ingrese la cota superior para la duración", "nroDur_CotaSup", numero("nroDur_CotaSup")},
        {"Ingrese la prórroga por defecto", "nroProrrogaDefault", numero("nroProrrogaDefault")},
        {"Ingrese la cota superior para la prórroga", "nroPro_CotaSup", numero("nroPro_CotaSup")},
        {"Ingrese el monto máximo permitido para la carga rápida", "nroMontoCRapida", numero("nroMontoCRapida")},
        {"Ingrese el porcentaje a utilizar en el Fondo de Reparo", "nroFondoReparo_PorcDef",
         numero("nroFondoReparo_PorcDef")},
        {"Indique el modo por defecto para el Fondo de Reparo", "optFondoReparo_montoFijo",
         [&] { clic(f, "optFondoReparo_montoFijo"_u); }},
        {"Ingrese el porcentaje a utilizar en la Garantia de Cumplimiento", "nroGarantiaCumplimiento_Porc",
         numero("nroGarantiaCumplimiento_Porc")},
        {"Indique el modo por defecto para la Garantia de Cumplimiento", "optGarantiaCumplimiento_fijo",
         [&] { clic(f, "optGarantiaCumplimiento_porc"_u); }},
        {"Ingrese el porcentaje a utilizar en la Obligación Accesoria", "nroObligAccesoria_porcDef",
         numero("nroObligAccesoria_porcDef")},
        {"Indique el modo por defecto para la Obligación Accesoria", "optObligAccesoria_fijo",
         [&] { clic(f, "optObligAccesoria_porc"_u); }},
    };
    for (const Paso& p : pasos) {
        Cajas::durante({{QString::fromUtf8(p.mensaje), f->windowTitle(), true, QMessageBox::Information, true}},
                       [&] { pulsar(f, "toolbar"_u, "aceptar"_u); });
        EXPECT_TRUE(!p.foco || elemento_activo(f) == QLatin1StringView(p.foco))
            << p.foco << " y lo tiene " << elemento_activo(f).toStdString();
        p.remedio();
    }
    pulsar(f, "toolbar"_u, "aceptar"_u);
    EXPECT_EQ(botones(f, "toolbar", "salir aceptar cancelar editar"), "1001"_u);
    EXPECT_TRUE(solapas->isTabEnabled(2) && solapas->isTabEnabled(3));
    EXPECT_EQ(
        filas(
            "select SSUB_DESCRIPCION, SSUB_LEYVIGENCIA, SSUB_FECHAVIGENCIA, STIC_ID, SSUB_MODULOSMIN, SSUB_PERIODO_BI, SSUB_DENOM_VCONTRACTUAL, SSUB_VALUACION_FISCAL_NOMBRE, SSUB_DURACION_DEFAULT,"
            " SSUB_FONDO_REPARO_PORC, SSUB_FONDO_REPARO_NOMBRE, SSUB_FONDO_REPARO_MODO_DEFAULT, SSUB_GARANTIA_CUMPL_MODO_DEFAULT, SSUB_GARANTIA_CUMPL_SUMA, SCBI_ID, SCON_ID, SSUB_USOS, AUSU_ID, SSUB_FULTMOD"
            " from SEL_TB_SUBCONCEPTOS where SSUB_ID=5707051"_u),
        "D'ACTO|LEY 9|2008-01-02|3|null|12|Valor contractual|Valuación fiscal|12|12.0|Fondo de reparo|F|P|0.0|1|4|2|ZQ|2026-11-12"_u);
    // Saved once, it is changed from now on.
    pulsar(f, "toolbar"_u, "editar"_u);
    solapa(f, "SSTab1"_u, 0);
    escribir(f, "txtDescripcion"_u, "otra"_u);
    pulsar(f, "toolbar"_u, "aceptar"_u);
    EXPECT_EQ(dato("select SSUB_DESCRIPCION from SEL_TB_SUBCONCEPTOS where SSUB_ID=5707051"_u), "OTRA"_u);
    // What is typed and cancelled stays on the screen and out of the store.
    pulsar(f, "toolbar"_u, "editar"_u);
    escribir(f, "txtDescripcion"_u, "otra mas"_u);
    pulsar(f, "toolbar"_u, "cancelar"_u);
    EXPECT_EQ(texto(f, "txtDescripcion"_u)
                  + dato("select SSUB_DESCRIPCION from SEL_TB_SUBCONCEPTOS where SSUB_ID=5707051"_u),
              "OTRA MASOTRA"_u);
    fijar_hoy({});
}

TEST_F(PantallasCatalogo, LasCasillasGobiernanLoSuyo)
{
    QWidget* f = editor(0);
    solapa(f, "SSTab1"_u, 1);
    const auto activo = [f](const char* n) {
        QWidget* w = control(f, QString::fromUtf8(n));
        const auto* numero = qobject_cast<ctlNumero*>(w);
        return numero ? numero->Enabled() : w->isEnabled();
    };
    EXPECT_FALSE(activo("cmdElegirTCBI") || activo("chkRequiereDuracion") || activo("nroPorcValFiscal"));
    clic(f, "chkBaseImponible"_u);
    EXPECT_TRUE(activo("cmdElegirTCBI") && activo("chkRequiereDuracion"));
    EXPECT_FALSE(activo("chkDuracionDefault") || activo("nroPorcValFiscal"));
    static_cast<frmEditarSubconceptoSellos*>(f)->TCBI(1, "uno"_u);
    EXPECT_TRUE(activo("nroPorcValFiscal"));
    escribir(f, "nroPorcValFiscal"_u, "0.5"_u);
    for (const char* casilla : {"chkRequiereValFiscal", "chkRequiereValorContractual"}) {
        Cajas::durante(
            {{"El tipo de cálculo de la base imponible seleccionado requiere "_u, {}, true, QMessageBox::Information}},
            [&] { clic(f, QLatin1StringView(casilla)); });
        EXPECT_TRUE(static_cast<QCheckBox*>(control(f, QLatin1StringView(casilla)))->isChecked());
    }
    EXPECT_EQ(texto(f, "nroPorcValFiscal"_u), "0,5000"_u);
    // The third type lets go of what the first one had ticked.
    static_cast<frmEditarSubconceptoSellos*>(f)->TCBI(3, "tres"_u);
    EXPECT_FALSE(static_cast<QCheckBox*>(control(f, "chkRequiereValFiscal"_u))->isChecked());
    EXPECT_EQ(texto(f, "nroPorcValFiscal"_u), QString());
    clic(f, "chkRequiereDuracion"_u);
    clic(f, "chkDuracionDefault"_u);
    escribir(f, "nroDuracionDefault"_u, "24"_u);
    clic(f, "chkFondoReparo"_u);
    clic(f, "optFondoReparo_porcentaje"_u);
    clic(f, "chkFondoReparo"_u);
    EXPECT_FALSE(static_cast<QRadioButton*>(control(f, "optFondoReparo_porcentaje"_u))->isChecked());
    clic(f, "chkRequiereDuracion"_u);
    EXPECT_EQ(texto(f, "nroDuracionDefault"_u), QString());
    EXPECT_FALSE(activo("nroDuracionDefault")
                 || static_cast<QCheckBox*>(control(f, "chkDuracionDefault"_u))->isChecked());
    clic(f, "chkBaseImponible"_u);
    EXPECT_EQ(texto(f, "txtTipoCalculoBI"_u), QString());
    EXPECT_FALSE(activo("chkRequiereValorContractual"));
    pulsar(f, "toolbar"_u, "cancelar"_u);
    solapa(f, "SSTab1"_u, 0);
    for (const char* n : {"txtDescripcion", "cboConcepto", "chkExención", "nroImporteMinimo", "dtpFechaVigencia"})
        EXPECT_FALSE(activo(n)) << n;
}

TEST_F(PantallasCatalogo, ElTipoDeCalculoAtadoASusRangos)
{
    cnRtn.ejecutar(
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

// Saved and loaded again, every control shows the same, and the row holds what it held.
TEST_F(PantallasCatalogo, DoscientasFilasVanYVuelven)
{
    std::mt19937 azar(7);
    const auto moneda = [&azar] { return azar() % 2 == 0; };
    const auto bit = [&moneda] { return moneda() ? "1"_u : "0"_u; };
    const auto o_nulo = [&](const QString& v) { return moneda() ? v : "null"_u; };
    const auto real = [&azar] { return QString::number(double(azar() % 100000) / 100); };
    const auto entero = [&azar] { return QString::number(azar() % 500 + 1); };
    const auto modo = [&](const QString& si) {
        return si == u"1" || moneda() ? (moneda() ? "'F'"_u : "'P'"_u) : "null"_u;
    };
    const auto si_esta = [](const QString& si, const QString& v) { return si == u"1" ? v : "null"_u; };
    for (int i = 0; i < 200; ++i) {
        QHash<QString, QString> v;
        for (const char* c : {"REQUIERE_BASEIMPONIBLE",
                              "VALUACION_FISCAL",
                              "TASACION_JUDICIAL",
                              "VALOR_CONTRACTUAL",
                              "UT_VCONTRACTUAL",
                              "REQUIERE_MONEDA",
                              "DURACION",
                              "DURACION_COTASUP",
                              "EJECUCION_SUCESIVA",
                              "PRORROGA",
                              "PRORROGA_COTASUP",
                              "PERIODOS_SUCESIVOS",
                              "FONDO_REPARO",
                              "GARANTIA_CUMPLIMIENTO",
                              "OBLIG_ACCESORIA",
                              "HECTAREAS",
                              "TIPO_RETRIBUCION",
                              "EXENCION",
                              "PAGOACUENTA",
                              "CARGA_RAPIDA",
                              "SELLADO_MULTIPLE",
                              "CUIT_EN_TRAMITE",
                              "HIPOTECA"})
            v[QLatin1StringView(c)] = bit();
        v["MODULOSMIN"_u] = o_nulo(real());
        for (const auto& [columna, casilla] : {std::pair{"PORC_VALUACION_FISCAL", "VALUACION_FISCAL"},
                                               {"PORC_TASACION_JUDICIAL", "TASACION_JUDICIAL"},
                                               {"PORC_VCONTRACTUAL", "VALOR_CONTRACTUAL"},
                                               {"EXENCION_PORC", "EXENCION"},
                                               {"PAGOACUENTA_PORC", "PAGOACUENTA"},
                                               {"SELLADO_MULTIPLE_MONTO", "SELLADO_MULTIPLE"}})
            v[QLatin1StringView(columna)] = si_esta(v[QLatin1StringView(casilla)], o_nulo(real()));
        v["CARGA_RAPIDA_MONTO"_u] = si_esta(v["CARGA_RAPIDA"_u], real());
        v["DURACION_COTA_SUPERIOR"_u] = si_esta(v["DURACION_COTASUP"_u], entero());
        v["PRORROGA_COTA_SUPERIOR"_u] = si_esta(v["PRORROGA_COTASUP"_u], entero());
        for (const char* c : {"PERIODO_BI", "DURACION_DEFAULT", "PRORROGA_DEFAULT"})
            v[QLatin1StringView(c)] = o_nulo(entero());
        for (const char* c : {"FONDO_REPARO_PORC", "GARANTIA_CUMPLIMIENTO_PORC", "OBLIG_ACCESORIA_PORC"})
            v[QLatin1StringView(c)] = o_nulo(real());
        v["FONDO_REPARO_MODO_DEFAULT"_u] = modo(v["FONDO_REPARO"_u]);
        v["GARANTIA_CUMPL_MODO_DEFAULT"_u] = modo(v["GARANTIA_CUMPLIMIENTO"_u]);
        v["OBLIG_ACCESORIA_MODO_DEFAULT"_u] = modo(v["OBLIG_ACCESORIA"_u]);
        v["GARANTIA_CUMPL_SUMA"_u] = entero();
        v["OBLIG_ACCESORIA_SUMA"_u] = entero();
        v["VALUACION_FISCAL_NOMBRE"_u] = "'VALUACIÓN D''%1'"_u.arg(i);
        v["DENOM_VCONTRACTUAL"_u] = "'Ñandú %'"_u;
        v["FONDO_REPARO_NOMBRE"_u] = "'FONDO'"_u;
        v["DESCRIPCION"_u] = "'ITEM \"%1\" D''ORO'"_u.arg(i);
        v["LEYVIGENCIA"_u] = "'LEY 5707 - INC %1)'"_u.arg(i);
        v["FECHAVIGENCIA"_u] = "'20%1-0%2-1%3'"_u.arg(azar() % 20 + 10).arg(azar() % 9 + 1).arg(azar() % 10);
        v["OBSERVACIONES"_u] = o_nulo("'obs; ''''%'"_u).replace("''''"_u, "''"_u);
        v["USOS"_u] = o_nulo(entero());
        QString sql = "STIC_ID=%1, SCON_ID=%2, SCBI_ID=%3"_u.arg(azar() % 4 + 1)
                          .arg(azar() % 8 + 1)
                          .arg(v["REQUIERE_BASEIMPONIBLE"_u] == u"1" ? "12"_u : o_nulo("6"_u));
        for (const auto& [columna, valor] : v.asKeyValueRange())
            sql += ", SSUB_"_u + columna + u'=' + valor;
        cnRtn.ejecutar("update SEL_TB_SUBCONCEPTOS set "_u + sql + " where SSUB_ID=5707001"_u);
        const QString todo = "select * from SEL_TB_SUBCONCEPTOS where SSUB_ID=5707001"_u;
        cnRtn.ejecutar("update SEL_TB_SUBCONCEPTOS set AUSU_ID='ZQ', SSUB_FULTMOD='%1' where SSUB_ID=5707001"_u.arg(
            hoy().toString(Qt::ISODate)));
        const QString antes = filas(todo);
        QWidget* f = editor(5707001);
        const QStringList leida = retrato(f);
        pulsar(f, "toolbar"_u, "editar"_u);
        pulsar(f, "toolbar"_u, "aceptar"_u);
        ASSERT_EQ(filas(todo), antes) << sql.toStdString();
        ASSERT_EQ(retrato(f), leida);
        pulsar(f, "toolbar"_u, "salir"_u);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        f = editor(5707001);
        ASSERT_EQ(retrato(f), leida);
        static_cast<Formulario*>(f)->descargar();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

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
