// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogue/subconcepto_fila.h"

#include "core/asignaciones.h"
#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "core/numero.h"
#include "core/reloj.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array CAMPOS{
    CampoSubconcepto{"SSUB_ID", Forma::codigo, "nroCodigo"},
    CampoSubconcepto{"SSUB_DESCRIPCION", Forma::texto, "txtDescripcion"},
    CampoSubconcepto{"SSUB_LEYVIGENCIA", Forma::texto, "txtLeyVigencia"},
    CampoSubconcepto{"SSUB_FECHAVIGENCIA", Forma::fecha, "dtpFechaVigencia"},
    CampoSubconcepto{"STIC_ID", Forma::lista, "ctlTipoCalculo"},
    CampoSubconcepto{"SSUB_MODULOSMIN", Forma::numero, "nroImporteMinimo", "chkImporteMinimo"},
    CampoSubconcepto{"SSUB_REQUIERE_BASEIMPONIBLE", Forma::logico, "chkBaseImponible"},
    CampoSubconcepto{"SSUB_VALUACION_FISCAL", Forma::logico, "chkRequiereValFiscal"},
    CampoSubconcepto{"SSUB_PORC_VALUACION_FISCAL", Forma::numero, "nroPorcValFiscal", "chkRequiereValFiscal"},
    CampoSubconcepto{"SSUB_VALUACION_FISCAL_NOMBRE", Forma::texto, "txtDenomVFiscal"},
    CampoSubconcepto{"SSUB_TASACION_JUDICIAL", Forma::logico, "chkRequiereTasJudicial"},
    CampoSubconcepto{"SSUB_PORC_TASACION_JUDICIAL", Forma::numero, "nroPorcTasJudicial", "chkRequiereTasJudicial"},
    CampoSubconcepto{"SSUB_VALOR_CONTRACTUAL", Forma::logico, "chkRequiereValorContractual"},
    CampoSubconcepto{"SSUB_UT_VCONTRACTUAL", Forma::logico, "chkRequiereUT"},
    CampoSubconcepto{"SSUB_PORC_VCONTRACTUAL", Forma::numero, "nroPorcValorContractual", "chkRequiereValorContractual"},
    CampoSubconcepto{"SSUB_PERIODO_BI", Forma::numero, "nroPeriodoBI", "chkPeriodoBI"},
    CampoSubconcepto{"SSUB_DENOM_VCONTRACTUAL", Forma::texto, "txtDenomVContractual"},
    CampoSubconcepto{"SSUB_REQUIERE_MONEDA", Forma::logico, "chkRequiereMoneda"},
    CampoSubconcepto{"SSUB_DURACION", Forma::logico, "chkRequiereDuracion"},
    CampoSubconcepto{"SSUB_DURACION_DEFAULT", Forma::numero, "nroDuracionDefault", "chkDuracionDefault"},
    CampoSubconcepto{"SSUB_DURACION_COTASUP", Forma::logico, "chkDur_cotaSup"},
    CampoSubconcepto{"SSUB_DURACION_COTA_SUPERIOR", Forma::numero, "nroDur_CotaSup", "chkDur_cotaSup"},
    CampoSubconcepto{"SSUB_EJECUCION_SUCESIVA", Forma::logico, "chkEjecucionSucesiva"},
    CampoSubconcepto{"SSUB_PRORROGA", Forma::logico, "chkPermiteProrroga"},
    CampoSubconcepto{"SSUB_PRORROGA_DEFAULT", Forma::numero, "nroProrrogaDefault", "chkProrrogaDefault"},
    CampoSubconcepto{"SSUB_PRORROGA_COTASUP", Forma::logico, "chkPro_CotaSup"},
    CampoSubconcepto{"SSUB_PRORROGA_COTA_SUPERIOR", Forma::numero, "nroPro_CotaSup", "chkPro_CotaSup"},
    CampoSubconcepto{"SSUB_PERIODOS_SUCESIVOS", Forma::logico, "chkPeriodosSucesivos"},
    CampoSubconcepto{"SSUB_FONDO_REPARO", Forma::logico, "chkFondoReparo"},
    CampoSubconcepto{"SSUB_FONDO_REPARO_PORC", Forma::numero, "nroFondoReparo_PorcDef", "chkFondoReparo_Porc"},
    CampoSubconcepto{"SSUB_FONDO_REPARO_NOMBRE", Forma::texto, "txtFondoReparo_nombre"},
    CampoSubconcepto{"SSUB_FONDO_REPARO_MODO_DEFAULT", Forma::modo, "optFondoReparo_montoFijo",
                     "optFondoReparo_porcentaje"},
    CampoSubconcepto{"SSUB_GARANTIA_CUMPLIMIENTO", Forma::logico, "chkGarantiaCumplimiento"},
    CampoSubconcepto{"SSUB_GARANTIA_CUMPLIMIENTO_PORC", Forma::numero, "nroGarantiaCumplimiento_Porc",
                     "chkGarantiaCumplimiento_porc"},
    CampoSubconcepto{"SSUB_GARANTIA_CUMPL_MODO_DEFAULT", Forma::modo, "optGarantiaCumplimiento_fijo",
                     "optGarantiaCumplimiento_porc"},
    CampoSubconcepto{"SSUB_GARANTIA_CUMPL_SUMA", Forma::mascara, "txtGarantiaCumplimiento_suma"},
    CampoSubconcepto{"SSUB_OBLIG_ACCESORIA", Forma::logico, "chkObligAccesoria"},
    CampoSubconcepto{"SSUB_OBLIG_ACCESORIA_MODO_DEFAULT", Forma::modo, "optObligAccesoria_fijo",
                     "optObligAccesoria_porc"},
    CampoSubconcepto{"SSUB_OBLIG_ACCESORIA_PORC", Forma::numero, "nroObligAccesoria_porcDef",
                     "chkObligAccesoria_porcDef"},
    CampoSubconcepto{"SSUB_OBLIG_ACCESORIA_SUMA", Forma::mascara, "txtObligAccesoria_suma"},
    CampoSubconcepto{"SSUB_HECTAREAS", Forma::logico, "chkHectareas"},
    CampoSubconcepto{"SSUB_TIPO_RETRIBUCION", Forma::logico, "chkTipoRetribucion"},
    CampoSubconcepto{"SCBI_ID", Forma::lista, "SCBI_ID"},
    CampoSubconcepto{"SCON_ID", Forma::lista, "cboConcepto"},
    CampoSubconcepto{"SSUB_EXENCION", Forma::logico, "chkExención"},
    CampoSubconcepto{"SSUB_EXENCION_PORC", Forma::numero, "nroExencionPorc", "chkExención"},
    CampoSubconcepto{"SSUB_PAGOACUENTA", Forma::logico, "chkPermitePagoACuenta"},
    CampoSubconcepto{"SSUB_PAGOACUENTA_PORC", Forma::numero, "nroPagoACuentaPorc", "chkPermitePagoACuenta"},
    CampoSubconcepto{"SSUB_CARGA_RAPIDA", Forma::logico, "chkCargaRapida"},
    CampoSubconcepto{"SSUB_CARGA_RAPIDA_MONTO", Forma::numero, "nroMontoCRapida", "chkCargaRapida"},
    CampoSubconcepto{"SSUB_SELLADO_MULTIPLE", Forma::logico, "chkSelladoMultiple"},
    CampoSubconcepto{"SSUB_SELLADO_MULTIPLE_MONTO", Forma::numero, "nroMontoMaxSM", "chkSelladoMultiple"},
    CampoSubconcepto{"SSUB_CUIT_EN_TRAMITE", Forma::logico, "chkCUIT_EnTramite"},
    CampoSubconcepto{"SSUB_HIPOTECA", Forma::logico, "chkHipoteca"},
    CampoSubconcepto{"SSUB_OBSERVACIONES", Forma::texto, "txtObservaciones"},
    CampoSubconcepto{"SSUB_USOS", Forma::lista, "SSUB_USOS"},
    CampoSubconcepto{"AUSU_ID", Forma::usuario, nullptr},
    CampoSubconcepto{"SSUB_FULTMOD", Forma::hoy, nullptr},
};

