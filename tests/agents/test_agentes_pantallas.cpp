// SPDX-License-Identifier: GPL-3.0-or-later
// The register of agents by keys and clicks.

#include "agents/screens/frmRTN_buscar.h"
#include "apoyo/pantallas.h"

#include <QMessageBox>

namespace {

using namespace manejo;

TEST_F(PantallasFormularios, RegistroDeAgentes)
{
    auto* lista = cargar<frmRTN_buscar>();
    lista->mostrar();
    pulsar(lista, "tlbRTN"_u, "modificar"_u);
    auto* f = formulario("frmRTN_editar");
    EXPECT_EQ(texto(f, "cboLocalidad"_u), "PUERTO MARVEN"_u);
    escribir(f, "txtTitular"_u, "d'angelo ñandú"_u);
    escribir(f, "txtEmail"_u, "o'x@y"_u);
    EXPECT_EQ(texto(f, "txtTitular"_u) + texto(f, "txtEmail"_u), "D'ANGELO ÑANDÚox@y"_u);
    Cajas::durante({{"Ingrese el domicilio del titular"_u, "Modificar agente de retención"_u, true,
                     QMessageBox::Information, true}},
                   [&] { pulsar(f, "tlb"_u, "aceptar"_u); });
    EXPECT_EQ(f->focusWidget(), control(f, "txtDomicilio"_u));
    escribir(f, "txtDomicilio"_u, "calle 1"_u);
    escribir(f, "txtCodPostal"_u, "9500"_u);
    escribir(f, "nroRegNotarial"_u, "777"_u);  // the number of a stored agent stays
    pulsar(f, "tlb"_u, "aceptar"_u);
    EXPECT_EQ(filas("select SRTN_NRO, SRTN_TITULAR_NOMBRE, SRTN_DOMICILIO, SRTN_EMAIL from SEL_TB_RTN_PADRON"_u),
              "101|D'ANGELO ÑANDÚ|CALLE 1|ox@y"_u);
    EXPECT_EQ(en_grilla(lista, "flxRTN"_u, 0, 1), "D'ANGELO ÑANDÚ"_u);
    const CajaEsperada pregunta{"¿Está seguro que desea eliminar el agente de retención seleccionado?"_u,
                                "Borrar agente de retención"_u, false, QMessageBox::Question, true};
    Cajas::durante({pregunta}, [&] { pulsar(lista, "tlbRTN"_u, "borrar"_u); });
    EXPECT_EQ(manejo::filas(lista, "flxRTN"_u), 1);
    CajaEsperada si = pregunta;
    si.si = true;
    Cajas::durante({si}, [&] { pulsar(lista, "tlbRTN"_u, "borrar"_u); });
    EXPECT_FALSE(habilitado(lista, "tlbRTN"_u, "modificar"_u));
}

}  // namespace
