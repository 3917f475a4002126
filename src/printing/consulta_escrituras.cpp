// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/consulta_escrituras.h"

using namespace Qt::StringLiterals;

namespace {

// The columns of a deed, of its operation and of a deed without one.
constexpr QStringView DE_ESCRITURA =
    u"D.SEDD_ID, D.SEDD_DIA, D.SEDD_ESCRITURA_NRO, D.SEDD_FOLIO, D.SEDD_TOTAL_IMPUESTO, D.SEDD_ESTADO,"
    u" D.SEDD_ALCANZADO, D.SNAD_DESC_OTRO, D.SEDD_OBSERVACIONES, T.PARTES, T.INMUEBLES";
constexpr QStringView DE_OPERACION =
    u"O.SEDO_ID, S.SSUB_DESCRIPCION, S.SSUB_LEYVIGENCIA, O.SINS_BASEIMPONIBLE, O.SINS_MODULOS, O.SINS_ALICUOTA,"
    u" O.SINS_PORC_EXENTO, O.SINS_MONTO_EXENTO, O.SINS_MONTO_FINAL, O.SINS_PAGO_CTA_MONTO, O.SINS_OBS,"
    u" O.SINS_ADICIONALES, O.SINS_VALUACION_FISCAL, O.SINS_HIPOTECA, O.SINS_IMPUESTO_CALCULADO";
constexpr QStringView SIN_OPERACION =
    u"null as SEDO_ID, null as SSUB_DESCRIPCION, null as SSUB_LEYVIGENCIA, null as SINS_BASEIMPONIBLE,"
    u" null as SINS_MODULOS, null as SINS_ALICUOTA, null as SINS_PORC_EXENTO, null as SINS_MONTO_EXENTO,"
    u" null as SINS_MONTO_FINAL, null as SINS_PAGO_CTA_MONTO, null as SINS_OBS, null as SINS_ADICIONALES,"
    u" null as SINS_VALUACION_FISCAL, null as SINS_HIPOTECA, null as SINS_IMPUESTO_CALCULADO";
constexpr QStringView CON_TEXTOS =
    u" from SEL_TB_RTN_DETDJ D left join sel_tmp_dj_oper T on T.SEDJ_NRO=D.SEDJ_NRO and T.SEDD_ID=D.SEDD_ID ";

}  // namespace

// Reached ones with operations, reached ones without, and those that are not reached.
QString consulta_escrituras(const QString& nro)
{
    return u"select * from ("
           u"select %2, null as SNAD_DESCRIPCION, %3%5"
           u" inner join SEL_TB_RTN_INS_OPERACIONES O on O.SEDJ_NRO=D.SEDJ_NRO and O.SEDD_ID=D.SEDD_ID "
           u" left join SEL_TB_SUBCONCEPTOS S on O.SSUB_ID=S.SSUB_ID "
           u" where D.SEDJ_NRO='%1' and D.SEDD_ALCANZADO='S'"
           u" Union All "
           u"select %2, null, %4%5"
           u" where D.SEDJ_NRO='%1' and D.SEDD_ALCANZADO='S'"
           u" and not exists (select sedd_id from sel_tb_rtn_ins_operaciones O "
           u"         where o.sedd_id= d.sedd_id AND O.SEDJ_NRO=D.SEDJ_NRO)"
           u" union All "
           u"select %2, NOA.SNAD_DESCRIPCION, %4%5"
           u" left join SEL_TB_NO_ALCANZADOS_DESC NOA on D.SNAD_ID=NOA.SNAD_ID"
           u" where D.SEDJ_NRO='%1' and D.SEDD_ALCANZADO='N'"
           u")  ORDER BY SEDD_ESCRITURA_NRO, SEDD_ID, SEDO_ID"_s.arg(nro, DE_ESCRITURA, DE_OPERACION, SIN_OPERACION,
                                                                     CON_TEXTOS);
}
