// SPDX-License-Identifier: GPL-3.0-or-later
// A person who does anything: presses, types, pastes, turns the wheel, uses access keys and clicks into fields,
// wherever something is visible and enabled, with any answer to the boxes. SEMILLA sets the course, ACCIONES its
// length:
//   ACCIONES=100000 build/dev/programa/pruebas --gtest_filter='Azar*'

#include "apoyo/ventanas.h"
#include "core/numero.h"
#include "manejo/manejo.h"
#include "widgets/barra.h"
#include "widgets/ctlCombo.h"
#include "widgets/ctlNumero.h"
#include "widgets/grilla.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <random>
#include <set>

namespace {

using namespace manejo;

int entorno(const char* nombre, int supuesto)
{
    return qEnvironmentVariableIsSet(nombre) ? qEnvironmentVariableIntValue(nombre) : supuesto;
}

constexpr const char* PEGADOS[] = {"$ 1.500,00",
                                   "20-12345678-6",
                                   "N° 45",
                                   "1.50.00",
                                   "-7",
                                   "D'ANGELO",
                                   "FRENTE 20' -- FONDO 30'",
                                   "X'; DELETE FROM SEL_TB_RTN_CABDJ; --",
                                   "una línea\r\ny otra\tcon tabulador",
                                   "/* nada */ ñandú 100%1",
                                   "abc",
                                   "99999999999999999999",
                                   ""};

/// What a form stores, and where: after a save each control shows what its column holds.
struct Guardado
{
    const char* form;
    const char* barra;
    const char* clave;
    const char* fila;  ///< query of the row; %1 to %3 are the texts of `clavesFila`
    QStringList clavesFila;
    QList<std::pair<const char*, const char*>> columnas;
};
const QList<Guardado>& guardados()
{
    static const QList<Guardado> TABLA{
        {"frmDJ_editar",
         "tlbDJ",
         "aceptar",
         "select * from SEL_TB_RTN_CABDJ where SEDJ_NRO='%1'",
         {"txtNroDJ"_u},
         {{"txtRTN_nro", "SRTN_NRO"},
          {"txtAnio", "SEDJ_ANIO"},
          {"cboMes", "SEDJ_MES"},
          {"txtObs", "SEDJ_OBSERVACIONES"},
          {"nroAcred_monto", "SEDJ_ACRED_MONTO"}}},
        {"frmDJ_detalle",
         "tlbDetalle",
         "aceptar",
         "select * from SEL_TB_RTN_DETDJ where SEDJ_NRO='%1' and SEDD_ID=%2",
         {"txtDJ_nro"_u, "txtRenglonDJ"_u},
         {{"txtNroEscritura", "SEDD_ESCRITURA_NRO"},
          {"txtFolio", "SEDD_FOLIO"},
          {"nroDia", "SEDD_DIA"},
          {"txtObs", "SEDD_OBSERVACIONES"}}},
        {"frmDJ_detalle_op",
         "tlb",
         "guardar_det",
         "select * from SEL_TB_RTN_INS_OPERACIONES where SEDJ_NRO='%1' and SEDD_ID=%2 and SEDO_ID=%3",
         {"txtDJ_nro"_u, "txtRenglonDJ"_u, "txtNroOP"_u},
         {{"nroBaseImponible", "SINS_BASEIMPONIBLE"},
          {"ctlImpuestoCalculado", "SINS_IMPUESTO_CALCULADO"},
          {"nroExencionPorc", "SINS_PORC_EXENTO"},
          {"nroMontoExento", "SINS_MONTO_EXENTO"},
          {"nroPagoACuenta", "SINS_PAGO_CTA_MONTO"},
          {"nroAdicionales", "SINS_ADICIONALES"},
          {"nroImpuesto", "SINS_MONTO_FINAL"},
          {"txtObs", "SINS_OBS"}}},
        {"frmEditarSubconceptoSellos",
         "toolbar",
         "aceptar",
         "select * from SEL_TB_SUBCONCEPTOS where SSUB_ID=%1",
         {"nroCodigo"_u},
         {{"txtDescripcion", "SSUB_DESCRIPCION"},
          {"txtLeyVigencia", "SSUB_LEYVIGENCIA"},
          {"txtObservaciones", "SSUB_OBSERVACIONES"},
          {"nroPorcValFiscal", "SSUB_PORC_VALUACION_FISCAL"}}},
    };
    return TABLA;
}

class Azar : public ConVentanas
{
protected:
    void SetUp() override
    {
        ConVentanas::SetUp();
        // The way to a stored operation is not barred by roles that must be held.
        cnRtn.ejecutar("update SEL_TB_ROLES set SROL_REQUERIDO=0"_u);
    }
    size_t hasta(qsizetype n) { return azar_() % size_t(n); }

