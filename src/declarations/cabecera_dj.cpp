// SPDX-License-Identifier: GPL-3.0-or-later

#include "declarations/cabecera_dj.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "core/numero.h"

using namespace Qt::StringLiterals;

bool posicion_admitida(int anio, int mes)
{
    return anio > 2006 || (anio == 2006 && mes >= 6);
}

QString componer_numero(const QString& cuit, const QString& anio, int mes, int secuencia)
{
    return cuit + anio.mid(2, 2) + con_ceros(mes, 2) + con_ceros(secuencia, 2);
}

QDate vencimiento_dj(int anio, int mes)
{
    const QDate dia = QDate(anio, mes, 15).addMonths(1);
    switch (dia.dayOfWeek()) {
    case Qt::Saturday: return dia.addDays(2);
    case Qt::Sunday: return dia.addDays(1);
    default: return dia;
    }
}

std::optional<Falla> validar_cabecera(ControlesCabecera& c)
{
    c.anio = c.anio.trimmed();
    c.observaciones = c.observaciones.trimmed();
    auto falla = primera_falla({
        {numero_inicial(c.agenteNro) == 0, "Ingrese el Nº Agente de Retención del Impuesto de Sellos", "txtRTN_nro"},
        {c.agente == 0, "Seleccione el Agente de Retención del Impuesto de Sellos", "cboRTN"},
        {c.anio.isEmpty(), "Ingrese el año de la declaración jurada", "txtAnio"},
        {c.mes == 0, "Ingrese el mes de la declaración jurada", "cboMes"},
        {c.secuencia < 0, "Ingrese si la declaración jurada es original o rectificativa", "cboRectificativa"},
    });
    if (falla)
        falla->titulo = QString();
    return falla;
}

QString componer_resolucion(double numero, double anio)
{
    return formato_decimal(numero, 0).rightJustified(4, u'0') + u'/' + formato_decimal(anio, 0).rightJustified(2, u'0');
}

void actualizar_cabecera(const CabeceraDJ& dj)
{
    cnRtn.ejecutar(u"update SEL_TB_RTN_CABDJ set  SEDJ_ANIO="_s + QString::number(dj.anio) + u", SEDJ_MES="_s
                   + QString::number(dj.mes) + u", SEDJ_SECUENCIA="_s + QString::number(dj.secuencia)
                   + u", SEDJ_ESTADO="_s + QString::number(dj.estado) + u", SEDJ_OBSERVACIONES="_s
                   + texto_o_null(toSQL(dj.observaciones)) + u", SEDJ_TOTAL_RETENIDO="_s + numero_sql(dj.totalRetenido)
                   + u", SEDJ_FVENCIMIENTO="_s + fecha_sql(dj.vencimiento) + u", SRTN_NRO="_s
                   + QString::number(dj.agente) + u", SEDJ_ACRED_MONTO="_s + numero_sql(dj.acredMonto)
                   + u", SEDJ_ACRED_RESOLUCION='"_s + dj.acredResolucion + u"' where SEDJ_NRO='"_s + dj.nro + u"'"_s);
}

std::optional<CabeceraDJ> cargar_dj(const QString& nro, QString& localidad)
{
    const Recordset rs(cnRtn, u"select C.*, L.GLOC_DESCRIPCION from SEL_TB_RTN_CABDJ C left join GLB_TB_LOCALIDADES L"
                              u" on (C.GLOC_ID=L.GLOC_ID ) where C.SEDJ_NRO='"_s
                                  + nro + u"'"_s);
    if (rs.eof())
        return {};
    localidad = rs.texto("GLOC_DESCRIPCION");
    return LectorFilas<CabeceraDJ>(rs, columnas_cabecera()).leer();
}

double total_retenido(const QString& nro)
{
    const Recordset rs(cnRtn, u"select SEDJ_TOTAL_RETENIDO from SEL_TB_RTN_CABDJ  where SEDJ_NRO='"_s + nro + u"'"_s);
    return rs.eof() ? 0 : rs.real(0);
}

int cantidad_renglones(const QString& nro)
{
    const Recordset rs(cnRtn, u"select count(*) as CANT_MOV from SEL_TB_RTN_DETDJ where SEDJ_NRO='"_s + nro + u"'"_s);
    return int(rs.entero(0));
}

void borrar_escrituras(const QString& nro)
{
    Transaccion t(cnRtn);
    for (const char* tabla : {"SEL_TB_RTN_INS_ROLES", "SEL_TB_RTN_INS_VC", "SEL_TB_RTN_INS_OPERACIONES",
                              "SEL_TB_RTN_INS_PARTES", "SEL_TB_RTN_INS_INMUEBLES", "SEL_TB_RTN_DETDJ"})
        cnRtn.ejecutar(u"delete from "_s + QLatin1String(tabla) + u" where SEDJ_NRO='"_s + nro + u"'"_s);
    t.confirmar();
}
