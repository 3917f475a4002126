// SPDX-License-Identifier: GPL-3.0-or-later
// Every form and every bar: what is typed into a field is the same for the store whether the field is left by Tab
// or the button acts at once, by a click, by its access key or by Enter.

#include "apoyo/escenarios.h"
#include "widgets/ctlNumero.h"

#include <QApplication>
#include <QTest>

namespace {

using namespace manejo;

enum class Salida { tab, clic, acceso, enter };

class SalidaDeCampo : public Escenarios
{
protected:
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
        case Salida::clic: clicEn(f, e); break;
        case Salida::acceso: QTest::keyClick(QApplication::focusWidget(), Qt::Key(e.letra), Qt::AltModifier); break;
        case Salida::enter: QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); break;
        }
        QApplication::processEvents();
        const QString resultado = cajas_.join(u'|') + u'\n' + almacen();
        cerrarTodo();
        cnRtn.deshacerTodo();
        return resultado;
    }
    void recorrer(const Escenario& e)
    {
        cnRtn.comenzar();
        QWidget* f = e.abrir();
        const QStringList nombres = campos(f, QLatin1StringView(e.marco));
        const QString antes = almacen();
        cerrarTodo();
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
};

TEST_F(SalidaDeCampo, AgenteYDJ)
{
    for (const Escenario& e : deLaDJ())
        recorrer(e);
}

TEST_F(SalidaDeCampo, EscrituraParteInmuebleYOperacion)
{
    for (const Escenario& e : deLaEscritura())
        recorrer(e);
}

TEST_F(SalidaDeCampo, Catalogo)
{
    for (const Escenario& e : delCatalogo())
        recorrer(e);
}

}  // namespace
