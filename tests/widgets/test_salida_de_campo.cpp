// SPDX-License-Identifier: GPL-3.0-or-later
// Every form and every bar: what is typed into a field is the same for the store whether the field is left by Tab
// or the button acts at once, by a click, by its access key or by Enter.

#include "agents/screens/frmRTN_buscar.h"
#include "apoyo/catalogo.h"
#include "apoyo/pantallas.h"
#include "catalogue/rangos.h"
#include "catalogue/roles_catalogo.h"
#include "catalogue/screens/frmEditarAlicuota.h"
#include "catalogue/screens/frmEditarRol.h"
#include "declarations/screens/frmDJ_buscar.h"
#include "widgets/barra.h"
#include "widgets/ctlNumero.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

using namespace manejo;

struct Escenario
{
    const char* nombre;
    std::function<QWidget*()> abrir;
    const char* barra;
    const char* clave;
    int letra;               // access key of the button, 0 for a bar without them
    bool enter;              // whether Enter presses it
    const char* marco = "";  // the fields below it, those of the whole form without one
};

enum class Salida { tab, clic, acceso, enter };

class SalidaDeCampo : public Pantallas
{
protected:
    void SetUp() override
    {
        Pantallas::SetUp();
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
    // Boxes are taken down and answered by Yes.
    void responder()
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
    static QStringList campos(QWidget* form, const QString& marco)
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
    static QString almacen()
    {
        QString todo;
        for (const char* t : {"SEL_TB_RTN_PADRON", "SEL_TB_RTN_CABDJ", "SEL_TB_RTN_DETDJ", "SEL_TB_RTN_INS_PARTES",
                              "SEL_TB_RTN_INS_INMUEBLES", "SEL_TB_RTN_INS_OPERACIONES", "SEL_TB_RTN_INS_VC",
                              "SEL_TB_RTN_INS_ROLES", "SEL_TB_RTN_BOLDEP"})
            todo += filas("select * from %1"_u.arg(QLatin1StringView(t))) + u'\n';
        for (const char* t : {"SEL_TB_ALICUOTAS", "SEL_TB_ROLES", "SEL_TB_SUBCONCEPTOS"})
            todo += filas("select * from %1 where SSUB_ID=5707001"_u.arg(QLatin1StringView(t))) + u'\n';
        return todo;
    }
    // One entry from the opening of the form to the store; gives the boxes and all rows.
    QString correr(const Escenario& e, const QString& campo, Salida modo)
    {
        cnRtn.comenzar();
        QWidget* f = e.abrir();
        cajas_.clear();
        const bool numero = qobject_cast<ctlNumero*>(control(f, campo));
        teclear(f, campo, numero ? "12.345"_u : "2024"_u);
        switch (modo) {
        case Salida::tab: QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); [[fallthrough]];
        case Salida::clic: {
            auto* barra = qobject_cast<BarraHerramientas*>(control(f, QLatin1StringView(e.barra)));
            QTest::mouseClick(barra->widgetForAction(barra->boton(QLatin1StringView(e.clave))), Qt::LeftButton);
            break;
        }
        case Salida::acceso: QTest::keyClick(QApplication::focusWidget(), Qt::Key(e.letra), Qt::AltModifier); break;
        case Salida::enter: QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); break;
        }
        QApplication::processEvents();
        const QString resultado = cajas_.join(u'|') + u'\n' + almacen();
        for (Formulario* x : Formulario::cargados())
            delete x;
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        cnRtn.deshacerTodo();
        return resultado;
    }
    void recorrer(const Escenario& e)
    {
        cnRtn.comenzar();
        QWidget* f = e.abrir();
        const QStringList nombres = campos(f, QLatin1StringView(e.marco));
        const QString antes = almacen();
        for (Formulario* x : Formulario::cargados())
            delete x;
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        cnRtn.deshacerTodo();
        ASSERT_FALSE(nombres.isEmpty()) << e.nombre;
        int guardados = 0;
        for (const QString& campo : nombres) {
            // Leaving the rate calculates nothing, leaving what comes after it does.
            if (campo == u"nroMoA")
                continue;
            const QString esperado = correr(e, campo, Salida::tab);
            guardados += esperado.section(u'\n', 1) != antes;
            EXPECT_EQ(correr(e, campo, Salida::clic), esperado) << e.nombre << ' ' << campo.toStdString() << " clic";
            if (e.letra != 0) {
                EXPECT_EQ(correr(e, campo, Salida::acceso), esperado) << e.nombre << ' ' << campo.toStdString();
            }
            if (e.enter) {
                EXPECT_EQ(correr(e, campo, Salida::enter), esperado)
                    << e.nombre << ' ' << campo.toStdString() << " Enter";
            }
        }
        EXPECT_GT(guardados, 0) << e.nombre << ' ' << cajas_.join(u'|').toStdString();
    }

    QWidget* editorDJ(const char* boton)
    {
        auto* lista = cargar<frmDJ_buscar>();
        lista->mostrar();
        pulsar(lista, "tlbDJ"_u, QLatin1StringView(boton));
        return formulario("frmDJ_editar");
    }

    QString dj_;
    QStringList cajas_;
    QTimer reloj_;
};