    // Message boxes get any answer, other dialogs are left.
    void responder()
    {
        auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (auto* caja = qobject_cast<QMessageBox*>(dialogo)) {
            ++cajas_;
            const auto botones = caja->buttons();
            botones[qsizetype(hasta(botones.size()))]->click();
        } else if (dialogo) {
            dialogo->reject();
        }
    }
    // The form in front; a DJ with one deed is opened when none is.
    Formulario* alFrente()
    {
        Formulario* f = nullptr;
        for (Formulario* x : Formulario::cargados())
            if (x->isEnabled() && x->isVisible())
                f = x;
        if (f)
            return f;
        cnRtn.ejecutarGuion("delete from SEL_TB_RTN_INS_ROLES; delete from SEL_TB_RTN_CABDJ"_u);
        nueva_escritura(nueva_dj(), 1, 1, 1, 1);
        abrirEscritura(false);
        return alFrente();
    }
    void escribirEn(QLineEdit* texto)
    {
        static const QString LETRAS = "0123456789.,-ñZ' "_u;
        const QPoint lugar(int(hasta(std::max(texto->width(), 1))), texto->height() / 2);
        if (hasta(2) == 0)
            QTest::mouseClick(texto, Qt::LeftButton, Qt::NoModifier, lugar);
        else
            texto->setFocus();
        if (hasta(3) == 0) {
            QApplication::clipboard()->setText(QString::fromUtf8(PEGADOS[hasta(std::size(PEGADOS))]));
            QTest::keyClick(texto, Qt::Key_V, Qt::ControlModifier);
        } else {
            for (size_t n = hasta(5); n > 0; --n)
                caracteres(texto, LETRAS[qsizetype(hasta(LETRAS.size()))]);
        }
        if (const size_t fin = hasta(6); fin < 3)
            QTest::keyClick(texto, std::array{Qt::Key_Tab, Qt::Key_Return, Qt::Key_Escape}[fin]);
    }
    void elegirEn(QComboBox* combo)
    {
        if (hasta(2) == 0) {
            combo->setCurrentIndex(int(hasta(combo->count())));
            emit combo->activated(combo->currentIndex());
            return;
        }
        combo->setFocus();
        QTest::keyClick(combo, hasta(2) == 0 ? Qt::Key_Down : Qt::Key(Qt::Key_A + int(hasta(26))));
    }
    void rueda(QWidget* w)
    {
        QWheelEvent evento(QPointF(3, 3), w->mapToGlobal(QPointF(3, 3)), {}, {0, hasta(2) == 0 ? 120 : -120},
                           Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(w, &evento);
    }
    void tocar(Formulario* f, QWidget* w)
    {
        if (const size_t otra = hasta(12); otra == 0) {
            QWidget* foco = QApplication::focusWidget();
            QTest::keyClick(foco ? foco : f, Qt::Key(Qt::Key_A + int(hasta(26))), Qt::AltModifier);
        } else if (otra == 1) {
            rueda(w);
        } else if (auto* combo = qobject_cast<QComboBox*>(w); combo && combo->count() > 0) {
            elegirEn(combo);
        } else if (auto* lista = qobject_cast<ctlCombo*>(w)) {
            QTest::keyClick(lista->focusProxy(), Qt::Key_Down);
            if (QWidget* abierta = lista->findChild<QWidget*>("lvw"_u); abierta->isVisible())
                QTest::keyClick(abierta, hasta(2) == 0 ? Qt::Key_Return : Qt::Key_Escape);
        } else if (auto* boton = qobject_cast<QAbstractButton*>(w)) {
            boton->click();
        } else if (auto* grilla = qobject_cast<Grilla*>(w); grilla && grilla->filas() > 0) {
            grilla->irAFila(int(hasta(grilla->filas())));
            if (hasta(3) == 0)
                QTest::keyClick(grilla, Qt::Key_Return);
        } else if (auto* solapas = qobject_cast<QTabWidget*>(w)) {
            solapas->setCurrentIndex(int(hasta(solapas->count())));
        } else if (auto* texto = qobject_cast<QLineEdit*>(w); texto && !texto->isReadOnly()) {
            escribirEn(texto);
        }
    }
    // A form that has just saved is at rest: its button is off, and no box has refused it.
    void comprobarGuardado(Formulario* f, const QStringList& enEdicion, int cajasAntes)
    {
        for (const Guardado& g : guardados()) {
            const QString nombre = QLatin1StringView(g.form);
            if (!f || f->descargada() || f->objectName() != nombre || !enEdicion.contains(nombre)
                || cajas_ != cajasAntes || habilitado(f, QLatin1StringView(g.barra), QLatin1StringView(g.clave))
                || clave_ != QLatin1StringView(g.clave))
                continue;
            QString sql = QLatin1StringView(g.fila);
            for (const QString& c : g.clavesFila)
                sql = sql.arg(texto(f, c));
            const Recordset fila(cnRtn, sql);
            ASSERT_FALSE(fila.eof()) << sql.toStdString();
            ++comprobados_;
            for (const auto& [control_, columna] : g.columnas) {
                QWidget* w = control(f, QLatin1StringView(control_));
                const QString mostrado = texto(f, QLatin1StringView(control_));
                if (auto* n = qobject_cast<ctlNumero*>(w))
                    EXPECT_DOUBLE_EQ(n->Value(), fila.real(columna)) << g.form << ' ' << control_;
                else
                    EXPECT_EQ(mostrado, fila.texto(columna)) << g.form << ' ' << control_;
            }
        }
    }
    QStringList formasEnEdicion()
    {
        QStringList formas;
        for (Formulario* f : Formulario::cargados())
            for (const Guardado& g : guardados())
                if (f->objectName() == QLatin1StringView(g.form)
                    && habilitado(f, QLatin1StringView(g.barra), QLatin1StringView(g.clave)))
                    formas << f->objectName();
        return formas;
    }

    std::mt19937 azar_{unsigned(entorno("SEMILLA", 5))};
    int cajas_ = 0;
    int comprobados_ = 0;
    QString clave_;  ///< the last button that acted
};

TEST_F(Azar, NadaDeLoQueSeHaceHaceCaerElPrograma)
{
    QTimer cajas;
    QObject::connect(&cajas, &QTimer::timeout, &cajas, [this] { responder(); });
    cajas.start(0);
    std::set<std::string> formularios;
    const int acciones = entorno("ACCIONES", 6000);
    for (int i = 0; i < acciones && !HasFailure(); ++i) {
        QPointer<Formulario> f = alFrente();
        formularios.insert(f->metaObject()->className());
        for (BarraHerramientas* barra : f->findChildren<BarraHerramientas*>())
            QObject::connect(barra, &BarraHerramientas::pulsada, &cajas,
                             [this](const QString& clave) { clave_ = clave; });
        QList<QWidget*> controles = f->findChildren<QWidget*>();
        controles.removeIf([](const QWidget* w) { return !w->isVisible() || !w->isEnabled(); });
        ASSERT_FALSE(controles.isEmpty()) << f->metaObject()->className();
        const QStringList en_edicion = formasEnEdicion();
        const int cajas_antes = cajas_;
        clave_.clear();
        tocar(f, controles[qsizetype(hasta(controles.size()))]);
        QApplication::processEvents();
        comprobarGuardado(f, en_edicion, cajas_antes);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (f)
            for (BarraHerramientas* barra : f->findChildren<BarraHerramientas*>())
                barra->disconnect(&cajas);
        ASSERT_EQ(cnRtn.transacciones(), 0);
    }
    EXPECT_GT(formularios.size(), 5);
    EXPECT_GT(comprobados_, 0);
    EXPECT_EQ(dato("pragma integrity_check"_u), "ok"_u);
    EXPECT_EQ(dato("pragma foreign_key_check"_u), "nada"_u);
}

}  // namespace
