// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/datos_recibo.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"

using namespace Qt::StringLiterals;

std::optional<ReciboImpreso> leer_recibo(const QString& nro)
{
    const Recordset rs(
        cnRtn, u"select SEL_TB_RTN_DETDJ.SEDJ_NRO, SEL_TB_RTN_DETDJ.SEDD_ESCRITURA_NRO, SEL_TB_RTN_DETDJ.SEDD_FOLIO,"
               u" SEL_TB_RTN_COMP_RET.*, C.SEDJ_ADSCRIPTO1_NOMBRE, C.SEDJ_ADSCRIPTO2_NOMBRE, T.PARTES, T.INMUEBLES "
               u" from SEL_TB_RTN_DETDJ"
               u" inner join SEL_TB_RTN_COMP_RET on SEL_TB_RTN_COMP_RET.SEDJ_NRO=SEL_TB_RTN_DETDJ.SEDJ_NRO "
               u" and SEL_TB_RTN_COMP_RET.SEDD_ID=SEL_TB_RTN_DETDJ.SEDD_ID"
               u" inner join SEL_TB_RTN_CABDJ C on C.SEDJ_NRO=SEL_TB_RTN_DETDJ.SEDJ_NRO "
               u" left join SEL_TMP_DJ_OPER T on T.SEDJ_NRO=SEL_TB_RTN_DETDJ.SEDJ_NRO"
               u" and T.SEDD_ID=SEL_TB_RTN_DETDJ.SEDD_ID "
               u" where (((SEL_TB_RTN_DETDJ.SEDD_ESTADO) = 'P') And ((SEL_TB_RTN_COMP_RET.SCRT_ANULADO) = 'N'))"
               u" and SEL_TB_RTN_COMP_RET.SCRT_NRO='%1'"_s.arg(nro));
    if (rs.eof())
        return {};
    ReciboImpreso r;
    r.nro = rs.texto("SCRT_NRO");
    r.dj = rs.texto("SEDJ_NRO");
    r.escritura = rs.texto("SEDD_ESCRITURA_NRO");
    r.folio = rs.texto("SEDD_FOLIO");
    r.fechaRetencion = rs.texto("SCRT_FECHA_RETENCION");
    r.fechaEscritura = rs.texto("SCRT_FECHA_ESCRITURA");
    r.titular = rs.texto("SCRT_RTN_NOMBRE");
    r.adscripto1 = rs.texto("SCRT_ADSCRIPTO1_NOMBRE");
    r.adscripto2 = rs.texto("SCRT_ADSCRIPTO2_NOMBRE");
    r.partes = fromSQL(rs.texto("PARTES"));
    r.inmuebles = rs.texto("INMUEBLES");
    r.monto = rs.real("SCRT_MONTO_RETENIDO");
    return r;
}
