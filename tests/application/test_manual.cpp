// SPDX-License-Identifier: GPL-3.0-or-later
// The manual says what the program has: its pictures, the captions of its controls, its messages; F1 opens it.

#include "agents/screens/frmRTN_buscar.h"
#include "agents/screens/frmRTN_editar.h"
#include "apoyo/catalogo.h"
#include "apoyo/pantallas.h"
#include "application/screens/frmAcercaDe.h"
#include "application/screens/frmBackup.h"
#include "application/screens/frmManual.h"
#include "catalogue/screens/frmCrearMascara.h"
#include "catalogue/screens/frmEditarAlicuota.h"
#include "catalogue/screens/frmEditarModulo.h"
#include "catalogue/screens/frmEditarRol.h"
#include "catalogue/screens/frmTiposCalculoBI.h"
#include "computation/screens/frmDJ_detalle_op.h"
#include "computation/screens/frmDetalleSSUB.h"
#include "computation/screens/frmPasos.h"
#include "declarations/screens/frmDJ_buscar.h"
#include "declarations/screens/frmDJ_editar.h"
#include "deeds/screens/frmDJ_detalle.h"
#include "deeds/screens/frmDJ_editar_inmueble.h"
#include "parties/screens/frmDJ_buscar_parte.h"
#include "parties/screens/frmDJ_detalle_parte.h"
#include "printing/screens/frmReportes.h"
#include "recorrido/imagenes.h"

#include <QAction>
#include <QDirIterator>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QRegularExpression>
#include <QSet>
#include <QTabWidget>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QWindow>