TEST_F(SalidaDeCampo, AgenteYDJ)
{
    recorrer({"agente",
              [] {
                  auto* lista = cargar<frmRTN_buscar>();
                  lista->mostrar();
                  pulsar(lista, "tlbRTN"_u, "modificar"_u);
                  return formulario("frmRTN_editar");
              },
              "tlb", "aceptar", Qt::Key_P, false});
    recorrer({"DJ nueva",
              [this] {
                  QWidget* f = editorDJ("nueva");
                  escribir(f, "txtRTN_nro"_u, "101"_u);
                  escribir(f, "txtAnio"_u, "2025"_u);
                  return f;
              },
              "tlbDJ", "aceptar", Qt::Key_P, false, "fraGeneral"});
    recorrer({"DJ",
              [this] {
                  QWidget* f = editorDJ("modificar");
                  pulsar(f, "tlbDJ"_u, "editar"_u);
                  return f;
              },
              "tlbDJ", "aceptar", Qt::Key_P, false, "fraGeneral"});
    recorrer({"boleta",
              [this] {
                  QWidget* f = editorDJ("modificar");
                  solapa(f, "SSTab1"_u, 2);
                  for (const char* n : {"nroImpuesto", "nroInteres"})
                      escribir(f, QLatin1StringView(n), "12.35"_u);
                  escribir(f, "nroEfectivo"_u, "24.70"_u);
                  return f;
              },
              "tlbB", "generar", 0, false, "fraBoletas"});
}

TEST_F(SalidaDeCampo, EscrituraParteInmuebleYOperacion)
{
    recorrer({"escritura", [] { return abrirEscritura(false); }, "tlbDetalle", "aceptar", Qt::Key_P, false, "fraCab"});
    recorrer({"parte",
              [] {
                  QWidget* e = abrirEscritura(false);
                  pulsar(e, "tlbPartes"_u, "editar"_u);
                  return formulario("frmDJ_detalle_parte");
              },
              "tlb", "aceptar", Qt::Key_P, true});
    recorrer({"inmueble",
              [] {
                  QWidget* e = abrirEscritura(false);
                  pulsar(e, "tlbInm"_u, "editar"_u);
                  return formulario("frmDJ_editar_inmueble");
              },
              "tlb", "aceptar", Qt::Key_P, true});
    const auto operacion = [](const char* codigo) {
        QWidget* e = abrirEscritura(false);
        solapa(e, "SSTab1"_u, 1);
        pulsar(e, "tlbOp"_u, "agregar"_u);
        QWidget* f = formulario("frmDJ_detalle_op");
        teclear(f, "ctlCodS"_u, QLatin1StringView(codigo));
        pulsar(f, "tlb"_u, "guardar_op"_u);
        return f;
    };
    // An item without roles that must be held, nor a base: the tab of the tax is the one in front.
    cnRtn.ejecutar("update SEL_TB_ROLES set SROL_REQUERIDO=0"_u);
    cnRtn.ejecutar("update SEL_TB_SUBCONCEPTOS set SSUB_PAGOACUENTA=1"_u);
    const auto con_valor = [&](int pagina) {
        QWidget* f = operacion("1");
        pulsar(f, "tlbBI"_u, "nuevo"_u);
        escribir(f, "nroValorContractual"_u, "5000"_u);
        pulsar(f, "tlbBI"_u, "guardar"_u);
        solapa(f, "SSTab1"_u, pagina);
        return f;
    };
    recorrer({"base", [&] { return con_valor(0); }, "tlb", "guardar_det", Qt::Key_D, false, "fraVF"});
    recorrer({"impuesto", [&] { return con_valor(1); }, "tlb", "guardar_det", Qt::Key_D, false, "fraImp"});
    recorrer({"valor contractual",
              [&] {
                  QWidget* f = operacion("1");
                  pulsar(f, "tlbBI"_u, "nuevo"_u);
                  escribir(f, "nroValorContractual"_u, "5000"_u);
                  return f;
              },
              "tlbBI", "guardar", 0, true, "fraEditarVC"});
}

TEST_F(SalidaDeCampo, Catalogo)
{
    recorrer({"ítem",
              [] {
                  auto* f = cargar<frmEditarSubconceptoSellos>();
                  f->Inicializar(Modo::modificar, 5707001, 0);
                  f->mostrar();
                  pulsar(f, "toolbar"_u, "editar"_u);
                  return f;
              },
              "toolbar", "aceptar", Qt::Key_P, false});
    recorrer({"alícuota",
              [] {
                  auto* f = cargar<frmEditarAlicuota>();
                  f->Inicializar(Modo::modificar, 5707001, alicuotas_de(5707001).constFirst());
                  f->mostrar();
                  return f;
              },
              "toolbar", "aceptar", Qt::Key_P, true});
    recorrer({"rol",
              [] {
                  auto* f = cargar<frmEditarRol>();
                  f->Inicializar(Modo::modificar, 5707001, roles_de(5707001).constFirst());
                  f->mostrar();
                  return f;
              },
              "toolbar", "aceptar", Qt::Key_P, true});
}

}  // namespace
