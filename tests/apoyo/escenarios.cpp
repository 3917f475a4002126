// SPDX-License-Identifier: GPL-3.0-or-later

#include "apoyo/escenarios.h"

#include "agents/screens/frmRTN_buscar.h"
#include "apoyo/catalogo.h"
#include "catalogue/rangos.h"
#include "catalogue/roles_catalogo.h"
#include "catalogue/screens/frmEditarAlicuota.h"
#include "catalogue/screens/frmEditarRol.h"
#include "declarations/screens/frmDJ_buscar.h"
#include "widgets/barra.h"
#include "widgets/ctlNumero.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

using namespace manejo;

void Escenarios::SetUp()
{
    Pantallas::SetUp();
    // Items without roles that must be held.
    cnRtn.ejecutarGuion(
        "update SEL_TB_ROLES set SROL_REQUERIDO=0; update SEL_TB_SUBCONCEPTOS set SSUB_PAGOACUENTA=1"_u);
    dj_ = nueva_dj();
    nueva_escritura(dj_, 1, 1, 1, 1);
    cnRtn.ejecutar("update SEL_TB_RTN_CABDJ set SEDJ_FVENCIMIENTO='2099-12-15'"_u);
    cnRtn.ejecutar("update SEL_TB_RTN_PADRON set SRTN_CODPOSTAL='9400', GLOC_ID=1"_u);
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_INS_INMUEBLES (SEDJ_NRO, SEDD_ID, SEII_ID, SEII_PARTIDA, SEII_VAL_FISCAL, GTUB_ID) values ('%1', 1, 1, '5', 3000.10, 1)"_u
            .arg(dj_));
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_INS_PARTES (SPIN_ID, SEDJ_NRO, SEDD_ID, GTDC_ID, SPIN_NRODOC, SPIN_CUIT, SPIN_RSOCIAL, SPIN_NACIONALIDAD, GTSO_ID) values "
        "(1, '%1', 1, '96', '22333444', null, 'UNO', 'A', 1)"_u.arg(dj_));
    QObject::connect(&reloj_, &QTimer::timeout, &reloj_, [this] { responder(); });
    reloj_.start(1);
}

void Escenarios::responder()
{
    auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    auto* caja = qobject_cast<QMessageBox*>(dialogo);
    if (!dialogo || !dialogo->isVisible())
        return;
    if (!caja) {
        dialogo->reject();
        return;
    }
    cajas_ << caja->text();
    auto* boton = caja->button(QMessageBox::Yes);
    (boton ? boton : caja->button(QMessageBox::Ok))->click();
}

QStringList Escenarios::campos(QWidget* form, const QString& marco)
{
    QStringList nombres;
    QWidget* raiz = marco.isEmpty() ? form : control(form, marco);
    for (QLineEdit* linea : raiz->findChildren<QLineEdit*>()) {
        QWidget* w = linea->objectName() == u"txt" || qobject_cast<QComboBox*>(linea->parentWidget())
                         ? linea->parentWidget()
                         : linea;
        if (linea->isVisible() && linea->isEnabled() && !linea->isReadOnly() && !w->objectName().isEmpty()
            && !w->objectName().startsWith(u"qt_") && !w->inherits("ctlCombo"))
            nombres << w->objectName();
    }
    return nombres;
}

void Escenarios::clicEn(QWidget* form, const Escenario& e)
{
    auto* barra = qobject_cast<BarraHerramientas*>(control(form, QLatin1StringView(e.barra)));
    QTest::mouseClick(barra->widgetForAction(barra->boton(QLatin1StringView(e.clave))), Qt::LeftButton);
}

