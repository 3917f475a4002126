// SPDX-License-Identifier: GPL-3.0-or-later

#include "payment/comprobantes.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "core/numero.h"
#include "core/reloj.h"

using namespace Qt::StringLiterals;

namespace {

bool existe(const QString& nro)
{
    return !Recordset(cnRtn, u"select SCRT_NRO from SEL_TB_RTN_COMP_RET where SCRT_NRO='%1'"_s.arg(nro)).eof();
}

// The number behind one, in its series.
QString siguiente(const QString& nro)
{
    return u"%1-%2"_s.arg(nro.left(13), con_ceros(nro.mid(14).toInt() + 1, 5));
}

QString segun_el_maximo(const QString& dj)
{
    const int anio = hoy().year();
    // The number of the row that has the maximum; its sequence is padded, so that 100000 comes after 99999.
    const Recordset rs(cnRtn, u"select SCRT_NRO, max(substr(SCRT_NRO, 1, 14) || printf('%9s', substr(SCRT_NRO, 15)))"
                              u" as MAX_SCRT_NRO from SEL_TB_RTN_COMP_RET "_s);
    const QString maximo = rs.eof() ? QString() : rs.texto(0);
    if (maximo.isEmpty() || numero_inicial(maximo.mid(9, 4)) < anio)
        return u"02-"_s + dj.left(5) + u'-' + con_ceros(anio, 4) + u"-00001"_s;
    return siguiente(maximo);
}

}  // namespace

QString proximo_comprobante(const QString& dj)
{
    // By the highest number alone, two agents at the turn of a year get the same first number again and again.
    QString nro = segun_el_maximo(dj);
    while (existe(nro))
        nro = siguiente(nro);
    return nro;
}

void emitir_comprobante(const QString& nro, const DatosComprobante& d)
{
    const QString formato = u"dd/MM/yyyy"_s;
    Transaccion t(cnRtn);
    cnRtn.ejecutar(
        u" update SEL_TB_RTN_COMP_RET set SCRT_ANULADO='S'  where SEDJ_NRO='%1' AND SEDD_ID=%2"_s.arg(d.dj, d.renglon));
    cnRtn.ejecutar(u" insert into SEL_TB_RTN_COMP_RET (SCRT_NRO, SEDJ_NRO, SEDD_ID, SCRT_ANULADO, "
                   u" SCRT_MONTO_RETENIDO, SCRT_FECHA_RETENCION, SCRT_FECHA_ESCRITURA, SCRT_RTN_NOMBRE) "
                   u" values ('%1', '%2', %3, 'N',%4, '%5','%6', '%7')"_s.arg(
                       nro, d.dj, d.renglon, d.montoSQL, hoy().toString(formato), d.fechaEscritura.toString(formato),
                       toSQL(d.agente)));
    t.confirmar();
}
