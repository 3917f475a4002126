// SPDX-License-Identifier: GPL-3.0-or-later

#include "payment/comprobantes.h"

#include "core/modGlobales.h"
#include "core/numero.h"
#include "core/reloj.h"

using namespace Qt::StringLiterals;

QString proximo_comprobante(const QString& dj)
{
    const int anio = hoy().year();
    const Recordset rs(cnRtn, u"select max(SCRT_NRO) as MAX_SCRT_NRO from SEL_TB_RTN_COMP_RET "_s);
    const QString maximo = rs.eof() ? QString() : rs.texto(0);
    if (maximo.isEmpty() || numero_inicial(maximo.mid(9, 4)) < anio)
        return u"02-"_s + dj.left(5) + u'-' + con_ceros(anio, 4) + u"-00001"_s;
    return maximo.left(13) + u'-' + con_ceros(maximo.mid(14, 5).toInt() + 1, 5);
}

void emitir_comprobante(const QString& nro, const DatosComprobante& d)
{
    const QString formato = u"dd/MM/yyyy"_s;
    cnRtn.ejecutar(u" update SEL_TB_RTN_COMP_RET set SCRT_ANULADO='S'  where SEDJ_NRO='"_s + d.dj + u"' AND SEDD_ID="_s
                   + d.renglon);
    cnRtn.ejecutar(u" insert into SEL_TB_RTN_COMP_RET (SCRT_NRO, SEDJ_NRO, SEDD_ID, SCRT_ANULADO, "
                   u" SCRT_MONTO_RETENIDO, SCRT_FECHA_RETENCION, SCRT_FECHA_ESCRITURA, SCRT_RTN_NOMBRE)  values ('"_s
                   + nro + u"', '"_s + d.dj + u"', "_s + d.renglon + u", 'N',"_s + d.montoSQL + u", '"_s
                   + hoy().toString(formato) + u"','"_s + d.fechaEscritura.toString(formato) + u"', '"_s + d.agente
                   + u"')"_s);
}
