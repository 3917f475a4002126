// SPDX-License-Identifier: GPL-3.0-or-later
// The drop-down box of several columns, by keyboard and mouse.

#include "apoyo/apoyo.h"
#include "widgets/ctlCombo.h"

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

namespace {

class CtlCombo : public ConAlmacen
{
protected:
    void SetUp() override
    {
        ConAlmacen::SetUp();
        combo = new ctlCombo(&ventana);
        combo->setGeometry(10, 10, 200, combo->sizeHint().height());
        vecino = new QLineEdit(&ventana);
        vecino->setGeometry(10, 60, 200, 24);
        ventana.resize(400, 300);
        combo->AddColumn("Cálculo"_u, 1, "calculo"_u, 1500);
        combo->AddColumn("Observaciones"_u, 2, "obs"_u, -5, Qt::AlignRight);
        Recordset rs(cnRtn, "select STIC_ID, STIC_DESCRIPCION, STIC_OBSERVACIONES from SEL_TB_TIPOS_CALCULOS"_u);
        combo->Origen(rs);
        txt = combo->findChild<QLineEdit*>("txt"_u);
        cmd = combo->findChild<QToolButton*>("cmd"_u);
        lvw = combo->findChild<QTreeWidget*>("lvw"_u);
        QObject::connect(combo, &ctlCombo::ItemClick, combo, [this](const ctlCombo::Fila& f) { dichos << f.clave; });
        ventana.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    }
    void clicEnFila(int i)
    {
        QTest::mouseClick(lvw->viewport(), Qt::LeftButton, {}, lvw->visualItemRect(lvw->topLevelItem(i)).center());
    }

