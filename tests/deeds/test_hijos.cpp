// SPDX-License-Identifier: GPL-3.0-or-later
// What hangs from a deed.

#include "apoyo/apoyo.h"
#include "deeds/hijos_escritura.h"
#include "deeds/inmueble.h"
#include "tree/modABM_dj.h"

namespace {

using HijosEscritura = ConAlmacen;

TEST_F(HijosEscritura, BorrarUnaOperacionRestaElTotalMostrado)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    cnRtn.ejecutarGuion(
        "update SEL_TB_RTN_DETDJ set SEDD_TOTAL_IMPUESTO=100; update SEL_TB_RTN_CABDJ set SEDJ_TOTAL_RETENIDO=100"_u);
    for (const int op : {1, 2})
        cnRtn.ejecutar(
            "insert into SEL_TB_RTN_INS_OPERACIONES (SEDJ_NRO, SEDD_ID, SEDO_ID, SSUB_ID, SINS_MONTO_FINAL) values ('%1', 1, %2, 5707029, %3)"_u
                .arg(dj)
                .arg(op)
                .arg(op == 1 ? 60 : 40));
    const RenglonDJ r{dj, "1"_u};
    QStringList filas_op;
    EXPECT_DOUBLE_EQ(leer_operaciones(r, [&](const QStringList& f) { filas_op << f.join(u'|'); }), 100);
    EXPECT_EQ(filas_op, (QStringList{"1|29|PODER GENERAL||60,00"_u, "2|29|PODER GENERAL||40,00"_u}));
    borrar_operacion(r, "1"_u, "100.00"_u, oyente);
    EXPECT_EQ(
        filas(
            "select SEDD_TOTAL_IMPUESTO, SEDJ_TOTAL_RETENIDO from SEL_TB_RTN_DETDJ D join SEL_TB_RTN_CABDJ C on C.SEDJ_NRO=D.SEDJ_NRO"_u),
        "0.0|0.0"_u);
    EXPECT_EQ(cnRtn.transacciones(), 0);
    borrar_operacion(r, "9"_u, "40.00"_u, oyente);
    EXPECT_EQ(oyente.ultimo(), "No se pudo borrar la operación"_u);
    EXPECT_EQ(cnRtn.transacciones(), 0);  // an open one would take all that is stored later with it
}

TEST_F(HijosEscritura, InmuebleSeGuardaComoEsta)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    Inmueble i;
    i.dj = dj;
    i.renglon = 1;
    const auto falla = [&] {
        const auto f = validar_inmueble(i);
        return f ? f->control : QString();
    };
    EXPECT_EQ(falla(), "txtINM_partida"_u);
    i.partida = " 12 "_u;
    EXPECT_EQ(falla(), "cboU_caracter"_u);
    i.caracter = 1;
    EXPECT_EQ(falla(), "nroValFiscal"_u);
    i.valFiscal = 10.25;
    EXPECT_EQ(falla(), QString());
    i.uFuncional = "UF"_u;
    ASSERT_TRUE(alta_inmueble(i, true, oyente));
    i.calle = "PEÑA"_u;
    i.uFuncional.clear();
    modificar_inmueble(i, "99.50"_u);
    const auto leido = cargar_inmueble(dj, "1"_u, 1);
    ASSERT_TRUE(leido);
    EXPECT_EQ(leido->partida + u'|' + leido->calle + u'|' + leido->uFuncional, "12|PEÑA|"_u);
    EXPECT_DOUBLE_EQ(leido->valFiscal, 99.5);
    i.barrio = "D'ANGELO"_u;
    modificar_inmueble(i, "1"_u);
    EXPECT_EQ(cargar_inmueble(dj, "1"_u, 1)->barrio, "D'ANGELO"_u);
}

}  // namespace