QString literal(const CampoSubconcepto& campo, const ControlesSubconcepto& c)
{
    const QString nulo = u"null"_s;
    const QVariant valor = campo.control ? c.value(QString::fromUtf8(campo.control)) : QVariant();
    const QString texto = valor.toString();
    const auto asociado = [&] { return c.value(QString::fromUtf8(campo.asociado)).toBool(); };
    switch (campo.forma) {
    case Forma::codigo: return texto;
    case Forma::texto: return texto_o_null(toSQL(texto));
    case Forma::fecha: return valor.toDate().isNull() ? nulo : fecha_sql(valor.toDate());
    case Forma::logico: return logico_sql(valor.toBool());
    case Forma::numero: return asociado() && !texto.isEmpty() ? texto : nulo;
    case Forma::modo: return valor.toBool() ? u"'F'"_s : asociado() ? u"'P'"_s : nulo;
    case Forma::lista:
    case Forma::mascara: return texto.isEmpty() ? nulo : texto;
    case Forma::usuario: return u"'ZQ'"_s;
    case Forma::hoy: return fecha_sql(hoy());
    }
    return nulo;
}

Asignaciones columnas_de(std::span<const CampoSubconcepto> campos, const ControlesSubconcepto& c)
{
    Asignaciones fila;
    for (const CampoSubconcepto& campo : campos)
        fila << Asignacion{campo.columna, literal(campo, c)};
    return fila;
}

