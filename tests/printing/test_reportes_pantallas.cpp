// SPDX-License-Identifier: GPL-3.0-or-later
// The report window.

#include "apoyo/pantallas.h"
#include "printing/screens/ctlVistaPrevia.h"
#include "printing/screens/frmReportes.h"

#include <QTest>

namespace {

using namespace manejo;

TEST_F(Pantallas, VistaPreviaDeUnaDJLarga)
{
    const QString dj = nueva_dj();
    for (int i = 1; i <= 300; ++i)
        nueva_escritura(dj, i, i, i, 1);
    auto* r = cargar<frmReportes>();
    r->DJ(dj, "9DCABBEC95C60F7B69846C4A8513C009"_u);
    r->mostrar();
    EXPECT_TRUE(texto(r, "lblPaginas"_u).endsWith(u'…'));  // the first page shows before the last is laid out
    ASSERT_TRUE(QTest::qWaitFor([&] { return !texto(r, "lblPaginas"_u).endsWith(u'…'); }));
    const int paginas = texto(r, "lblPaginas"_u).mid(3).toInt();
    EXPECT_GT(paginas, 5);
    auto* vista = r->findChild<ctlVistaPrevia*>();
    clic(r, "cmdSiguiente"_u);
    EXPECT_EQ(vista->paginaActual(), 1);
    teclear(r, "spnPagina"_u, "4"_u);
    tecla(r, "spnPagina"_u, Qt::Key_Return);
    EXPECT_EQ(vista->paginaActual(), 3);
    for (const char* zoom : {"Página entera", "200 %", "50 %", "Ajustar al ancho"}) {
        elegir(r, "cboZoom"_u, QString::fromUtf8(zoom));
        EXPECT_EQ(vista->paginas(), paginas);
        EXPECT_FALSE(vista->grab().isNull());
    }
    EXPECT_FALSE(r->guardarPDF("/no/hay/carpeta.pdf"_u));
}

}  // namespace
