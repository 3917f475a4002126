// SPDX-License-Identifier: GPL-3.0-or-later
// The report window.

#include "apoyo/pantallas.h"
#include "printing/screens/ctlVistaPrevia.h"
#include "printing/screens/frmReportes.h"
#include "printing/screens/rpt_dj.h"

#include <QDir>
#include <QFile>
#include <QPrintDialog>
#include <QScrollBar>
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

// What is ended halfway leaves the file that was there.
TEST_F(Pantallas, ElPDFQueSeCancelaNoTocaElArchivo)
{
    const QString dj = nueva_dj();
    for (int i = 1; i <= 300; ++i)
        nueva_escritura(dj, i, i, i, 1);
    const QString archivo = carpeta.filePath("dj.pdf"_u);
    for (const int hasta : {0, 3}) {
        rpt_dj informe(leer_dj_impresa(dj), "9DCABBEC95C60F7B69846C4A8513C009"_u, "v"_u);
        EXPECT_EQ(guardar_pdf(informe, archivo, "T"_u, [&](int hechas, int) { return hechas < hasta; }),
                  SalidaPDF::cancelado);
        EXPECT_FALSE(QFile::exists(archivo));
    }
}

// The keys scroll without a click on the page before, and End waits for the last page.
TEST_F(Pantallas, LaVistaPreviaSeRecorreConElTeclado)
{
    const QString dj = nueva_dj();
    for (int i = 1; i <= 300; ++i)
        nueva_escritura(dj, i, i, i, 1);
    auto* r = cargar<frmReportes>();
    r->DJ(dj, "9DCABBEC95C60F7B69846C4A8513C009"_u);
    r->mostrar();
    auto* vista = r->findChild<ctlVistaPrevia*>();
    const QScrollBar* barra = vista->verticalScrollBar();
    ASSERT_EQ(QApplication::focusWidget(), vista);
    QTest::keyClick(vista, Qt::Key_PageDown);
    const int una = barra->value();
    EXPECT_GT(una, 0);
    QTest::keyClick(vista, Qt::Key_End);
    EXPECT_FALSE(texto(r, "lblPaginas"_u).endsWith(u'…'));
    EXPECT_EQ(barra->value(), barra->maximum());
    EXPECT_EQ(vista->paginaActual(), vista->paginas() - 1);
    QTest::keyClick(vista, Qt::Key_Home);
    EXPECT_EQ(barra->value(), 0);
    QTest::keyClick(vista, Qt::Key_PageDown);
    QTest::keyClick(vista, Qt::Key_PageUp);
    EXPECT_EQ(barra->value(), 0);
}

TEST_F(Pantallas, NombreDelPDF)
{
    const QString dj = nueva_dj();
    auto* r = cargar<frmReportes>();
    r->DJ(dj, "9DCABBEC95C60F7B69846C4A8513C009"_u);
    r->mostrar();
    const auto guardar = [&](const char* nombre, const QList<CajaEsperada>& cajas = {}) {
        Cajas::durante(cajas, [&] { pulsar(r, "tlb"_u, "pdf"_u); }, {carpeta.filePath(QLatin1StringView(nombre))});
    };
    guardar("uno");
    guardar("dos.2026");
    guardar("tres.PDF");
    EXPECT_EQ(QDir(carpeta.path()).entryList({"*.pdf"_u, "uno*"_u, "dos*"_u, "tres*"_u}, QDir::Files).join(u' '),
              "dos.2026.pdf tres.PDF uno.pdf"_u);
    // A file that the name stands for in the end is not lost unasked.
    QFile::remove(carpeta.filePath("dos.2026.pdf"_u));
    QFile ajeno(carpeta.filePath("dos.2026.pdf"_u));
    ASSERT_TRUE(ajeno.open(QIODevice::WriteOnly));
    ajeno.close();
    guardar("dos.2026", {{"El archivo "_u, "Declaración Jurada"_u, false}});
    EXPECT_EQ(ajeno.size(), 0);
}

TEST_F(Pantallas, NombreDeLaImpresionAUnArchivo)
{
    const QString dj = nueva_dj();
    auto* r = cargar<frmReportes>();
    r->DJ(dj, "9DCABBEC95C60F7B69846C4A8513C009"_u);
    r->mostrar();
    QString propuesto;
    QTimer reloj;
    QObject::connect(&reloj, &QTimer::timeout, &reloj, [&] {
        if (auto* dialogo = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget())) {
            propuesto = dialogo->findChild<QLineEdit*>("filename"_u)->text();
            dialogo->reject();
        }
    });
    reloj.start(2);
    QTest::keyClick(r, Qt::Key_M, Qt::AltModifier);
    EXPECT_EQ(propuesto, QDir::home().filePath("dj-%1.pdf"_u.arg(dj)));
}

}  // namespace
