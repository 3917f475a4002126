#include "payment/comprobantes.h"

#include "core/modGlobales.h"
#include "core/numero.h"
#include "core/reloj.h"

QString proximo_comprobante(const QString& dj)
{
    const int anio = hoy().year();
    const Recordset rs(cnRtn, QStringLiteral("select max(SCRT_NRO) as MAX_SCRT_NRO from SEL_TB_RTN_COMP_RET "));
    const QString maximo = rs.eof() ? QString() : rs.texto(0);
    if (maximo.isEmpty() || numero_inicial(maximo.mid(9, 4)) < anio)
        return QStringLiteral("02-") + dj.left(5) + u'-' + con_ceros(anio, 4) + QStringLiteral("-00001");
    return maximo.left(13) + u'-' + con_ceros(maximo.mid(14, 5).toInt() + 1, 5);
}

void emitir_comprobante(const QString& nro, const DatosComprobante& d)
{
    const QString formato = QStringLiteral("dd/MM/yyyy");
    cnRtn.ejecutar(QStringLiteral(" update SEL_TB_RTN_COMP_RET set SCRT_ANULADO='S' ") + QStringLiteral(" where SEDJ_NRO='") + d.dj
                   + QStringLiteral("' AND SEDD_ID=") + d.renglon);
    cnRtn.ejecutar(QStringLiteral(" insert into SEL_TB_RTN_COMP_RET (SCRT_NRO, SEDJ_NRO, SEDD_ID, SCRT_ANULADO, ")
                   + QStringLiteral(" SCRT_MONTO_RETENIDO, SCRT_FECHA_RETENCION, SCRT_FECHA_ESCRITURA, SCRT_RTN_NOMBRE) ")
                   + QStringLiteral(" values ('") + nro + QStringLiteral("', '") + d.dj + QStringLiteral("', ") + d.renglon
                   + QStringLiteral(", 'N',") + d.montoSQL + QStringLiteral(", '") + hoy().toString(formato) + QStringLiteral("',")
                   + QStringLiteral("'") + d.fechaEscritura.toString(formato) + QStringLiteral("', '") + d.agente + QStringLiteral("')"));
}
