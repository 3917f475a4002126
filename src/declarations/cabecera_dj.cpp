#include "declarations/cabecera_dj.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "core/numero.h"

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
    cnRtn.ejecutar(QStringLiteral("update SEL_TB_RTN_CABDJ set ") + QStringLiteral(" SEDJ_ANIO=") + QString::number(dj.anio)
                   + QStringLiteral(", SEDJ_MES=") + QString::number(dj.mes) + QStringLiteral(", SEDJ_SECUENCIA=") + QString::number(dj.secuencia)
                   + QStringLiteral(", SEDJ_ESTADO=") + QString::number(dj.estado) + QStringLiteral(", SEDJ_OBSERVACIONES=")
                   + texto_o_null(toSQL(dj.observaciones)) + QStringLiteral(", SEDJ_TOTAL_RETENIDO=") + numero_sql(dj.totalRetenido)
                   + QStringLiteral(", SEDJ_FVENCIMIENTO=") + fecha_sql(dj.vencimiento) + QStringLiteral(", SRTN_NRO=")
                   + QString::number(dj.agente) + QStringLiteral(", SEDJ_ACRED_MONTO=") + numero_sql(dj.acredMonto)
                   + QStringLiteral(", SEDJ_ACRED_RESOLUCION='") + dj.acredResolucion + QStringLiteral("'") + QStringLiteral(" where SEDJ_NRO='")
                   + dj.nro + QStringLiteral("'"));
}

std::optional<CabeceraDJ> cargar_dj(const QString& nro, QString& localidad)
{
    const Recordset rs(cnRtn, QStringLiteral("select C.*, L.GLOC_DESCRIPCION from SEL_TB_RTN_CABDJ C left join GLB_TB_LOCALIDADES L")
                                  + QStringLiteral(" on (C.GLOC_ID=L.GLOC_ID )") + QStringLiteral(" where C.SEDJ_NRO='") + nro
                                  + QStringLiteral("'"));
    if (rs.eof())
        return {};
    localidad = rs.texto("GLOC_DESCRIPCION");
    return LectorFilas<CabeceraDJ>(rs, columnas_cabecera()).leer();
}

double total_retenido(const QString& nro)
{
    const Recordset rs(cnRtn, QStringLiteral("select SEDJ_TOTAL_RETENIDO from SEL_TB_RTN_CABDJ ") + QStringLiteral(" where SEDJ_NRO='") + nro
                                  + QStringLiteral("'"));
    return rs.eof() ? 0 : rs.real(0);
}

int cantidad_renglones(const QString& nro)
{
    const Recordset rs(cnRtn, QStringLiteral("select count(*) as CANT_MOV from SEL_TB_RTN_DETDJ where SEDJ_NRO='") + nro + QStringLiteral("'"));
    return int(rs.entero(0));
}

void borrar_escrituras(const QString& nro)
{
    Transaccion t(cnRtn);
    for (const char* tabla : {"SEL_TB_RTN_INS_ROLES", "SEL_TB_RTN_INS_VC", "SEL_TB_RTN_INS_OPERACIONES", "SEL_TB_RTN_INS_PARTES",
                              "SEL_TB_RTN_INS_INMUEBLES", "SEL_TB_RTN_DETDJ"})
        cnRtn.ejecutar(QStringLiteral("delete from ") + QLatin1String(tabla) + QStringLiteral(" where SEDJ_NRO='") + nro + QStringLiteral("'"));
    t.confirmar();
}
