// SPDX-License-Identifier: GPL-3.0-or-later
// An item's editor: its checks, its boxes, and what it stores.

#include "apoyo/catalogo.h"
#include "core/reloj.h"
#include "widgets/ctlCombo.h"
#include "widgets/ctlNumero.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QMessageBox>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

#include <random>

namespace {

using namespace manejo;

// What every control of the form shows.
QStringList retrato(QWidget* f)
{
    QStringList s;
    for (QWidget* w : f->findChildren<QWidget*>()) {
        const QString n = w->objectName() + u'=';
        if (const auto* b = qobject_cast<QAbstractButton*>(w); b && b->isCheckable() && !b->inherits("QToolButton"))
            s << n + (b->isChecked() ? u'1' : u'0') + (b->isEnabled() ? u'+' : u'-');
        else if (qobject_cast<ctlNumero*>(w) || qobject_cast<ctlCombo*>(w) || qobject_cast<QComboBox*>(w)
                 || qobject_cast<QDateEdit*>(w)
                 || (qobject_cast<QLineEdit*>(w) && w->objectName().startsWith("txt"_u) && w->objectName() != u"txt"))
            s << n + texto(f, w->objectName());
    }
    s.sort();
    return s;
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
    // Clearing the base empties all that hangs on it, also what its type held.
    static_cast<frmEditarSubconceptoSellos*>(f)->TCBI(1, "uno"_u);
    for (const char* n : {"chkRequiereDuracion", "chkDur_cotaSup", "chkPeriodoBI", "chkGarantiaCumplimiento",
                          "optGarantiaCumplimiento_porc", "chkGarantiaCumplimiento_porc"})
        clic(f, QLatin1StringView(n));
    for (const char* n : {"nroPorcValFiscal", "nroPorcValorContractual", "nroDur_CotaSup", "nroPeriodoBI",
                          "nroGarantiaCumplimiento_Porc", "txtGarantiaCumplimiento_suma", "txtDenomVFiscal"})
        escribir(f, QLatin1StringView(n), "3"_u);
    clic(f, "chkBaseImponible"_u);
    for (const char* n :
         {"txtTipoCalculoBI", "nroPorcValFiscal", "nroPorcValorContractual", "nroDur_CotaSup", "nroPeriodoBI",
          "nroGarantiaCumplimiento_Porc", "txtGarantiaCumplimiento_suma", "txtDenomVFiscal"})
        EXPECT_EQ(texto(f, QLatin1StringView(n)), QString()) << n;
    for (const char* n :
         {"chkRequiereValFiscal", "chkRequiereValorContractual", "chkRequiereDuracion", "chkDur_cotaSup",
          "chkPeriodoBI", "chkGarantiaCumplimiento", "optGarantiaCumplimiento_porc", "chkGarantiaCumplimiento_porc"})
        EXPECT_FALSE(static_cast<QAbstractButton*>(control(f, QLatin1StringView(n)))->isChecked() || activo(n)) << n;
    pulsar(f, "toolbar"_u, "cancelar"_u);
    solapa(f, "SSTab1"_u, 0);
    for (const char* n : {"txtDescripcion", "cboConcepto", "chkExención", "nroImporteMinimo", "dtpFechaVigencia"})
        EXPECT_FALSE(activo(n)) << n;
}

// The three texts of a stored item begin the editing; from then on the state governs them.
TEST_F(PantallasCatalogo, EscribirEnUnTextoEmpiezaLaEdicion)
{
    for (const char* campo : {"txtDescripcion", "txtLeyVigencia", "txtObservaciones"}) {
        QWidget* f = editor(5707001);
        EXPECT_EQ(botones(f, "toolbar", "salir aceptar cancelar editar"), "1001"_u);
        EXPECT_FALSE(control(f, "cboConcepto"_u)->isEnabled());
        teclear(f, QLatin1StringView(campo), "ñu"_u);
        EXPECT_EQ(botones(f, "toolbar", "salir aceptar cancelar editar") + texto(f, QLatin1StringView(campo)),
                  "0110ÑU"_u);
        EXPECT_TRUE(control(f, "cboConcepto"_u)->isEnabled());
        for (const char* clave : {"aceptar", "cancelar"}) {
            pulsar(f, "toolbar"_u, QLatin1StringView(clave));
            EXPECT_THROW(teclear(f, QLatin1StringView(campo), "x"_u), Inesperado) << clave;
            pulsar(f, "toolbar"_u, "editar"_u);
        }
        teclear(f, QLatin1StringView(campo), "otro"_u);
        pulsar(f, "toolbar"_u, "cancelar"_u);
        static_cast<Formulario*>(f)->descargar();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_EQ(dato("select SSUB_DESCRIPCION||SSUB_LEYVIGENCIA||SSUB_OBSERVACIONES from SEL_TB_SUBCONCEPTOS where "
                   "SSUB_ID=5707001"_u),
              "ÑUÑUÑU"_u);
}

TEST_F(PantallasCatalogo, LaFechaDeVigenciaPuedeFaltar)
{
    fijar_hoy({2026, 11, 12});
    const QString guardada = "select SSUB_FECHAVIGENCIA from SEL_TB_SUBCONCEPTOS where SSUB_ID=5707001"_u;
    cnRtn.ejecutar("update SEL_TB_SUBCONCEPTOS set SSUB_FECHAVIGENCIA=null where SSUB_ID=5707001"_u);
    QWidget* f = editor(5707001);
    QWidget* fecha = control(f, "dtpFechaVigencia"_u);
    const auto editar = [&](const std::function<void()>& teclas) {
        pulsar(f, "toolbar"_u, "editar"_u);
        fecha->setFocus();
        teclas();
        pulsar(f, "toolbar"_u, "aceptar"_u);
        return dato(guardada) + u' ' + texto(f, "dtpFechaVigencia"_u).trimmed();
    };
    EXPECT_EQ(texto(f, "dtpFechaVigencia"_u).trimmed(), QString());
    EXPECT_EQ(editar([] {}), "null "_u);
    EXPECT_EQ(editar([&] { QTest::keyClicks(fecha, "15032020"_u); }), "2020-03-15 15/03/2020"_u);
    EXPECT_EQ(editar([&] {
                  static_cast<QDateEdit*>(fecha)->selectAll();
                  QTest::keyClicks(fecha, "01/12/2019"_u);
              }),
              "2019-12-01 01/12/2019"_u);
    EXPECT_EQ(editar([&] { QTest::keyClick(fecha, Qt::Key_Delete); }), "null "_u);
    EXPECT_EQ(editar([&] { QTest::keyClick(fecha, Qt::Key_Up); }), "2026-11-12 12/11/2026"_u);
    EXPECT_EQ(editar([&] {
                  static_cast<QDateEdit*>(fecha)->selectAll();
                  QTest::keyClick(fecha, Qt::Key_Backspace);
              }),
              "null "_u);
    fijar_hoy({});
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
        v["FECHAVIGENCIA"_u] = o_nulo("'20%1-0%2-1%3'"_u.arg(azar() % 20 + 10).arg(azar() % 9 + 1).arg(azar() % 10));
        v["OBSERVACIONES"_u] = o_nulo("'OBS; ''''%'"_u).replace("''''"_u, "''"_u);
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

}  // namespace
