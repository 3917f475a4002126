// SPDX-License-Identifier: GPL-3.0-or-later
// The main window: its exit, its menu, and how the tab key runs through a form.

#include "agents/screens/frmRTN_buscar.h"
#include "apoyo/pantallas.h"

#include <QMessageBox>
#include <QTest>

namespace {

using namespace manejo;

TEST_F(Pantallas, SalirPreguntaYCierraEnOrden)
{
    cargar<frmRTN_buscar>()->mostrar();
    const CajaEsperada pregunta{"¿Está seguro que desea salir del sistema?"_u, "VEDRA-RTN"_u, false,
                                QMessageBox::Question, true};
    Cajas::durante({pregunta}, [&] { EXPECT_FALSE(principal->close()); });
    EXPECT_TRUE(cargada<frmRTN_buscar>());
    CajaEsperada si = pregunta;
    si.si = true;
    Cajas::durante({si}, [&] { EXPECT_TRUE(principal->close()); });
    EXPECT_FALSE(cnRtn.abierta());
    EXPECT_FALSE(cargada<frmRTN_buscar>());
}

// The tab key walks each form line by line, from left to right.
TEST_F(Pantallas, ElTabuladorRecorreComoSeLee)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    QWidget* e = abrirEscritura(false);
    pulsar(e, "tlbInm"_u, "agregar"_u);
    auto* f = formulario("frmDJ_editar_inmueble");
    control(f, "txtINM_partida"_u)->setFocus();
    QPoint antes(-1, -1);
    int pasos = 0;
    for (QWidget* w = f->focusWidget(); w; w = f->focusWidget()) {
        const QPoint aqui = w->mapTo(f, QPoint(0, w->height() / 2));
        EXPECT_TRUE(aqui.y() > antes.y() + 8 || (std::abs(aqui.y() - antes.y()) <= 8 && aqui.x() > antes.x()))
            << w->objectName().toStdString() << " " << w->parentWidget()->objectName().toStdString();
        antes = aqui;
        if (++pasos == 24)
            break;
        QTest::keyClick(w, Qt::Key_Tab);
    }
    EXPECT_EQ(pasos, 24);
}

}  // namespace
