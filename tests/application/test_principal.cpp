// SPDX-License-Identifier: GPL-3.0-or-later
// The main window: its exit, its menu, and how the tab key runs through a form.

#include "agents/screens/frmRTN_buscar.h"
#include "apoyo/pantallas.h"
#include "widgets/mensajes.h"

#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QStatusBar>
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

// However long the store's path is, the window fits the screen; without a law in force nothing is said of it.
TEST_F(Pantallas, BarraDeEstado)
{
    const QString larga = carpeta.path() + "/%1/vedra_rtn.db"_u.arg(QString(900, u'x'));
    QFile cfg(carpeta.path() + "/vedra_rtn.cfg"_u);
    ASSERT_TRUE(cfg.open(QIODevice::WriteOnly));
    cfg.write(larga.toUtf8());
    cfg.close();
    ASSERT_TRUE(principal->iniciar());
    QApplication::processEvents();
    EXPECT_EQ(principal->width(), 1200);
    auto* ruta = principal->findChild<QLabel*>("panelBase"_u);
    EXPECT_EQ(ruta->toolTip(), QDir::toNativeSeparators(larga));
    EXPECT_TRUE(ruta->text().startsWith("Base de datos: "_u) && ruta->text().contains(u'…')
                && ruta->text().endsWith(QDir::toNativeSeparators("x/vedra_rtn.db"_u)))
        << ruta->text().toStdString();
    EXPECT_TRUE(principal->findChild<QLabel*>("panelLey"_u)->text().startsWith("Ley vigente: 5707"_u));

    cnRtn.ejecutar("update GLB_TB_LEYES set GLEY_VIGENCIA_HASTA='2020-01-01'"_u);
    LeyVigente = 0;
    MDIPrincipal otra;
    ASSERT_TRUE(otra.iniciar());
    const auto rotulos = otra.statusBar()->findChildren<QLabel*>();
    ASSERT_EQ(rotulos.size(), 1);
    EXPECT_EQ(rotulos[0]->objectName(), "panelBase"_u);
}

TEST_F(Pantallas, UnaCajaSinTituloLlevaElDelPrograma)
{
    DialogoPantalla dialogo(principal.get());
    Cajas::durante({{"aviso"_u, "VEDRA-RTN"_u}, {"pregunta"_u, "VEDRA-RTN"_u}, {"otro"_u, "Suyo"_u}}, [&] {
        dialogo.avisar({"aviso"_u, {}});
        EXPECT_TRUE(dialogo.preguntar({"pregunta"_u, ""_u}));
        dialogo.avisar({"otro"_u, "Suyo"_u});
    });
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
