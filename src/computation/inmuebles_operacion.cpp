// SPDX-License-Identifier: GPL-3.0-or-later

#include "computation/inmuebles_operacion.h"

#include "core/modGlobales.h"
#include "core/numero.h"

using namespace Qt::StringLiterals;

void leer_valuaciones(const RenglonDJ& renglon, const AgregarFila& fila)
{
    for (Recordset rs(cnRtn, u"select SEII_ID, SEII_PARTIDA, SEII_VAL_FISCAL  from SEL_VW_RTN_DJ_INMUEBLES %1"
                             u" order by  SEII_ID"_s.arg(renglon.donde()));
         !rs.eof(); rs.siguiente())
        fila({rs.texto(0), rs.texto(1), importe_llano(rs.real(2))});
}

void vincular_inmueble(const ClaveOperacion& clave, std::optional<int> inmueble)
{
    cnRtn.ejecutar(u"update SEL_TB_RTN_INS_INMUEBLES set  SEDO_ID=%1%2 and SEII_ID=%3"_s.arg(
        clave.operacion, clave.deRenglon().donde(), QString::number(inmueble.value_or(0))));
}
