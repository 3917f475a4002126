// SPDX-License-Identifier: GPL-3.0-or-later
// What a user does with a list: sorts it, takes it elsewhere, leaves its columns and its window as he wants them.

#include "apoyo/pantallas.h"
#include "core/planilla.h"
#include "declarations/screens/frmDJ_buscar.h"
#include "widgets/grilla.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QMdiSubWindow>
#include <QMenu>
#include <QProcess>
#include <QTest>

namespace {

using namespace manejo;

QString columna(QWidget* f, int c)
{
    QStringList celdas;
    for (int i = 0; i < manejo::filas(f, "flx"_u); ++i)
        celdas << en_grilla(f, "flx"_u, i, c);
    return celdas.join(u' ');
}

void ordenar(Grilla* g, int c)
{
    const QHeaderView* titulos = g->horizontalHeader();
    QTest::mouseClick(titulos->viewport(), Qt::LeftButton, {},
                      {titulos->sectionViewportPosition(c) + 20, titulos->height() / 2});
}

TEST_F(Pantallas, LaListaSeOrdenaPorValoresYLaFilaEsLaMisma)
{
    for (const int secuencia : {1, 9, 10})
        nueva_dj(secuencia);
    auto* f = cargar<frmDJ_buscar>();
    f->mostrar();
    auto* g = f->findChild<Grilla*>("flx"_u);
    celda(f, "flx"_u, 2, 0);
    const QString dj = g->clave();
    ordenar(g, 5);
    EXPECT_EQ(columna(f, 5), "1 9 10"_u);
    EXPECT_EQ(g->clave(), dj);
    EXPECT_EQ(g->filaLeida(), 2);
    // The list is read again in the order that was chosen.
    escribir(f, "nroAnio"_u, "2026"_u);
    EXPECT_EQ(columna(f, 5), "1 9 10"_u);
    EXPECT_EQ(g->clave(), dj);
    ordenar(g, 5);
    ordenar(g, 5);
    EXPECT_EQ(columna(f, 5), "10 9 1"_u);
    EXPECT_EQ(g->horizontalHeader()->sortIndicatorSection(), -1);
}

TEST_F(Pantallas, LaListaLlenaSuAnchoYSeQuedaComoSeDeja)
{
    nueva_dj();
    auto* f = cargar<frmDJ_buscar>();
    f->mostrar();
    auto* g = f->findChild<Grilla*>("flx"_u);
    auto* ventana = qobject_cast<QMdiSubWindow*>(f->parentWidget());
    const auto llena = [g] { return g->horizontalHeader()->length() == g->viewport()->width(); };
    EXPECT_TRUE(llena());
    const QRect lugar(30, 20, ventana->width() - 40, ventana->height() - 10);
    ventana->setGeometry(lugar);
    QApplication::processEvents();
    EXPECT_TRUE(llena());
    QHeaderView* titulos = g->horizontalHeader();
    const int antes = g->columnWidth(0);
    const QPoint borde(titulos->sectionViewportPosition(1) - 1, titulos->height() / 2);
    QTest::mousePress(titulos->viewport(), Qt::LeftButton, {}, borde);
    QTest::mouseMove(titulos->viewport(), borde - QPoint(30, 0));
    QTest::mouseRelease(titulos->viewport(), Qt::LeftButton, {}, borde - QPoint(30, 0));
    f->descargar();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    f = cargar<frmDJ_buscar>();
    f->mostrar();
    EXPECT_EQ(f->parentWidget()->geometry(), lugar);
    EXPECT_NEAR(f->findChild<Grilla*>("flx"_u)->columnWidth(0), antes - 30, 1);
    f->descargar();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    // In a smaller window it comes where it came at first.
    principal->resize(principal->width() - 100, principal->height());
    QApplication::processEvents();
    f = cargar<frmDJ_buscar>();
    f->mostrar();
    EXPECT_EQ(f->parentWidget()->pos(), QPoint(0, 0));
}

TEST_F(Pantallas, LaListaSeGuardaComoPlanilla)
{
    nueva_dj();
    auto* f = cargar<frmDJ_buscar>();
    f->mostrar();
    auto* g = f->findChild<Grilla*>("flx"_u);
    const auto guardar = [&](const QString& nombre) {
        QTimer::singleShot(0, g, [] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QTest::keyClick(menu, Qt::Key_G);
        });
        QContextMenuEvent pedido(QContextMenuEvent::Keyboard, {5, 5}, g->mapToGlobal(QPoint(5, 5)));
        Cajas::durante({}, [&] { QApplication::sendEvent(g, &pedido); }, {carpeta.filePath(nombre)});
        QFile archivo(carpeta.filePath(nombre));
        return archivo.open(QIODevice::ReadOnly) ? archivo.readAll() : QByteArray();
    };
    EXPECT_EQ(QString::fromUtf8(guardar("l.csv"_u)), "DJ Nº;AR Nº;Municipio;Año;Mes;Rectif.;Estado;Observaciones\r\n"
                                                     "20123456786261000;101;PÉREZ;2026;10;0;NORMAL;\r\n"_u);
    const QByteArray ods = guardar("l.ods"_u);
    EXPECT_EQ(ods.mid(30, 54), "mimetypeapplication/vnd.oasis.opendocument.spreadsheet");
}

