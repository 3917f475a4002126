// SPDX-License-Identifier: GPL-3.0-or-later
// What is told by a colour can be read on any desktop's.

#include "apoyo/apoyo.h"
#include "widgets/barra.h"
#include "widgets/colores.h"
#include "widgets/icono.h"

#include <QApplication>
#include <QDirIterator>
#include <QImage>
#include <QLineEdit>

namespace {

// Light, dark, and the two of high contrast.
const QList<QPalette> ESCRITORIOS{QPalette(QColor(239, 239, 239)), paleta_oscura(), paleta_contraste(true),
                                  paleta_contraste(false)};

TEST(ComunesColores, TonosYEstadosSeLeenEnCadaEscritorio)
{
    for (QPalette original : ESCRITORIOS) {
        // Some desktops choose in the colour of the window's face where the window is not the active one.
        original.setColor(QPalette::Inactive, QPalette::Highlight, original.color(QPalette::AlternateBase));
        const QPalette p = con_estados_legibles(original);
        for (const auto debajo : {QPalette::Base, QPalette::AlternateBase, QPalette::HighlightedText})
            EXPECT_GE(contraste(p.color(QPalette::Inactive, QPalette::Highlight), p.color(QPalette::Inactive, debajo)),
                      2);
        for (const Tono tono : {Tono::alerta, Tono::destacado, Tono::apagado}) {
            const Colores& c = colores_de(tono, p);
            for (const auto papel : {QPalette::Base, QPalette::AlternateBase})
                EXPECT_GE(contraste(c.texto, c.fondo.isValid() ? c.fondo : p.color(papel)), 4.5)
                    << int(tono) << c.texto.name().toStdString();
        }
        const QColor rojo = colores_de(Tono::alerta, p).texto;
        EXPECT_TRUE(rojo.red() > rojo.green() + 80 && rojo.red() > rojo.blue() + 80) << rojo.name().toStdString();
        for (const auto& [texto, fondo] :
             {std::pair(QPalette::Text, QPalette::Base), std::pair(QPalette::WindowText, QPalette::Window),
              std::pair(QPalette::ButtonText, QPalette::Button)})
            EXPECT_GE(contraste(p.color(QPalette::Disabled, texto), p.color(QPalette::Active, fondo)), 4.5);
    }
    EXPECT_NEAR(contraste(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contraste(Qt::red, Qt::white), 3.998, 0.01);
}

// The lines of each picture stand out against the window, and change with it while the program runs.
TEST(ComunesColores, IconosYCamposSiguenAlEscritorio)
{
    iniciar_recursos();
    const QPalette antes = QApplication::palette();
    QLineEdit campo;
    pintar_fondo(&campo, false);
    QStringList nombres;
    for (QDirIterator it(":/iconos"_u, QDir::AllEntries); it.hasNext();)
        nombres << it.nextFileInfo().completeBaseName();
    nombres.removeAll("oscuro"_u);
    nombres.removeAll("programa"_u);
    ASSERT_GT(nombres.size(), 8);
    for (const QPalette& p : ESCRITORIOS.mid(0, 2)) {
        QApplication::setPalette(p);
        EXPECT_EQ(campo.palette().color(QPalette::Base), p.color(QPalette::Button));
        for (const QString& nombre : std::as_const(nombres)) {
            const QImage dibujo = icono(nombre).pixmap(24, 24).toImage();
            int visibles = 0, claros = 0;
            for (int i = 0; i < dibujo.width() * dibujo.height(); ++i) {
                const QColor c = dibujo.pixelColor(i % dibujo.width(), i / dibujo.width());
                visibles += c.alpha() > 200;
                claros += c.alpha() > 200 && contraste(c, p.color(QPalette::Window)) >= 3;
            }
            EXPECT_GT(claros * 4, visibles) << nombre.toStdString();
        }
    }
    QApplication::setPalette(antes);
}

}  // namespace
