// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogue/subconcepto_memoria.h"

#include "core/modGlobales.h"
#include "core/numero.h"

using namespace Qt::StringLiterals;

qint32 identificador_subconcepto(int ley, int codigo)
{
    return QString(QString::number(ley) + con_ceros(codigo, 3)).toInt();
}

clsRol leer_rol(const Recordset& rs)
{
    return {.ParicipaImpuesto = rs.logico("SROL_PARTICIPA_IMPUESTO"),
            .CargaOblig_SM = rs.logico("SROL_SM_CARGA_OBLIG"),
            .Requerido = rs.logico("SROL_REQUERIDO"),
            .Permite_CuitEnTramite = rs.logico("SROL_PERMITE_CUIT_EN_TRAMITE"),
            .SSUBAtributo = rs.texto("SROL_SSUB_ATRIBUTO"),
            .SSUBAtributo_valor = rs.texto("SROL_SSUB_ATRIBUTO_VALOR"),
            .SSUBAtributo_tabla = rs.texto("SROL_SSUB_ATRIBUTO_TABLA"),
            .IdRol = rs.entero("SROL_ID"),
            .Descripcion = rs.texto("SROL_DESCRIPCION")};
}

void clsSubconcepto::setIdSubconcepto(qint32 id)
{
    id_ = id;
    roles_ = {};
    try {
        for (Recordset rs(cnRtn,
                          u"select SROL_ID, SROL_DESCRIPCION, SROL_REQUERIDO, SROL_PARTICIPA_IMPUESTO,"
                          u" SROL_SM_CARGA_OBLIG, SROL_PERMITE_CUIT_EN_TRAMITE, SROL_SSUB_ATRIBUTO,"
                          u" SROL_SSUB_ATRIBUTO_VALOR, SROL_SSUB_ATRIBUTO_TABLA from SEL_VW_ROLES"
                          u" where SSUB_ID=%1 order by SROL_DESCRIPCION collate ESPANOL "_s.arg(QString::number(id)));
             !rs.eof(); rs.siguiente())
            roles_.Add(leer_rol(rs));
    } catch (const ErrorAlmacen&) {
        roles_ = {};
    }
}

void clsSubconcepto::llenar(const Recordset& rs)
{
    setIdSubconcepto(qint32(rs.entero("SSUB_ID_CONLEY")));
    PermitirCUIT_EnTramite = rs.logico("SSUB_CUIT_EN_TRAMITE");
    RequiereHipoteca = rs.logico("SSUB_HIPOTECA");
    Descripcion = rs.texto("SSUB_DESCRIPCION");
    LeyVigencia = rs.texto("SSUB_LEYVIGENCIA");
    FechaVigencia = rs.fecha("SSUB_FECHAVIGENCIA");
    TipoCalculo = rs.texto("STIC_DESCRIPCION");
    ModulosMinimo = rs.nulo("SSUB_MODULOSMIN") ? -1 : qint32(redondear(rs.real("SSUB_MODULOSMIN"), 0));
    RequiereBaseImponible = rs.logico("SSUB_REQUIERE_BASEIMPONIBLE");
    RequiereMoneda = rs.logico("SSUB_REQUIERE_MONEDA");
    IdTipoCalculoBI = qint32(rs.entero("SCBI_ID"));
    RequiereValuacionFiscal = rs.logico("SSUB_VALUACION_FISCAL");
    NombreValuacionFiscal = rs.texto("SSUB_VALUACION_FISCAL_NOMBRE");
    PorcentajeValuacionFiscal = rs.real("SSUB_PORC_VALUACION_FISCAL");
    RequiereValorContractual = rs.logico("SSUB_VALOR_CONTRACTUAL");
    UTiempoVContractual = rs.logico("SSUB_UT_VCONTRACTUAL");
    PorcentajeValorContractual = rs.real("SSUB_PORC_VCONTRACTUAL");
    PeriodoBI = rs.real("SSUB_PERIODO_BI");
    ObligAccesoria = rs.logico("SSUB_OBLIG_ACCESORIA");
    ObligAccesoria_ModoDef = rs.texto("SSUB_OBLIG_ACCESORIA_MODO_DEFAULT");
    ObligAccesoria_Porc = rs.real("SSUB_OBLIG_ACCESORIA_PORC");
    ObligAccesoria_suma = qint32(rs.real("SSUB_OBLIG_ACCESORIA_SUMA"));
    Exencion = rs.logico("SSUB_EXENCION");
    ExencionPorc = Exencion ? rs.real("SSUB_EXENCION_PORC") : 0;
    Observaciones = rs.texto("SSUB_OBSERVACIONES");
    PermitePagoACuenta = rs.logico("SSUB_PAGOACUENTA");
    PorcentajePagoACuenta = PermitePagoACuenta ? rs.real("SSUB_PAGOACUENTA_PORC") : 0;
}