void Escenarios::cerrarTodo()
{
    for (Formulario* x : Formulario::cargados())
        delete x;
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QWidget* Escenarios::editorDJ(const char* boton)
{
    auto* lista = cargar<frmDJ_buscar>();
    lista->mostrar();
    pulsar(lista, "tlbDJ"_u, QLatin1StringView(boton));
    return formulario("frmDJ_editar");
}

QList<Escenario> Escenarios::deLaDJ()
{
    return {{"agente",
             [] {
                 auto* lista = cargar<frmRTN_buscar>();
                 lista->mostrar();
                 pulsar(lista, "tlbRTN"_u, "modificar"_u);
                 return formulario("frmRTN_editar");
             },
             "tlb", "aceptar", Qt::Key_P, false},
            {"DJ nueva",
             [] {
                 QWidget* f = editorDJ("nueva");
                 escribir(f, "txtRTN_nro"_u, "101"_u);
                 escribir(f, "txtAnio"_u, "2025"_u);
                 return f;
             },
             "tlbDJ", "aceptar", Qt::Key_P, false, "fraGeneral"},
            {"DJ",
             [] {
                 QWidget* f = editorDJ("modificar");
                 pulsar(f, "tlbDJ"_u, "editar"_u);
                 return f;
             },
             "tlbDJ", "aceptar", Qt::Key_P, false, "fraGeneral"},
            {"boleta",
             [] {
                 QWidget* f = editorDJ("modificar");
                 solapa(f, "SSTab1"_u, 2);
                 for (const char* n : {"nroImpuesto", "nroInteres"})
                     escribir(f, QLatin1StringView(n), "12.35"_u);
                 escribir(f, "nroEfectivo"_u, "24.70"_u);
                 return f;
             },
             "tlbB", "generar", 0, false, "fraBoletas"}};
}

QList<Escenario> Escenarios::deLaEscritura()
{
    const auto operacion = [](const char* codigo) {
        QWidget* e = abrirEscritura(false);
        solapa(e, "SSTab1"_u, 1);
        pulsar(e, "tlbOp"_u, "agregar"_u);
        QWidget* f = formulario("frmDJ_detalle_op");
        teclear(f, "ctlCodS"_u, QLatin1StringView(codigo));
        pulsar(f, "tlb"_u, "guardar_op"_u);
        return f;
    };
    const auto con_valor = [operacion](int pagina) {
        QWidget* f = operacion("1");
        pulsar(f, "tlbBI"_u, "nuevo"_u);
        escribir(f, "nroValorContractual"_u, "5000"_u);
        pulsar(f, "tlbBI"_u, "guardar"_u);
        solapa(f, "SSTab1"_u, pagina);
        return f;
    };
    return {{"escritura", [] { return abrirEscritura(false); }, "tlbDetalle", "aceptar", Qt::Key_P, false, "fraCab"},
            {"parte",
             [] {
                 QWidget* e = abrirEscritura(false);
                 pulsar(e, "tlbPartes"_u, "editar"_u);
                 return formulario("frmDJ_detalle_parte");
             },
             "tlb", "aceptar", Qt::Key_P, true},
            {"inmueble",
             [] {
                 QWidget* e = abrirEscritura(false);
                 pulsar(e, "tlbInm"_u, "editar"_u);
                 return formulario("frmDJ_editar_inmueble");
             },
             "tlb", "aceptar", Qt::Key_P, true},
            {"base", [con_valor] { return con_valor(0); }, "tlb", "guardar_det", Qt::Key_D, false, "fraVF"},
            {"impuesto", [con_valor] { return con_valor(1); }, "tlb", "guardar_det", Qt::Key_D, false, "fraImp"},
            {"valor contractual",
             [operacion] {
                 QWidget* f = operacion("1");
                 pulsar(f, "tlbBI"_u, "nuevo"_u);
                 escribir(f, "nroValorContractual"_u, "5000"_u);
                 return f;
             },
             "tlbBI", "guardar", 0, true, "fraEditarVC"}};
}

QList<Escenario> Escenarios::delCatalogo()
{
    return {{"ítem",
             [] {
                 auto* f = cargar<frmEditarSubconceptoSellos>();
                 f->Inicializar(Modo::modificar, 5707001, 0);
                 f->mostrar();
                 pulsar(f, "toolbar"_u, "editar"_u);
                 return f;
             },
             "toolbar", "aceptar", Qt::Key_P, false},
            {"alícuota",
             [] {
                 auto* f = cargar<frmEditarAlicuota>();
                 f->Inicializar(Modo::modificar, 5707001, alicuotas_de(5707001).constFirst());
                 f->mostrar();
                 return f;
             },
             "toolbar", "aceptar", Qt::Key_P, true},
            {"rol",
             [] {
                 auto* f = cargar<frmEditarRol>();
                 f->Inicializar(Modo::modificar, 5707001, roles_de(5707001).constFirst());
                 f->mostrar();
                 return f;
             },
             "toolbar", "aceptar", Qt::Key_P, true}};
}