bool es_de_columna(const char* casilla)
{
    return std::any_of(CAMPOS.begin(), CAMPOS.end(), [casilla](const CampoSubconcepto& campo) {
        return campo.forma == Forma::logico && QLatin1StringView(campo.control) == QLatin1StringView(casilla);
    });
}

void tomar(const CampoSubconcepto& campo, const Recordset& rs, ControlesSubconcepto& c)
{
    const QString control = QString::fromUtf8(campo.control);
    const bool nulo = rs.nulo(campo.columna);
    switch (campo.forma) {
    case Forma::codigo:
    case Forma::texto: c[control] = rs.texto(campo.columna); break;
    case Forma::fecha: c[control] = rs.fecha(campo.columna); break;
    case Forma::logico: c[control] = rs.logico(campo.columna); break;
    case Forma::numero:
        c[control] = nulo ? QString() : numero_sql(rs.real(campo.columna));
        if (!es_de_columna(campo.asociado))
            c[QString::fromUtf8(campo.asociado)] = !nulo;
        break;
    case Forma::modo:
        c[control] = rs.texto(campo.columna) == u"F";
        c[QString::fromUtf8(campo.asociado)] = rs.texto(campo.columna) == u"P";
        break;
    case Forma::lista: c[control] = nulo ? QVariant() : QVariant(rs.entero(campo.columna)); break;
    case Forma::mascara: c[control] = nulo ? QString() : numero_sql(rs.real(campo.columna)); break;
    case Forma::usuario:
    case Forma::hoy: break;
    }
}

}  // namespace

const QString TIPO_CALCULO_BI = u"SCBI_ID"_s;
const QString USOS = u"SSUB_USOS"_s;

std::optional<int> id_elegido(const ControlesSubconcepto& c, const QString& control)
{
    const int id = c.value(control).toInt();
    return id == 0 ? std::nullopt : std::optional(id);
}

std::span<const CampoSubconcepto> campos_subconcepto()
{
    return CAMPOS;
}

ControlesSubconcepto subconcepto_nuevo(std::optional<int> concepto)
{
    const Recordset rs(cnRtn, u"select max(SSUB_ID)+1 as MAX_SSUB_ID from SEL_TB_SUBCONCEPTOS"_s);
    return {{u"nroCodigo"_s, rs.texto("MAX_SSUB_ID")},
            {u"txtLeyVigencia"_s, u"LEY 5707 - ART 16º - INC )"_s},
            {u"dtpFechaVigencia"_s, QDate(2008, 1, 2)},
            {u"cboConcepto"_s, concepto ? QVariant(*concepto) : QVariant()},
            {USOS, UsoSubconcepto}};
}

std::optional<ControlesSubconcepto> cargar_subconcepto(int id)
{
    const Recordset rs(cnRtn, u"select * from SEL_VW_SUBCONCEPTOS where SSUB_ID=%1"_s.arg(QString::number(id)));
    if (rs.eof())
        return {};
    ControlesSubconcepto c;
    for (const CampoSubconcepto& campo : CAMPOS)
        tomar(campo, rs, c);
    c[u"txtTipoCalculoBI"_s] = rs.texto("SCBI_DESCRIPCION");
    return c;
}

void alta_subconcepto(const ControlesSubconcepto& c)
{
    const Asignaciones fila = columnas_de(CAMPOS, c);
    cnRtn.ejecutar(u"insert into SEL_TB_SUBCONCEPTOS (%1) values (%2)"_s.arg(columnas_sql(fila), valores_sql(fila)));
}

void modificar_subconcepto(const ControlesSubconcepto& c)
{
    const Asignaciones fila = columnas_de(std::span(CAMPOS).subspan(1), c);
    cnRtn.ejecutar(
        u"update SEL_TB_SUBCONCEPTOS set  %1 where SSUB_ID=%2"_s.arg(asignar_sql(fila), literal(CAMPOS[0], c)));
}
