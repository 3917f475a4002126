// SPDX-License-Identifier: GPL-3.0-or-later
// What forms do alike with combos, and where a form is put.

#include "apoyo/apoyo.h"
#include "widgets/ctlComunes.h"
#include "widgets/formulario.h"
#include "widgets/grilla.h"

#include <QComboBox>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>

namespace {

TEST(Comunes, BuscarEnComboPorDatoYPorTexto)
{
    struct Caso
    {
        int criterio;
        const char* texto;
        int inicio;
        int largo;
        const char* formato;
        int elegido;
    };
    QComboBox combo;
    llenar_combo(&combo, {{"Uno (A)"_u, "5707001"_u}, {"Dos (b)"_u, "5707012"_u}, {"Tres (B)"_u, "5707101"_u}});
    for (const Caso& c : {
             Caso{0, "012", 5, 3, "", 1},
             Caso{0, "12", 5, 3, "", -1},
             Caso{0, "12", 5, 3, "000", 1},  // the text goes under the mask before it is compared
             Caso{0, "x", 5, 3, "000", -1},  // what is no number is 0
             Caso{1, "(B)", 1, 0, "", 2},    // case counts
             Caso{1, "s", 1, 0, "", 1},      // the first one
             Caso{1, "nada", 1, 0, "", -1},
         }) {
        combo.setCurrentIndex(0);
        buscar_en_combo(&combo, c.criterio, QString::fromUtf8(c.texto), c.inicio, c.largo,
                        QString::fromUtf8(c.formato));
        EXPECT_EQ(combo.currentIndex(), c.elegido) << c.texto << ' ' << c.formato;
    }
}

TEST(Comunes, LoElegido)
{
    QComboBox combo;
    llenar_combo(&combo, con_sin_filtro({{"CI"_u, 0}, {"DNI"_u, 96}}));
    EXPECT_FALSE(elegido(&combo) || filtro_elegido(&combo));
    combo.setCurrentIndex(0);
    EXPECT_FALSE(filtro_elegido(&combo));
    combo.setCurrentIndex(1);
    EXPECT_EQ(filtro_elegido(&combo), std::optional<int>(0));
    combo.setEditable(true);
    combo.setEditText("dni"_u);
    EXPECT_EQ(elegido_por_texto(&combo), std::optional<int>(96));
    for (const char* otro : {"", "DN", "DNI "}) {
        combo.setEditText(QString::fromUtf8(otro));
        EXPECT_FALSE(elegido_por_texto(&combo)) << otro;
    }
}

TEST(Comunes, AjustarAPrincipal)
{
    QMainWindow principal;
    auto* area = new QMdiArea;
    principal.setCentralWidget(area);
    principal.resize(1000, 700);
    principal.show();
    Formulario::fijarArea(area);
    auto* f = new Formulario;
    f->resize(300, 200);
    f->mostrar();
    const auto* marco = f->parentWidget();
    ajustar_a_principal(f, true);
    EXPECT_EQ(marco->geometry(), QRect(0, 0, 1000 - pixeles(f, 700), 700 - pixeles(f, 1200)));
    ajustar_a_principal(f, false);
    const QSize pantalla = f->screen()->size();
    EXPECT_EQ(marco->pos(), QPoint(pantalla.width() / 2 - marco->width() / 2,
                                   pantalla.height() / 2 - pixeles(f, 500) - marco->height() / 2));
    Formulario::fijarArea(nullptr);
}

}  // namespace
