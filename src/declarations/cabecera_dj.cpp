// SPDX-License-Identifier: GPL-3.0-or-later

#include "declarations/cabecera_dj.h"

#include "core/asignaciones.h"
#include "core/cuit.h"
#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "core/numero.h"

using namespace Qt::StringLiterals;

bool posicion_admitida(int anio, std::optional<int> mes)
{
    return anio > 2006 || (anio == 2006 && mes >= 6);
}

QString componer_numero(const QString& cuit, const QString& anio, std::optional<int> mes, std::optional<int> secuencia)
{
    return cuit + anio.mid(2, 2) + con_ceros(mes.value_or(0), 2) + con_ceros(secuencia.value_or(0), 2);
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
        {!c.agente, "Seleccione el Agente de Retención del Impuesto de Sellos", "cboRTN"},
        {c.anio.isEmpty(), "Ingrese el año de la declaración jurada", "txtAnio"},
        {!c.mes, "Ingrese el mes de la declaración jurada", "cboMes"},
        {!c.secuencia, "Ingrese si la declaración jurada es original o rectificativa", "cboRectificativa"},
    });
    if (falla)
        falla->titulo = QString();
    return falla;
}

QString componer_resolucion(double numero, double anio)
{
    return formato_decimal(numero, 0).rightJustified(4, u'0') + u'/' + formato_decimal(anio, 0).rightJustified(2, u'0');
}

DatosAgenteDJ agente_de(const CabeceraDJ& dj, const QString& localidadNombre)
{
    return {dj.agente,           dj.titular,
            cuit_texto(dj.cuit), dj.domicilio,
            dj.codPostal,        dj.telefono,
            localidadNombre,     dj.email,
            dj.adscripto1,       cuit_texto(dj.adscripto1Cuit),
            dj.adscripto2,       cuit_texto(dj.adscripto2Cuit),
            dj.localidad};
}

void copiar_agente(CabeceraDJ& dj, const DatosAgenteDJ& agente)
{
    dj.agente = agente.nro;
    dj.titular = agente.titular;
    dj.cuit = cuit_numero(agente.cuit);
    dj.domicilio = agente.domicilio;
    dj.codPostal = agente.codPostal;
    dj.telefono = agente.telefono;
    dj.localidad = agente.localidad;
    dj.adscripto1 = agente.adscripto1;
    dj.adscripto1Cuit = cuit_numero(agente.adscripto1Cuit);
    dj.adscripto2 = agente.adscripto2;
    dj.adscripto2Cuit = cuit_numero(agente.adscripto2Cuit);
    dj.email = agente.email;
}

void actualizar_cabecera(const CabeceraDJ& dj)
{
    const QString columnas = asignar_sql({
        {"SEDJ_ANIO", QString::number(dj.anio)},
        {"SEDJ_MES", QString::number(dj.mes)},
        {"SEDJ_SECUENCIA", QString::number(dj.secuencia)},
        {"SEDJ_ESTADO", QString::number(dj.estado)},
        {"SEDJ_OBSERVACIONES", texto_o_null(toSQL(dj.observaciones))},
        {"SEDJ_TOTAL_RETENIDO", numero_sql(dj.totalRetenido)},
        {"SEDJ_FVENCIMIENTO", fecha_sql(dj.vencimiento)},
        {"SRTN_NRO", QString::number(dj.agente)},
        {"SEDJ_ACRED_MONTO", numero_sql(dj.acredMonto)},
        {"SEDJ_ACRED_RESOLUCION", entre_comillas(dj.acredResolucion)},
    });
    cnRtn.ejecutar(u"update SEL_TB_RTN_CABDJ set  %1 where SEDJ_NRO='%2'"_s.arg(columnas, dj.nro));
}

std::optional<CabeceraDJ> cargar_dj(const QString& nro, QString& localidad)
{
    const Recordset rs(cnRtn, u"select C.*, L.GLOC_DESCRIPCION from SEL_TB_RTN_CABDJ C left join GLB_TB_LOCALIDADES L"
                              u" on (C.GLOC_ID=L.GLOC_ID ) where C.SEDJ_NRO='%1'"_s.arg(nro));
    if (rs.eof())
        return {};
    localidad = rs.texto("GLOC_DESCRIPCION");
    return LectorFilas<CabeceraDJ>(rs, columnas_cabecera()).leer();
}

double total_retenido(const QString& nro)
{
    const Recordset rs(cnRtn, u"select SEDJ_TOTAL_RETENIDO from SEL_TB_RTN_CABDJ  where SEDJ_NRO='%1'"_s.arg(nro));
    return rs.eof() ? 0 : rs.real(0);
}

void borrar_escrituras(const QString& nro)
{
    Transaccion t(cnRtn);
    for (const char* tabla : {"SEL_TB_RTN_INS_ROLES", "SEL_TB_RTN_INS_VC", "SEL_TB_RTN_INS_OPERACIONES",
                              "SEL_TB_RTN_INS_PARTES", "SEL_TB_RTN_INS_INMUEBLES", "SEL_TB_RTN_DETDJ"})
        cnRtn.ejecutar(u"delete from %1 where SEDJ_NRO='%2'"_s.arg(QLatin1String(tabla), nro));
    t.confirmar();
}
