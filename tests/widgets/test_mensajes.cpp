// SPDX-License-Identifier: GPL-3.0-or-later
// A box never outgrows the screen.

#include "apoyo/apoyo.h"
#include "core/modGlobales.h"
#include "widgets/guardia.h"
#include "widgets/mensajes.h"
#include "widgets/vigia_pantalla.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

TEST(ComunesMensajes, UnTextoLargoSeDesplazaDentroDeLaCaja)
{
    for (const int cuantos : {2, 1000, 100'000}) {
        QStringList numeros;
        for (int i = 0; i < cuantos; ++i)
            numeros << QString::number(i);
        const QString texto = "Faltan declarar las escrituras Nº: "_u + numeros.join(", "_u);
        bool vista = false;
        QTimer reloj;
        QObject::connect(&reloj, &QTimer::timeout, &reloj, [&] {
            auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!caja || !caja->isVisible())
                return;
            vista = true;
            EXPECT_EQ(caja->text(), texto);
            EXPECT_LT(caja->height(), 500) << cuantos;
            EXPECT_LT(caja->width(), 800) << cuantos;
            const auto* campo = caja->findChild<QPlainTextEdit*>("texto"_u);
            EXPECT_EQ(campo != nullptr, cuantos > 2);
            if (campo) {
                EXPECT_EQ(campo->toPlainText(), texto);
                EXPECT_TRUE(campo->isVisible());
            }
            auto* boton = caja->button(QMessageBox::Ok);
            EXPECT_TRUE(caja->rect().contains(boton->geometry()));
            boton->click();
        });
        reloj.start(2);
        DialogoPantalla(nullptr).avisar({texto, "T"_u, Icono::informacion});
        EXPECT_TRUE(vista);
    }
}

// Presses "Cancelar" of the window with the bar, by a timer of its own kind: QTimers are not heard meanwhile.
class Impaciente : public QObject
{
public:
    Impaciente() { startTimer(20); }
    bool conPuntero = false;
    QString texto;

protected:
    void timerEvent(QTimerEvent*) override
    {
        auto* ventana = QApplication::activeModalWidget();
        if (!ventana || ventana->objectName() != "progreso"_u)
            return;
        conPuntero = QGuiApplication::overrideCursor() != nullptr;
        texto = ventana->findChild<QLabel*>()->text();
        if (auto* cancelar = ventana->findChild<QPushButton*>("cmdCancelar"_u))
            cancelar->click();
    }
};

class ComunesEspera : public ConAlmacen
{
protected:
    static bool contar(qint64 hasta)
    {
        return con_guardia(nullptr, [&] {
            const Recordset rs(cnRtn, "with recursive n(x) as (select 1 union all select x+1 from n where x<%1)"
                                      " select max(x) from n"_u.arg(hasta));
            EXPECT_EQ(rs.entero(0), hasta);
        });
    }
};

// A long reading shows that it goes on and can be cancelled; a transaction is not left half done by it.
TEST_F(ComunesEspera, UnaConsultaLargaSeVeYSeCancela)
{
    const VigiaPantalla vigia(nullptr);
    bool otra = false;
    QTimer reloj;
    reloj.setSingleShot(true);
    QObject::connect(&reloj, &QTimer::timeout, [&] { otra = contar(10); });
    reloj.start(0);
    {
        Impaciente quien;
        EXPECT_FALSE(contar(1'000'000'000));
        EXPECT_TRUE(quien.conPuntero);
        EXPECT_EQ(quien.texto, "Se consulta la base de datos…"_u);
        EXPECT_FALSE(otra);
    }
    QApplication::processEvents();
    EXPECT_TRUE(otra);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_FALSE(VentanaProgreso::hay());
    Impaciente quien;
    Transaccion t(cnRtn);
    EXPECT_TRUE(contar(12'000'000));
    EXPECT_FALSE(quien.texto.isEmpty());
    // The next wait begins while the window of the last one still stands.
    QTest::qSleep(200);
    EXPECT_TRUE(contar(12'000'000));
    QApplication::processEvents();
    EXPECT_FALSE(VentanaProgreso::hay());
}

}  // namespace
