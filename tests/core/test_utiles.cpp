// SPDX-License-Identifier: GPL-3.0-or-later

#include "apoyo/apoyo.h"
#include "core/clsLocaleInfo.h"
#include "core/funciones_sql.h"
#include "core/modComunes.h"
#include "core/modNroALetras.h"
#include "core/modUtiles.h"

#include <algorithm>

namespace {

TEST(Utiles, ComillasDeSQL)
{
    struct Caso
    {
        const char* texto;
        const char* sql;
        const char* vuelta;
    };
    for (const Caso& c :
         {Caso{"", "", ""}, Caso{"O'Brien", "O''Brien", "O'Brien"}, Caso{"O''Brien", "O''Brien", "O'Brien"},
          Caso{"'''x'", "''x''", "'x'"}, Caso{"a'b'''c", "a''b''c", "a'b'c"}}) {
        EXPECT_EQ(toSQL(QString::fromUtf8(c.texto)), QString::fromUtf8(c.sql));
        EXPECT_EQ(fromSQL(toSQL(QString::fromUtf8(c.texto))), QString::fromUtf8(c.vuelta));
        EXPECT_EQ(toSQL(toSQL(QString::fromUtf8(c.texto))), QString::fromUtf8(c.sql));
    }
}

TEST(Utiles, CUIT)
{
    struct Caso
    {
        const char* texto;
        bool vale;
    };
    for (const Caso& c : {Caso{"20123456786", true}, Caso{"20-12345678-6", true}, Caso{"  20.12345678/6 ", true},
                          Caso{"20123456785", false}, Caso{"21123456786", false}, Caso{"2012345678", false},
                          Caso{"201234567866", false}, Caso{"", false}, Caso{"30712345671", true},
                          Caso{"20000000028", true}, Caso{"33693450239", true}}) {
        QString t = QString::fromUtf8(c.texto);
        EXPECT_EQ(cuit_valido(t), c.vale) << c.texto;
        EXPECT_EQ(t, QString::fromUtf8(c.texto).trimmed());
    }
    // The check that comes to 10 is written 9: of all numbers of one prefix exactly one digit holds.
    for (int n = 10000000; n < 10000300; ++n) {
        int validos = 0;
        bool diez = false;
        int suma = 2 * 5;
        const QString medio = QString::number(n);
        for (int i = 0; i < 8; ++i)
            suma += medio[i].digitValue() * QList<int>{3, 2, 7, 6, 5, 4, 3, 2}[i];
        diez = suma % 11 == 1;
        for (int d = 0; d < 10; ++d) {
            QString cuit = "20%1%2"_u.arg(n).arg(d);
            if (cuit_valido(cuit)) {
                ++validos;
                EXPECT_TRUE(!diez || d == 9);
            }
        }
        EXPECT_EQ(validos, 1) << n;
    }
}

TEST(Utiles, DigitoVerificadorYEspacios)
{
    EXPECT_EQ(digito_verificador("1"_u), 7);
    EXPECT_EQ(digito_verificador("10"_u), 9);
    EXPECT_EQ(digito_verificador("0"_u), 0);
    EXPECT_EQ(digito_verificador("12a"_u), 9);
    QString texto = "  a   b c  "_u;
    EXPECT_EQ(compactar_espacios(texto), "a b c"_u);
    EXPECT_EQ(texto, "a   b c"_u);
}

TEST(Utiles, OrdenEspanol)
{
    QStringList lista{"ÑANDÚ"_u, "ZETA"_u, "nube"_u, "ÁLVAREZ"_u, "alvarado"_u, "OESTE"_u, "Álvarez A"_u};
    std::sort(lista.begin(), lista.end(),
              [](const QString& a, const QString& b) { return comparar_espanol(a, b) < 0; });
    EXPECT_EQ(lista.join(u','), "alvarado,ÁLVAREZ,Álvarez A,nube,ÑANDÚ,OESTE,ZETA"_u);
}

TEST(Utiles, LocalDelUsuario)
{
    const clsLocaleInfo ar(QLocale(QLocale::Spanish, QLocale::Argentina));
    EXPECT_EQ(ar.Thousands() + ar.sDecimal() + ar.DateFormatOrder(), ".,DMY"_u);
    EXPECT_EQ(ar.GetLCID(), 11274);
    const clsLocaleInfo us(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(us.Thousands() + us.sDecimal() + us.DateFormatOrder(), ",.MDY"_u);
    // The weekday and the words between apostrophes decide nothing.
    EXPECT_EQ(us.LongDateFormatOrder() + ar.LongDateFormatOrder(), "MDYDMY"_u);
    EXPECT_EQ(clsLocaleInfo(QLocale(QLocale::Hungarian)).LongDateFormatOrder(), "YMD"_u);
    EXPECT_EQ(us.GetLCID(), 1033);
    EXPECT_EQ(clsLocaleInfo(QLocale::c()).GetLCID(), 0);
}

struct Letras
{
    double importe;
    const char* texto;
};
class LetrasImporte : public testing::TestWithParam<Letras>
{
};
TEST_P(LetrasImporte, EnPalabras)
{
    EXPECT_EQ(nro_a_letras(GetParam().importe, 0, false), QString::fromUtf8(GetParam().texto));
    EXPECT_EQ(nro_a_letras(-GetParam().importe, 2, false), QString::fromUtf8(GetParam().texto).toLower());
}
INSTANTIATE_TEST_SUITE_P(
    Casos, LetrasImporte,
    testing::Values(
        Letras{0, " con 00/100"}, Letras{1234.50, "un Mil doscientos treinta y cuatro  con 50/100"},
        Letras{100, "cien  con 00/100"}, Letras{101, "ciento un  con 00/100"}, Letras{16, "dieciseis  con 00/100"},
        Letras{21, "veintiun  con 00/100"}, Letras{30, "treinta  con 00/100"}, Letras{15, "quince  con 00/100"},
        Letras{1000000, "un Millon  con 00/100"}, Letras{2000000.07, "dos Millones  con 07/100"},
        Letras{1e9, "un Mil Millones  con 00/100"}, Letras{1e12, "un Billon  con 00/100"},
        Letras{2e12, "dos Billones  con 00/100"},
        Letras{
            999999999.99,
            "novecientos noventa y nueve Millones novecientos noventa y nueve Mil novecientos noventa y nueve  con 99/100"},
        Letras{1001000000, "un Mil un Millon  con 00/100"},
        Letras{1234.29, "un Mil doscientos treinta y cuatro  con 29/100"}));

TEST(LetrasModo, Modos)
{
    EXPECT_EQ(nro_a_letras(22, 1, true), "VEINTIDOS ( 00/100)"_u);
    EXPECT_EQ(nro_a_letras(2e6, 3, false), "Dos Millones  Con 00/100"_u);
}

}  // namespace
