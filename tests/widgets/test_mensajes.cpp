// SPDX-License-Identifier: GPL-3.0-or-later
// A box never outgrows the screen.

#include "apoyo/apoyo.h"
#include "widgets/mensajes.h"

#include <QApplication>
#include <QMessageBox>
#include <QPlainTextEdit>
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

}  // namespace