namespace {

using namespace manejo;

const QString FUENTES = QStringLiteral(RTN_FUENTES);
const QString MANUAL = FUENTES + "/docs/manual/"_u;

QString leer(const QString& archivo)
{
    QFile f(archivo);
    EXPECT_TRUE(f.open(QIODevice::ReadOnly)) << archivo.toStdString();
    return QString::fromUtf8(f.readAll());
}

QStringList archivos(const QString& carpeta, const QStringList& nombres)
{
    QStringList lista;
    for (QDirIterator it(carpeta, nombres, QDir::Files, QDirIterator::Subdirectories); it.hasNext();)
        lista << it.next();
    return lista;
}

QStringList hallados(const QString& texto, const char* patron)
{
    QStringList lista;
    for (auto it = QRegularExpression(QString::fromUtf8(patron)).globalMatch(texto); it.hasNext();)
        lista << it.next().captured(1).simplified();
    return lista;
}

// As a reader sees it, and without what stands behind it.
QString llano(QString rotulo)
{
    static const QRegularExpression COLA("[\\s$:.]+$"_u);
    return rotulo.remove(u'&').simplified().remove(COLA);
}

void anotar(const QWidget* form, QSet<QString>& rotulos)
{
    for (const auto* w : form->findChildren<QWidget*>()) {
        for (const char* nombre : {"text", "title"})
            rotulos << llano(w->property(nombre).toString());
        if (const auto* s = qobject_cast<const QTabWidget*>(w))
            for (int i = 0; i < s->count(); ++i)
                rotulos << llano(s->tabText(i));
        else if (const auto* c = qobject_cast<const QComboBox*>(w))
            for (int i = 0; i < c->count(); ++i)
                rotulos << llano(c->itemText(i).left(50));
        else if (const auto* t = qobject_cast<const QHeaderView*>(w); t && t->model())
            for (int i = 0; i < t->count(); ++i)
                rotulos << llano(t->model()->headerData(i, Qt::Horizontal).toString());
        for (const QAction* a : w->actions())
            rotulos << llano(a->text());
    }
}

template <class... F>
QHash<QString, QSet<QString>> rotulos_de_formularios()
{
    QHash<QString, QSet<QString>> rotulos;
    const auto una = [&rotulos](auto* f) {
        anotar(f, rotulos[QLatin1StringView(f->metaObject()->className())]);
        delete f;
    };
    (una(new F), ...);
    return rotulos;
}

// What stands in bold on a window's page is on that window or in the menu; on a chapter, on some window.
TEST_F(Pantallas, ElManualNombraLosControlesComoSeVen)
{
    auto rotulos = rotulos_de_formularios<
        frmRTN_buscar, frmRTN_editar, frmAcercaDe, frmBackup, frmManual, frmCrearMascara, frmEditarAlicuota,
        frmEditarModulo, frmEditarRol, frmEditarSubconceptoSellos, frmSubconceptos, frmTiposCalculoBI, frmDJ_detalle_op,
        frmDetalleSSUB, frmPasos, frmDJ_buscar, frmDJ_editar, frmDJ_detalle, frmDJ_editar_inmueble, frmDJ_buscar_parte,
        frmDJ_detalle_parte, frmReportes>();
    anotar(principal.get(), rotulos["MDIPrincipal"_u]);
    const QSet<QString> menu = rotulos["MDIPrincipal"_u];
    QSet<QString> todos;
    for (const auto& de_uno : std::as_const(rotulos))
        todos += de_uno;
    for (const QString& pagina : archivos(MANUAL, {"*.md"_u})) {
        const QFileInfo info(pagina);
        const bool de_ventana = info.dir().dirName() == u"pantallas";
        EXPECT_TRUE(!de_ventana || rotulos.contains(info.baseName())) << pagina.toStdString();
        for (const QString& nombre : hallados(leer(pagina), "\\*\\*([^*]+)\\*\\*"))
            EXPECT_TRUE((de_ventana ? rotulos[info.baseName()] + menu : todos).contains(llano(nombre)))
                << info.fileName().toStdString() << ": " << nombre.toStdString();
    }
    for (const QString& ui : archivos(FUENTES + "/src"_u, {"*.ui"_u}))
        EXPECT_TRUE(QFile::exists(MANUAL + "pantallas/"_u + QFileInfo(ui).baseName() + ".md"_u)) << ui.toStdString();
}

TEST(Manual, SusImagenesYEnlacesEstan)
{
    QSet<QString> hechas;
    for (const ImagenManual& i : IMAGENES_MANUAL)
        hechas << QLatin1StringView(i.nombre);
    const QString contenido = leer(MANUAL + "contenido.md"_u);
    for (const QString& pagina : archivos(MANUAL, {"*.md"_u})) {
        const QString texto = leer(pagina);
        const QDir carpeta = QFileInfo(pagina).dir();
        for (const QString& enlace : hallados(texto, "\\]\\(([^)]+)\\)"))
            EXPECT_TRUE(QFile::exists(carpeta.filePath(enlace)))
                << pagina.toStdString() << ": " << enlace.toStdString();
        for (const QString& imagen : hallados(texto, "imagenes/([^)]+)\\.png"))
            EXPECT_TRUE(hechas.contains(imagen)) << imagen.toStdString();
        EXPECT_TRUE(pagina.endsWith("contenido.md"_u)
                    || contenido.contains(u'(' + QDir(MANUAL).relativeFilePath(pagina) + u')'))
            << pagina.toStdString() << " is not in the contents";
    }
}

// Each message of the list is in the sources, piece by piece where it changes.
TEST(Manual, SusMensajesSonLosDelPrograma)
{
    static const QRegularExpression PARTIDO("\"(_s)?\\s*\\n\\s*u?\""_u);
    QString textos;
    for (const QString& carpeta : {"/src"_u, "/tools/asistente"_u})
        for (const QString& fuente : archivos(FUENTES + carpeta, {"*.cpp"_u, "*.h"_u}))
            textos += leer(fuente).remove(PARTIDO).replace("\\n"_u, " "_u);
    textos = textos.simplified();
    const QStringList mensajes = hallados(leer(MANUAL + "mensajes.md"_u), "(?:^- |, )\\*([^*]+)\\*(?=[:,])");
    EXPECT_GT(mensajes.size(), 50);
    for (const QString& mensaje : mensajes)
        for (const QString& parte : mensaje.split(QRegularExpression("‹[^›]*›"_u), Qt::SkipEmptyParts))
            EXPECT_TRUE(textos.contains(parte.trimmed())) << parte.toStdString();
}

frmManual* ventana_del_manual()
{
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* manual = qobject_cast<frmManual*>(w); manual && manual->isVisible())
            return manual;
    return nullptr;
}