    QWidget ventana;
    ctlCombo* combo = nullptr;
    QLineEdit* vecino = nullptr;
    QLineEdit* txt = nullptr;
    QToolButton* cmd = nullptr;
    QTreeWidget* lvw = nullptr;
    QStringList dichos;
};

TEST_F(CtlCombo, SeleccionPorPrograma)
{
    ASSERT_EQ(combo->lista().size(), 4);
    EXPECT_EQ(combo->lista()[1].clave, "k2"_u);
    EXPECT_EQ(combo->lista()[1].subitems, QStringList{"Módulos por la base y el valor del módulo"_u});
    QString clave = "2"_u;
    combo->SeleccionarItem(clave, false);
    EXPECT_EQ(clave, "k2"_u);
    EXPECT_EQ(combo->Value(), "FIJO PROPORCIONAL"_u);
    for (const auto& [ausente, completa] : {std::pair{"99"_u, false}, {"3"_u, true}}) {
        QString k = ausente;
        combo->SeleccionarItem(k, completa);
        EXPECT_EQ(combo->Value(), "FIJO PROPORCIONAL"_u);
    }
    combo->setColPrincipal(2);
    combo->setColSecundaria(1);
    combo->setSeparathor(" / "_u);
    combo->SeleccionarItem(clave, true);
    EXPECT_EQ(combo->Value(), "Módulos por la base y el valor del módulo / FIJO PROPORCIONAL"_u);
    combo->setColSecundaria(3);
    combo->SeleccionarItem(clave, true);
    EXPECT_EQ(combo->Value(), "Módulos por la base y el valor del módulo"_u);
    EXPECT_TRUE(dichos.isEmpty());

    Recordset repetida(cnRtn, "select 3, 'OTRA'"_u);
    EXPECT_THROW(combo->Origen(repetida), std::invalid_argument);
    Recordset vacia(cnRtn, "select 9, 'X', null where 0"_u);
    combo->Origen(vacia);
    Recordset nula(cnRtn, "select 9, 'X', null"_u);
    combo->Origen(nula);
    EXPECT_EQ(combo->lista().last().subitems, QStringList{QString()});
    combo->clearHeaderColumns();
    EXPECT_EQ(combo->Value(), QString());
    EXPECT_EQ(combo->lista().size(), 5);
    combo->clearRows();
    EXPECT_TRUE(combo->lista().isEmpty());
}

TEST_F(CtlCombo, AbreSobreLosVecinosYCierra)
{
    const int cerrada = combo->height();
    QTest::mouseClick(cmd, Qt::LeftButton);
    EXPECT_TRUE(lvw->isVisible());
    EXPECT_TRUE(txt->hasFocus());
    EXPECT_EQ(combo->height(), lvw->y() + lvw->height());
    EXPECT_EQ(ventana.childAt(vecino->geometry().center())->parent()->parent(), combo);
    QTest::mouseClick(cmd, Qt::LeftButton);
    EXPECT_FALSE(lvw->isVisible());
    EXPECT_EQ(combo->height(), cerrada);
    QTest::mouseClick(cmd, Qt::LeftButton);
    QTest::keyClick(txt, Qt::Key_Escape);
    EXPECT_FALSE(lvw->isVisible());
    // Nothing was ever selected: nothing is told.
    QTest::keyClick(txt, Qt::Key_Down);
    EXPECT_TRUE(lvw->hasFocus());
    vecino->setFocus();
    EXPECT_FALSE(lvw->isVisible());
    EXPECT_TRUE(dichos.isEmpty());
    combo->Habilitar(false);
    QTest::mouseClick(cmd, Qt::LeftButton);
    QTest::keyClick(txt, Qt::Key_Down);
    EXPECT_FALSE(lvw->isVisible());
    EXPECT_FALSE(combo->Enabled());
    combo->Habilitar(true);
    combo->Locked(true);
    QTest::mouseClick(cmd, Qt::LeftButton);
    EXPECT_TRUE(lvw->isVisible());
}

TEST_F(CtlCombo, DiceLaEleccionAlCerrarYNoAntes)
{
    QTest::mouseClick(cmd, Qt::LeftButton);
    lvw->setFocus();
    clicEnFila(2);
    EXPECT_EQ(combo->Value(), "VARIABLE"_u);
    EXPECT_TRUE(dichos.isEmpty());
    vecino->setFocus();
    EXPECT_EQ(dichos, QStringList{"k3"_u});
    EXPECT_FALSE(lvw->isVisible());
    EXPECT_TRUE(txt->hasFocus());
    // From now on each closing tells, also without a new choice.
    QTest::keyClick(txt, Qt::Key_Down);
    vecino->setFocus();
    EXPECT_EQ(dichos.size(), 2);
    QTest::keyClick(txt, Qt::Key_Down);
    QTest::keyClick(lvw, Qt::Key_Up);
    QTest::keyClick(lvw, Qt::Key_Return);
    EXPECT_EQ(combo->Value(), "FIJO PROPORCIONAL"_u);
    EXPECT_EQ(dichos, (QStringList{"k3"_u, "k3"_u, "k2"_u}));
    // Escape takes back what the keys only moved to.
    QTest::keyClick(txt, Qt::Key_Down);
    QTest::keyClick(lvw, Qt::Key_Down);
    QTest::keyClick(lvw, Qt::Key_Escape);
    EXPECT_EQ(combo->Value(), "FIJO PROPORCIONAL"_u);
    EXPECT_EQ(dichos.last(), "k2"_u);
    QTest::mouseClick(cmd, Qt::LeftButton);
    lvw->setFocus();
    clicEnFila(0);
    QTest::mouseDClick(lvw->viewport(), Qt::LeftButton, {}, lvw->visualItemRect(lvw->topLevelItem(0)).center());
    EXPECT_EQ(dichos.size(), 5);
    EXPECT_EQ(dichos.last(), "k1"_u);
    EXPECT_FALSE(lvw->isVisible());
    combo->AllowSelect(false);
    QTest::keyClick(txt, Qt::Key_Down);
    clicEnFila(2);
    vecino->setFocus();
    EXPECT_EQ(combo->Value(), "FIJO"_u);
    EXPECT_EQ(dichos.size(), 5);
}

TEST_F(CtlCombo, OrdenaPorLaColumnaDelClic)
{
    const auto orden = [this] {
        QString s;
        for (const auto& f : combo->lista())
            s += f.clave.mid(1);
        return s;
    };
    QTest::mouseClick(cmd, Qt::LeftButton);
    QHeaderView* titulos = lvw->header();
    const auto clic = [&](int c) {
        QTest::mouseClick(titulos->viewport(), Qt::LeftButton, {}, {titulos->sectionViewportPosition(c) + 5, 5});
    };
    clic(0);
    EXPECT_EQ(orden(), "3241"_u);  // descending first: the order flips from ascending
    clic(0);
    EXPECT_EQ(orden(), "1423"_u);
    clic(1);
    EXPECT_EQ(orden(), "4213"_u);
}

// Whatever opened the list, and wherever the focus is in it.
TEST_F(CtlCombo, UnClicEnLaFlechaLaCierra)
{
    txt->setFocus();
    QTest::keyClick(txt, Qt::Key_Down);
    ASSERT_TRUE(combo->abierta() && lvw->hasFocus());
    QTest::mouseClick(cmd, Qt::LeftButton);
    EXPECT_FALSE(combo->abierta());
    QTest::mouseClick(cmd, Qt::LeftButton);
    clicEnFila(1);
    ASSERT_TRUE(combo->abierta());
    QTest::mouseClick(cmd, Qt::LeftButton);
    EXPECT_FALSE(combo->abierta());
    EXPECT_TRUE(txt->hasFocus());
}

}  // namespace
