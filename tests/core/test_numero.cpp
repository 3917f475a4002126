// SPDX-License-Identifier: GPL-3.0-or-later

#include "apoyo/apoyo.h"
#include "core/numero.h"
#include "widgets/ctlNumero.h"

#include <QLineEdit>
#include <QTest>

#include <cmath>

namespace {

struct Redondeo
{
    double valor;
    int decimales;
    const char* texto;
};
class NumeroRedondeo : public testing::TestWithParam<Redondeo>
{
};
TEST_P(NumeroRedondeo, DecimalDeQuinceCifras)
{
    EXPECT_EQ(formato_decimal(GetParam().valor, GetParam().decimales), QString::fromLatin1(GetParam().texto));
}
INSTANTIATE_TEST_SUITE_P(
    Casos, NumeroRedondeo,
    testing::Values(Redondeo{1.005, 2, "1.01"},                                // binary would give 1.00
                    Redondeo{1.005 * 100, 0, "101"},                           // 100.49999999999999
                    Redondeo{2.675, 2, "2.68"}, Redondeo{-1.005, 2, "-1.01"},  // away from zero
                    Redondeo{-0.004, 2, "0.00"},                               // no sign on what rounds to zero
                    Redondeo{0.5, 0, "1"}, Redondeo{1.5, 0, "2"}, Redondeo{2.5, 0, "3"},
                    Redondeo{999999.995, 2, "1000000.00"}, Redondeo{123456789012.345, 2, "123456789012.35"},
                    Redondeo{1e15, 2, "1000000000000000.00"},  // past the 15 digits the rest is zeros
                    Redondeo{0.1 + 0.2, 15, "0.300000000000000"}, Redondeo{1e-20, 2, "0.00"},
                    Redondeo{0, 4, "0.0000"}));

// Keys in, text out, then what the field shows when it is left, its value and its SQL form.
struct Teclas
{
    QLocale::Country pais;
    int decimales;
    bool negativos;
    const char* inicial;
    const char* teclas;
    const char* escrito;
    const char* mostrado;
    double valor;
    const char* sql;
};
class NumeroTeclas : public testing::TestWithParam<Teclas>
{
};
TEST_P(NumeroTeclas, EnElCampo)
{
    const Teclas& t = GetParam();
    QLocale::setDefault(QLocale(t.pais == QLocale::Argentina ? QLocale::Spanish : QLocale::English, t.pais));
    QWidget ventana;
    ctlNumero campo(&ventana);
    QLineEdit otro(&ventana);
    campo.setCantidadDecimales(t.decimales);
    campo.setPermiteNegativos(t.negativos);
    ventana.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    otro.setFocus();
    auto* txt = campo.findChild<QLineEdit*>("txt"_u);
    txt->setText(QString::fromUtf8(t.inicial));
    campo.setFocus();
    if (*t.inicial)
        txt->end(false);
    else
        txt->selectAll();
    for (const char* k = t.teclas; *k; ++k)
        QTest::keyClick(txt, *k);
    EXPECT_EQ(campo.toString(), QString::fromUtf8(t.escrito));
    otro.setFocus();
    EXPECT_EQ(campo.toString(), QString::fromUtf8(t.mostrado));
    EXPECT_DOUBLE_EQ(campo.Value(), t.valor);
    EXPECT_EQ(campo.toSQL(), QString::fromUtf8(t.sql));
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Argentina));
}
constexpr auto AR = QLocale::Argentina;
constexpr auto US = QLocale::UnitedStates;
INSTANTIATE_TEST_SUITE_P(
    Casos, NumeroTeclas,
    testing::Values(Teclas{AR, 2, false, "", "1234.5", "1234,5", "1.234,50", 1234.5, "1234.50"},
                    Teclas{US, 2, false, "", "1234.5", "1234.5", "1,234.50", 1234.5, "1234.50"},
                    Teclas{AR, 2, false, "", "1.2.3", "1,23", "1,23", 1.23, "1.23"},  // a second "." is dropped
                    Teclas{AR, 2, false, "", "1,5", "15", "15,00", 15, "15.00"},      // "," is no key
                    Teclas{AR, 0, false, "", "12.7", "127", "127", 127, "127"},       // no decimals: "." does nothing
                    Teclas{AR, 2, false, "", "-+a5", "5", "5,00", 5, "5.00"},
                    Teclas{AR, 2, true, "12", "-", "-12", "-12,00", -12, "-12.00"},
                    Teclas{AR, 2, true, "12", "--", "-12", "-12,00", -12, "-12.00"},  // the sign is only set once
                    Teclas{AR, 2, true, "-12", "+", "12", "12,00", 12, "12.00"},
                    Teclas{AR, 2, false, "", ".", ",", "0,00", 0, "0.00"},             // a lone separator is zero
                    Teclas{AR, 2, false, "", "", "", "", 0, ""},                       // empty stays empty
                    Teclas{AR, 2, false, "", "1.005", "1,005", "1,01", 1.01, "1.01"},  // more decimals than shown
                    Teclas{AR, 4, false, "", "1234567.00005", "1234567,00005", "1.234.567,0001", 1234567.0001,
                           "1234567.0001"},
                    Teclas{US, 2, true, "", "-1234567", "-1234567", "-1,234,567.00", -1234567, "-1234567.00"}));

TEST(NumeroCampo, EntrarQuitaMilesYSeleccionaTodo)
{
    QWidget ventana;
    QLineEdit otro(&ventana);
    ctlNumero campo(&ventana);
    ventana.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    otro.setFocus();
    campo.setValue(1234.5);
    EXPECT_EQ(campo.toString(), "1.234,50"_u);
    campo.setFocus();
    auto* txt = campo.findChild<QLineEdit*>("txt"_u);
    EXPECT_EQ(txt->selectedText(), "1234,50"_u);
    // A disabled field refuses typing and keeps its text.
    campo.Habilitar(false);
    QTest::keyClicks(txt, "9"_u);
    EXPECT_EQ(campo.toSQL(), "1234.50"_u);
}

TEST(NumeroCampo, ReciennacidoMuestraCeroSinDecimales)
{
    ctlNumero campo;
    campo.setCantidadDecimales(2);
    EXPECT_EQ(campo.toString(), "0"_u);
    campo.setValue(0);
    EXPECT_EQ(campo.toString(), "0,00"_u);
    campo.ClearText();
    EXPECT_EQ(campo.toString(), QString());
    EXPECT_EQ(campo.Value(), 0);
}

TEST(NumeroCampo, ElFormularioVeLaTeclaFiltradaYPuedeCambiarla)
{
    ctlNumero campo;
    QList<int> vistas;
    QObject::connect(&campo, &ctlNumero::KeyPress, &campo, [&](int& k) {
        vistas << k;
        if (k == '7')
            k = '8';
    });
    auto* txt = campo.findChild<QLineEdit*>("txt"_u);
    campo.ClearText();
    QTest::keyClicks(txt, "7x.."_u);
    QTest::keyClick(txt, Qt::Key_Return);
    EXPECT_EQ(vistas, (QList<int>{'7', 0, ',', 0, 13}));
    EXPECT_EQ(campo.toString(), "8,"_u);
}

TEST(NumeroCampo, LoQueNoEsNumeroFallaAlLeerse)
{
    Numero n(2);
    for (const char* texto : {"-", "1-2", "abc", "inf", "nan"}) {
        n.escribirTexto(QString::fromLatin1(texto));
        n.formatear();
        EXPECT_EQ(n.toString(), QString::fromLatin1(texto));
        EXPECT_THROW((void)n.Value(), ErrorConversion) << texto;
    }
}

}  // namespace
