// SPDX-License-Identifier: GPL-3.0-or-later
// A person who presses anything: whatever is visible and enabled, in any form, with any answer to the boxes.
// SEMILLA sets the course.

#include "apoyo/ventanas.h"
#include "manejo/manejo.h"
#include "widgets/ctlCombo.h"
#include "widgets/grilla.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include <random>
#include <set>

namespace {

using namespace manejo;

constexpr int ACCIONES = 4000;
constexpr unsigned SEMILLA = 5;

class Azar : public ConVentanas
{
protected:
    size_t hasta(qsizetype n) { return azar_() % size_t(n); }

    // Message boxes get any answer, other dialogs are left.
    void responder()
    {
        auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (auto* caja = qobject_cast<QMessageBox*>(dialogo)) {
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
        cnRtn.ejecutar("delete from SEL_TB_RTN_CABDJ; delete from SEL_TB_RTN_DETDJ"_u);
        nueva_escritura(nueva_dj(), 1, 1, 1, 1);
        abrirEscritura(false);
        return alFrente();
    }
    void tocar(QWidget* w)
    {
        if (auto* combo = qobject_cast<QComboBox*>(w); combo && combo->count() > 0) {
            combo->setCurrentIndex(int(hasta(combo->count())));
            emit combo->activated(combo->currentIndex());
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
            texto->setFocus();
            QTest::keyClicks(texto, QString::number(hasta(1000)));
            QTest::keyClick(texto, std::array{Qt::Key_Tab, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab}[hasta(4)]);
        }
    }

    std::mt19937 azar_{qEnvironmentVariableIsSet("SEMILLA") ? unsigned(qEnvironmentVariableIntValue("SEMILLA"))
                                                            : SEMILLA};
};

TEST_F(Azar, NadaDeLoQueSePulsaHaceCaerElPrograma)
{
    QTimer cajas;
    QObject::connect(&cajas, &QTimer::timeout, &cajas, [this] { responder(); });
    cajas.start(0);
    std::set<std::string> formularios;
    for (int i = 0; i < ACCIONES; ++i) {
        Formulario* f = alFrente();
        formularios.insert(f->metaObject()->className());
        QList<QWidget*> controles = f->findChildren<QWidget*>();
        controles.removeIf([](const QWidget* w) { return !w->isVisible() || !w->isEnabled(); });
        ASSERT_FALSE(controles.isEmpty()) << f->metaObject()->className();
        tocar(controles[qsizetype(hasta(controles.size()))]);
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        ASSERT_EQ(cnRtn.transacciones(), 0);
    }
    EXPECT_GT(formularios.size(), 5);
    EXPECT_EQ(dato("pragma integrity_check"_u), "ok"_u);
    EXPECT_EQ(dato("pragma foreign_key_check"_u), "nada"_u);
}

}  // namespace