// A field that is being typed stays as it is, a box stays open, and the manual is there over it.
TEST_F(Pantallas, F1AbreLaPaginaSinDejarElCampo)
{
    cargar<frmRTN_buscar>()->mostrar();
    pulsar(formulario("frmRTN_buscar"), "tlbRTN"_u, "alta"_u);
    auto* f = formulario("frmRTN_editar");
    teclear(f, "nroRegNotarial"_u, "7"_u);
    QWidget* campo = f->focusWidget();
    QTest::keyClick(campo, Qt::Key_F1);
    ASSERT_TRUE(ventana_del_manual());
    EXPECT_EQ(ventana_del_manual()->actual(), "pantallas/frmRTN_editar"_u);
    EXPECT_EQ(f->focusWidget(), campo);
    EXPECT_EQ(texto(f, "nroRegNotarial"_u), "7"_u);
    ASSERT_TRUE(QTest::qWaitForWindowActive(ventana_del_manual()));
    QTest::keyClick(ventana_del_manual(), Qt::Key_Escape);
    EXPECT_FALSE(ventana_del_manual());
    EXPECT_TRUE(f->isEnabled());

    bool sobre_la_caja = false;
    const auto con_f1 = [&](const QString&) {
        auto* caja = QApplication::activeModalWidget();
        QTest::keyClick(caja, Qt::Key_F1);
        sobre_la_caja = ventana_del_manual() && caja->isVisible()
                        && ventana_del_manual()->windowHandle()->transientParent() == caja->windowHandle();
    };
    Cajas::aceptando([&] { pulsar(f, "tlb"_u, "aceptar"_u); }, con_f1);
    EXPECT_TRUE(sobre_la_caja);
    QTest::keyClick(principal.get(), Qt::Key_F1);
    EXPECT_EQ(ventana_del_manual()->actual(), "pantallas/frmRTN_editar"_u);
}

TEST(Manual, BuscaSinAcentosYMarca)
{
    frmManual manual;
    manual.show();
    QTest::keyClicks(control(&manual, "txtBuscar"_u), "MODULOS cantidad"_u);
    auto* lista = manual.findChild<QListWidget*>();
    ASSERT_GT(lista->count(), 1);
    QTest::keyClick(control(&manual, "txtBuscar"_u), Qt::Key_Return);
    const QString elegida = lista->currentItem()->text();
    EXPECT_TRUE(elegida.contains("módulos"_u)) << elegida.toStdString();
    auto* pagina = manual.findChild<QTextBrowser*>();
    EXPECT_FALSE(pagina->extraSelections().isEmpty());
    EXPECT_EQ(pagina->extraSelections()[0].cursor.selectedText().toLower(), "módulos"_u);
    EXPECT_TRUE(pagina->textCursor().block().text().contains("módulos"_u, Qt::CaseInsensitive));
    manual.findChild<QLineEdit*>("txtBuscar"_u)->clear();
    EXPECT_TRUE(pagina->extraSelections().isEmpty());
    manual.ir("pantallas/frmPasos"_u);
    EXPECT_EQ(manual.findChild<QTreeWidget*>()->currentItem()->text(0), "Cómo se calculó el impuesto"_u);
    clic(&manual, "cmdAtras"_u);
    EXPECT_NE(manual.actual(), "pantallas/frmPasos"_u);
}

}  // namespace
