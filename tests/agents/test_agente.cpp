// SPDX-License-Identifier: GPL-3.0-or-later

#include "agents/agente.h"
#include "apoyo/apoyo.h"

namespace {

using AgenteAlmacen = ConAlmacen;

TEST(Agente, ReglasEnSuOrden)
{
    struct K
    {
        void (*poner)(Agente&);
        const char* control;
        const char* mensaje;
    };
    Agente a;
    for (const K& k :
         {K{[](Agente&) {}, "nroRegNotarial", "Ingrese el Nº de Registro Notarial del titular"},
          K{[](Agente& x) { x.nroRegNotarial = 1; }, "txtTitular", "Ingrese el nombre del titular"},
          K{[](Agente& x) { x.titular = "N"_u; }, "txtCUIT", "Ingrese el CUIT del titular"},
          K{[](Agente& x) { x.cuit = "20123456780"_u; }, "txtCUIT", "El CUIT del titular no es válido"},
          K{[](Agente& x) { x.cuit = "20-12345678-6"_u; }, "txtDomicilio", "Ingrese el domicilio del titular"},
          K{[](Agente& x) { x.domicilio = "D"_u; }, "cboLocalidad", "Ingrese la localidad del titular"},
          K{[](Agente& x) { x.localidad = 1; }, "txtCodPostal", "Ingrese el codigo postal del titular"},
          K{[](Agente& x) {
                x.codPostal = "1"_u;
                x.adscripto2 = "A"_u;
            },
            "txtAdscripto1_cuit", "Ingrese el cuit del primer adscripto"},
          K{[](Agente& x) {
                x.adscripto1.clear();
                x.adscripto1Cuit = "1"_u;
            },
            "txtAdscripto1_nombre", "Ingrese el nombre del primer adscripto"},
          K{[](Agente& x) { x.adscripto1 = "A"_u; }, "txtAdscripto1_cuit", "El CUIT del primer adscripto no es válido"},
          K{[](Agente& x) {
                x.adscripto1Cuit = "20123456786"_u;
                x.adscripto2 = "B"_u;
            },
            "txtAdscripto2_cuit", "Ingrese el cuit del segundo adscripto"},
          K{[](Agente& x) {
                x.adscripto2.clear();
                x.adscripto2Cuit = "1"_u;
            },
            "txtAdscripto2_nombre", "Ingrese el nombre del segundo adscripto"},
          K{[](Agente& x) { x.adscripto2 = "B"_u; }, "txtAdscripto2_cuit",
            "El CUIT del segundo adscripto no es válido"},
          K{[](Agente& x) { x.adscripto2Cuit = "20123456786"_u; }, "txtAdscripto1_cuit",
            "El CUIT del primer adscripto no puede ser el mismo que el CUIT del titular"},
          K{[](Agente& x) { x.adscripto1Cuit = "27222333445"_u; }, "txtAdscripto2_cuit",
            "El CUIT del segundo adscripto no puede ser el mismo que el CUIT del titular"},
          K{[](Agente& x) { x.adscripto2Cuit = "27-22233344-5"_u; }, "txtAdscripto1_cuit",
            "Los CUITs de los adscriptos no pueden ser iguales"}}) {
        k.poner(a);
        const auto f = validar_agente(a);
        ASSERT_TRUE(f) << k.mensaje;
        EXPECT_EQ(f->mensaje, QString::fromUtf8(k.mensaje));
        EXPECT_EQ(f->control, QLatin1StringView(k.control));
    }
    a.adscripto2Cuit.clear();
    a.adscripto2.clear();
    EXPECT_FALSE(validar_agente(a));
}

TEST_F(AgenteAlmacen, SeGuardaSeLeeYSeBorra)
{
    Agente a{7, "O'BRIEN"_u, "20-12345678-6"_u, "CALLE"_u, 5, "9500"_u, {}, {}, "PEÑA"_u, "27222333445"_u, {}, {}};
    ASSERT_TRUE(agregar_agente(a, "t"_u, oyente));
    EXPECT_EQ(
        filas(
            "select SRTN_NRO, SRTN_NRO_REGNOTARIAL, SRTN_TITULAR_NOMBRE, SRTN_TITULAR_CUIT, SRTN_EMAIL, SRTN_ADSCRIPTO2_CUIT from SEL_TB_RTN_PADRON"_u),
        "7|7|O'BRIEN|20123456786|null|null"_u);
    EXPECT_EQ(cargar_agente(7)->titular, "O'BRIEN"_u);
    EXPECT_FALSE(agregar_agente(a, "t"_u, oyente));
    a.nroRegNotarial = 8;
    a.domicilio = "D'ANGELO 3"_u;
    ASSERT_TRUE(modificar_agente(a, 7, "t"_u, oyente));
    EXPECT_EQ(filas("select SRTN_NRO, SRTN_DOMICILIO from SEL_TB_RTN_PADRON"_u), "7|D'ANGELO 3"_u);
    EXPECT_EQ(datos_agente_dj(7)->localidadNombre, "LOS ÑANDUES"_u);
    cnRtn.ejecutar("update SEL_TB_RTN_PADRON set GLOC_ID=null"_u);
    EXPECT_FALSE(datos_agente_dj(7));
    EXPECT_EQ(borrar_agente(7), 1);
    EXPECT_EQ(borrar_agente(7), 0);
}

}  // namespace
