// SPDX-License-Identifier: GPL-3.0-or-later

#include "tree/renglon.h"

using namespace Qt::StringLiterals;

QString RenglonDJ::donde() const
{
    return u" where SEDJ_NRO='%1' and SEDD_ID=%2"_s.arg(dj, renglon);
}

QString consulta_partes_renglon(const RenglonDJ& r)
{
    return u" SELECT  SEL_TB_RTN_INS_PARTES.SEDJ_NRO, SEL_TB_RTN_INS_PARTES.SEDD_ID,"
           u" SEL_TB_RTN_INS_PARTES.SPIN_ID, GLB_TB_AFIP_TIPOS_DOC.GTDC_ID,"
           u" GLB_TB_AFIP_TIPOS_DOC.GTDC_DESCRIPCION, SEL_TB_RTN_INS_PARTES.SPIN_NRODOC,"
           u" SEL_TB_RTN_INS_PARTES.SPIN_CUIT, SEL_TB_RTN_INS_PARTES.SPIN_CUIT_EN_TRAMITE,"
           u" SEL_TB_RTN_INS_PARTES.SPIN_RSOCIAL, SEL_TB_RTN_INS_PARTES.SPIN_PORCEXENTO,"
           u" SEL_TB_RTN_INS_PARTES.SPIN_NACIONALIDAD, SEL_TB_RTN_INS_PARTES.CPAI_CODIGO,"
           u" GLB_TB_AFIP_CODIGOS_PAIS.CPAI_PAIS , GLB_TB_AFIP_CODIGOS_PAIS.CPAI_PERSONA"
           u" from SEL_TB_RTN_INS_PARTES left join GLB_TB_AFIP_TIPOS_DOC"
           u" on GLB_TB_AFIP_TIPOS_DOC.GTDC_ID = SEL_TB_RTN_INS_PARTES.GTDC_ID left join GLB_TB_AFIP_CODIGOS_PAIS"
           u" on GLB_TB_AFIP_CODIGOS_PAIS.CPAI_CODIGO = SEL_TB_RTN_INS_PARTES.CPAI_CODIGO"
           u" where SEL_TB_RTN_INS_PARTES.SEDJ_NRO='%1' and SEL_TB_RTN_INS_PARTES.SEDD_ID=%2"_s.arg(r.dj, r.renglon);
}