// What the bars beside the lists do needs no mouse.
TEST_F(Pantallas, ListasConElTeclado)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_INS_PARTES (SPIN_ID, SEDJ_NRO, SEDD_ID, GTDC_ID, SPIN_NRODOC, SPIN_RSOCIAL, SPIN_NACIONALIDAD) "
        "values (1, '%1', 1, '80', '20123456786', 'UNO', 'A'), (2, '%1', 1, '96', '22333444', 'DOS', 'A')"_u.arg(dj));
    QWidget* e = abrirEscritura(false);
    pulsar(e, "tlbDetalle"_u, "cancelar"_u);
    auto* partes = e->findChild<Grilla*>("flxPartes"_u);
    tecla(e, "flxPartes"_u, Qt::Key_Insert);
    pulsar(formulario("frmDJ_detalle_parte"), "tlb"_u, "cancelar"_u);
    partes->irAFila(1, 2);
    const auto menu_con = [&](Qt::Key letra) {
        QTimer::singleShot(0, partes, [letra] { QTest::keyClick(QApplication::activePopupWidget(), letra); });
        QContextMenuEvent pedido(QContextMenuEvent::Keyboard, {5, 5}, partes->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(partes, &pedido);
    };
    for (const char* primero : {"22333444", "20123456786", "20123456786"}) {
        menu_con(Qt::Key_R);
        EXPECT_EQ(partes->celda(0, 2), QLatin1StringView(primero));
    }
    Cajas::durante({{"¿Está seguro que desea quitar la parte seleccionada?"_u}},
                   [&] { tecla(e, "flxPartes"_u, Qt::Key_Delete); });
    EXPECT_EQ(partes->filas(), 1);
    menu_con(Qt::Key_E);
    pulsar(formulario("frmDJ_detalle_parte"), "tlb"_u, "cancelar"_u);
}

// The archive is opened by another program.
TEST(Planilla, LosValoresSonValoresYLosTextosSonTextos)
{
    const Planilla p{
        "escrituras"_u,
        {"Nº"_u, "Importe"_u, "Día"_u, "Nombre"_u},
        {{"00012"_u, "1.234,50"_u, "05/10/2026"_u, "=A1+\"x\";ñ"_u}, {"20123456786261000"_u, {}, {}, "<&>"_u}}};
    EXPECT_EQ(
        QString::fromUtf8(planilla_csv(p)),
        "Nº;Importe;Día;Nombre\r\n00012;1.234,50;05/10/2026;\"'=A1+\"\"x\"\";ñ\"\r\n20123456786261000;;;<&>\r\n"_u);
    EXPECT_TRUE(planilla_csv(p).startsWith("\xEF\xBB\xBF"));
    QProcess lector;
    lector.start("bsdtar"_u, {"-xOf"_u, "-"_u, "content.xml"_u});
    lector.write(planilla_ods(p));
    lector.closeWriteChannel();
    ASSERT_TRUE(lector.waitForFinished());
    const QByteArray xml = lector.readAllStandardOutput();
    for (const char* parte :
         {"office:value-type=\"string\"><text:p>00012<", "office:value-type=\"string\"><text:p>20123456786261000<",
          "office:value=\"1234.5\"><text:p>1.234,50<", "office:date-value=\"2026-10-05\"", "<text:p>&lt;&amp;&gt;<"})
        EXPECT_TRUE(xml.contains(parte)) << parte << xml.toStdString();
}

}  // namespace
