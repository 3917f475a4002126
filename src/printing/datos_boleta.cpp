// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/datos_boleta.h"

#include "core/modGlobales.h"
#include "core/redondeo.h"
#include "printing/cuit_impreso.h"

using namespace Qt::StringLiterals;

namespace {

QString rectificativa(qint64 secuencia)
{
    return secuencia == 0 ? u"Original"_s : u"Rectif. "_s + QString::number(secuencia);
}

BoletaImpresa leer_fila(const Recordset& rs)
{
    BoletaImpresa b;
    b.nro = rs.texto("SBDI_NROBOLETA");
    b.titular = rs.texto("SEDJ_TITULAR_NOMBRE");
    b.cuit = cuit_impreso(rs, "SEDJ_TITULAR_CUIT");
    b.agenteNro = rs.texto("SBDI_RTN_NRO");
    b.posicion = u"%1/%2 (%3)"_s.arg(con_ceros(rs.entero("SEDJ_MES"), 2), con_ceros(rs.entero("SEDJ_ANIO"), 4),
                                     rectificativa(rs.entero("SEDJ_SECUENCIA")));
    b.banco = rs.texto("GBAN_DESCRIPCION");
    b.cuenta = rs.texto("SBDI_CUENTA");
    b.filial = rs.texto("SSUB_FILIAL_BANCO");
    b.estado = rs.texto("Estado");
    b.vencimiento = rs.fecha("SBDI_FECHA_VENC");
    b.emision = rs.fecha("SBDI_FECHA_EMISION");
    b.importe = rs.real("SBDI_IMPORTE");
    b.interes = rs.real("SBDI_INTERES");
    b.multa = rs.real("SBDI_MULTA");
    b.total = rs.real("SBDI_TOTAL");
    b.efectivo = rs.real("SBDI_EFECTIVO");
    b.cheques[0] = {rs.texto("SBDI_CHEQUE1_NRO"), rs.texto("SBDI_CHEQUE1_BANCO"), rs.real("SBDI_CHEQUE1_MONTO")};
    b.cheques[1] = {rs.texto("SBDI_CHEQUE2_NRO"), rs.texto("SBDI_CHEQUE2_BANCO"), rs.real("SBDI_CHEQUE2_MONTO")};
    b.codigo = rs.texto("SBDI_CODIGO_BARRAS");
    return b;
}

}  // namespace

QString codigo_legible_boleta(const QString& codigo)
{
    QString t;
    for (int i = 0; i < 80; i += 10)
        t += codigo.mid(i, 5) + u' ' + codigo.mid(i + 5, 5) + u"  "_s;
    return t;
}

QList<BoletaImpresa> leer_boleta(const QString& nro)
{
    Recordset rs(cnRtn,
                 u"SELECT SEL_TB_RTN_BOLDEP.*, iif(coalesce(SBDI_ANULADA,0),'Anulada','') AS Estado,"
                 u" C.SEDJ_TITULAR_NOMBRE, C.SEDJ_TITULAR_CUIT, C.SEDJ_MES, C.SEDJ_ANIO, C.SEDJ_SECUENCIA "
                 u" from SEL_TB_RTN_BOLDEP inner join SEL_TB_RTN_CABDJ C on C.SEDJ_NRO=SEL_TB_RTN_BOLDEP.SEDJ_NRO "
                 u" where SBDI_NROBOLETA='%1'"
                 u" order by SEL_TB_RTN_BOLDEP.SBDI_ID, SEL_TB_RTN_BOLDEP.SBDI_FECHA_EMISION"_s.arg(nro));
    QList<BoletaImpresa> boletas;
    for (; !rs.eof(); rs.siguiente())
        boletas << leer_fila(rs);
    return boletas;
}
