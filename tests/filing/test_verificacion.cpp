// SPDX-License-Identifier: GPL-3.0-or-later

#include "apoyo/apoyo.h"
#include "filing/verificacion.h"

#include <QFile>

namespace {

using Verificacion = ConAlmacen;

TEST_F(Verificacion, TresRevisionesEnSuOrden)
{
    const QString dj = nueva_dj();
    const auto dice = [&] {
        oyente.textos.clear();
        const bool completa = verificar_dj_completa(dj, "DJs"_u, oyente);
        EXPECT_EQ(completa, oyente.textos.isEmpty());
        EXPECT_TRUE(oyente.textos.isEmpty() || oyente.titulos.last() == "DJs - DJ incompleta"_u);
        return oyente.ultimo();
    };
    EXPECT_EQ(dice(), QString());
    nueva_escritura(dj, 1, 5, 1, 1, "N");
    nueva_escritura(dj, 2, 5, 2, 1, "N");
    nueva_escritura(dj, 3, 6, 3, 1, "N");
    EXPECT_EQ(dice(), QString());
    nueva_escritura(dj, 4, 9, 4, 1);
    nueva_escritura(dj, 5, 8, 5, 1, "E");
    EXPECT_EQ(dice(), "La declaración jurada está incompleta.\nFaltan declarar las escrituras Nº: 7, 8"_u);
    // The list is whole up to a hundred thousand; past that it is their count.
    cnRtn.ejecutar("update SEL_TB_RTN_DETDJ set SEDD_ESCRITURA_NRO=100007 where SEDD_ID=4"_u);
    EXPECT_TRUE(dice().endsWith(", 100005, 100006"_u));
    EXPECT_EQ(dice().count(u','), 99'999);
    cnRtn.ejecutar("update SEL_TB_RTN_DETDJ set SEDD_ESCRITURA_NRO=100008 where SEDD_ID=4"_u);
    EXPECT_EQ(dice(),
              "La declaración jurada está incompleta.\nFaltan declarar las escrituras Nº: son 100001 números"_u);
    cnRtn.ejecutar("update SEL_TB_RTN_DETDJ set SEDD_ESCRITURA_NRO=7 where SEDD_ID=4"_u);
    EXPECT_EQ(
        dice(),
        "La declaración jurada está incompleta.\nHay escrituras alcanzadas no anuladas a las cuales les falta cargar la operación."_u);

    const auto operacion = [&](int renglon, int sub) {
        cnRtn.ejecutar(
            "insert into SEL_TB_RTN_INS_OPERACIONES (SEDJ_NRO, SEDD_ID, SEDO_ID, SSUB_ID) values ('%1', %2, 1, %3)"_u
                .arg(dj)
                .arg(renglon)
                .arg(sub));
    };
    operacion(4, 5707001);
    EXPECT_EQ(dice(), QString());  // the first deed that passed is never looked at
    nueva_escritura(dj, 6, 8, 8, 2);
    nueva_escritura(dj, 7, 9, 9, 2);
    nueva_escritura(dj, 8, 10, 10, 2, "P", "N");
    operacion(6, 5707001);
    operacion(7, 5707001);
    cnRtn.ejecutar("update SEL_TB_RTN_DETDJ set SEDD_FNAME_TESTIMONIO='/no/existe.pdf' where SEDD_ID=7"_u);
    cnRtn.ejecutar("update SEL_TB_RTN_DETDJ set SNAD_ID=3 where SEDD_ID=8"_u);
    EXPECT_EQ(
        dice(),
        "La declaración jurada está incompleta. Faltan testimonios\n\nEscrituras que no tienen archivo: 8, 10\n\nEscrituras cuyo archivo no existe: 9"_u);
    const QString archivo = carpeta.path() + "/d'angelo.pdf"_u;
    QFile f(archivo);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    cnRtn.ejecutar(
        "update SEL_TB_RTN_DETDJ set SEDD_FNAME_TESTIMONIO='%1'"_u.arg(QString(archivo).replace("'"_u, "''''"_u)));
    EXPECT_EQ(dice(), QString());
}

TEST_F(Verificacion, UnErrorDelAlmacenDejaSeguir)
{
    const QString dj = nueva_dj();
    cnRtn.ejecutar("drop view SEL_VW_DJ_DETALLE"_u);
    EXPECT_TRUE(verificar_dj_completa(dj, "DJs"_u, oyente));
    EXPECT_EQ(oyente.titulos.last(), "Verificar DJ completa"_u);
}

}  // namespace
