// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogue/reglas_subconcepto.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array DEPENDENCIAS{
    DependenciaSubconcepto{"nroImporteMinimo", "chkImporteMinimo"},
    DependenciaSubconcepto{"nroExencionPorc", "chkExención"},
    DependenciaSubconcepto{"nroPagoACuentaPorc", "chkPermitePagoACuenta"},
    DependenciaSubconcepto{"lblMontoCR", "chkCargaRapida"},
    DependenciaSubconcepto{"nroMontoCRapida", "chkCargaRapida"},
    DependenciaSubconcepto{"lblMontoMaxSM", "chkSelladoMultiple"},
    DependenciaSubconcepto{"nroMontoMaxSM", "chkSelladoMultiple"},
    // Clearing the base keeps what its tab holds, the type apart: ticked again, all is there.
    DependenciaSubconcepto{"cmdElegirTCBI", "chkBaseImponible"},
    DependenciaSubconcepto{"txtTipoCalculoBI", "chkBaseImponible"},
    DependenciaSubconcepto{"chkRequiereValFiscal", "chkBaseImponible", false},
    DependenciaSubconcepto{"chkRequiereTasJudicial", "chkBaseImponible", false},
    DependenciaSubconcepto{"chkRequiereValorContractual", "chkBaseImponible", false},
    DependenciaSubconcepto{"chkPeriodoBI", "chkBaseImponible", false},
    DependenciaSubconcepto{"chkRequiereMoneda", "chkBaseImponible", false},
    DependenciaSubconcepto{"chkHectareas", "chkBaseImponible", false},
    DependenciaSubconcepto{"chkTipoRetribucion", "chkBaseImponible", false},
    DependenciaSubconcepto{"chkRequiereDuracion", "chkBaseImponible", false},
    DependenciaSubconcepto{"chkPermiteProrroga", "chkBaseImponible", false},
    DependenciaSubconcepto{"chkFondoReparo", "chkBaseImponible", false},
    DependenciaSubconcepto{"chkGarantiaCumplimiento", "chkBaseImponible", false},
    DependenciaSubconcepto{"chkObligAccesoria", "chkBaseImponible", false},
    DependenciaSubconcepto{"nroPorcValFiscal", "chkRequiereValFiscal"},
    DependenciaSubconcepto{"txtDenomVFiscal", "chkRequiereValFiscal"},
    DependenciaSubconcepto{"nroPorcTasJudicial", "chkRequiereTasJudicial"},
    DependenciaSubconcepto{"chkRequiereUT", "chkRequiereValorContractual"},
    DependenciaSubconcepto{"nroPorcValorContractual", "chkRequiereValorContractual"},
    DependenciaSubconcepto{"txtDenomVContractual", "chkRequiereValorContractual"},
    DependenciaSubconcepto{"nroPeriodoBI", "chkPeriodoBI"},
    DependenciaSubconcepto{"chkDuracionDefault", "chkRequiereDuracion"},
    DependenciaSubconcepto{"nroDuracionDefault", "chkDuracionDefault"},
    DependenciaSubconcepto{"chkDur_cotaSup", "chkRequiereDuracion"},
    DependenciaSubconcepto{"nroDur_CotaSup", "chkDur_cotaSup"},
    DependenciaSubconcepto{"chkEjecucionSucesiva", "chkRequiereDuracion"},
    DependenciaSubconcepto{"chkProrrogaDefault", "chkPermiteProrroga"},
    DependenciaSubconcepto{"nroProrrogaDefault", "chkProrrogaDefault"},
    DependenciaSubconcepto{"chkPro_CotaSup", "chkPermiteProrroga"},
    DependenciaSubconcepto{"nroPro_CotaSup", "chkPro_CotaSup"},
    DependenciaSubconcepto{"chkPeriodosSucesivos", "chkPermiteProrroga"},
    DependenciaSubconcepto{"chkFondoReparo_Porc", "chkFondoReparo"},
    DependenciaSubconcepto{"nroFondoReparo_PorcDef", "chkFondoReparo_Porc"},
    DependenciaSubconcepto{"txtFondoReparo_nombre", "chkFondoReparo"},
    DependenciaSubconcepto{"optFondoReparo_montoFijo", "chkFondoReparo"},
    DependenciaSubconcepto{"optFondoReparo_porcentaje", "chkFondoReparo"},
    DependenciaSubconcepto{"chkGarantiaCumplimiento_porc", "chkGarantiaCumplimiento"},
    DependenciaSubconcepto{"nroGarantiaCumplimiento_Porc", "chkGarantiaCumplimiento_porc"},
    DependenciaSubconcepto{"optGarantiaCumplimiento_fijo", "chkGarantiaCumplimiento"},
    DependenciaSubconcepto{"optGarantiaCumplimiento_porc", "chkGarantiaCumplimiento"},
    DependenciaSubconcepto{"txtGarantiaCumplimiento_suma", "chkGarantiaCumplimiento"},
    DependenciaSubconcepto{"cmdGaranCump_generar", "chkGarantiaCumplimiento"},
    DependenciaSubconcepto{"chkObligAccesoria_porcDef", "chkObligAccesoria"},
    DependenciaSubconcepto{"nroObligAccesoria_porcDef", "chkObligAccesoria_porcDef"},
    DependenciaSubconcepto{"optObligAccesoria_fijo", "chkObligAccesoria"},
    DependenciaSubconcepto{"optObligAccesoria_porc", "chkObligAccesoria"},
    DependenciaSubconcepto{"txtObligAccesoria_suma", "chkObligAccesoria"},
    DependenciaSubconcepto{"cmdObligAccesoria_suma", "chkObligAccesoria"},
};

enum class Titulo { del_formulario, con_formulario, solo };

// A box that the type of calculation of the base holds ticked.
struct CasillaSujeta
{
    const char* casilla;
    std::array<int, 3> tipos;
    const char* mensaje;
    Titulo titulo;
};
constexpr const char* TIPO_BI = "Tipo de cálculo de la base imponible";
constexpr std::array SUJETAS{
    CasillaSujeta{"chkRequiereTasJudicial",
                  {10},
                  "El tipo de cálculo de la base imponible seleccionado requiere la tasacion judicial.\n"
                  "Si no corresponde, seleccione el tipo de cáculo de la base imponible correcto",
                  Titulo::con_formulario},
    CasillaSujeta{"chkRequiereValFiscal",
                  {1, 2, 10},
                  "El tipo de cálculo de la base imponible seleccionado requiere la valuación fiscal.\n"
                  "Para deseleccionarlo, seleccione el tipo de cáculo de la base imponible correcto",
                  Titulo::con_formulario},
    CasillaSujeta{"chkRequiereValorContractual",
                  {1, 2, 3},
                  "El tipo de cálculo de la base imponible seleccionado requiere el valor contractual.\n"
                  "Para deseleccionarlo, seleccione el tipo de cáculo de la base imponible correcto",
                  Titulo::solo},
    CasillaSujeta{"chkHectareas",
                  {4},
                  "El tipo de calculo de la base imponible seleccionado necesita solicitar las hectáreas afectadas",
                  Titulo::del_formulario},
};

// A number that its boxes ask for.
bool falta(const ControlesSubconcepto& c, std::initializer_list<const char*> casillas, const char* numero)
{
    return c.value(QLatin1StringView(numero)).toString().isEmpty()
           && std::all_of(casillas.begin(), casillas.end(),
                          [&c](const char* casilla) { return c.value(QLatin1StringView(casilla)).toBool(); });
}

bool sin_modo(const ControlesSubconcepto& c, const char* casilla, const char* fijo, const char* porcentaje)
{
    return c.value(QLatin1StringView(casilla)).toBool() && !c.value(QLatin1StringView(fijo)).toBool()
           && !c.value(QLatin1StringView(porcentaje)).toBool();
}

void suplir(ControlesSubconcepto& c, const char* control, const char* texto)
{
    QVariant& valor = c[QLatin1StringView(control)];
    if (valor.toString().isEmpty())
        valor = QString::fromUtf8(texto);
}

}  // namespace

std::span<const DependenciaSubconcepto> dependencias_subconcepto()
{
    return DEPENDENCIAS;
}

bool habilitado_por_casillas(const QString& control, const ControlesSubconcepto& c)
{
    return std::all_of(DEPENDENCIAS.begin(), DEPENDENCIAS.end(), [&](const DependenciaSubconcepto& d) {
        const QString casilla = QString::fromUtf8(d.casilla);
        return control != QString::fromUtf8(d.control)
               || (c.value(casilla).toBool() && habilitado_por_casillas(casilla, c));
    });
}

std::optional<Mensaje> casilla_sujeta(const QString& casilla, int tipo, const QString& titulo)
{
    for (const CasillaSujeta& s : SUJETAS) {
        if (tipo == 0 || casilla != QLatin1StringView(s.casilla)
            || std::find(s.tipos.begin(), s.tipos.end(), tipo) == s.tipos.end())
            continue;
        const QString propio = QString::fromUtf8(TIPO_BI);
        const QString titulos[] = {titulo, titulo + u" - "_s + propio, propio};
        return Mensaje{QString::fromUtf8(s.mensaje), titulos[int(s.titulo)]};
    }
    return {};
}

QHash<QString, bool> casillas_de_tipo_bi(int tipo)
{
    const QString fiscal = u"chkRequiereValFiscal"_s;
    const QString contractual = u"chkRequiereValorContractual"_s;
    switch (tipo) {
    case 1:
    case 2: return {{fiscal, true}, {contractual, true}};
    case 3: return {{fiscal, false}, {contractual, true}};
    case 4: return {{u"chkHectareas"_s, true}};
    default: return {};
    }
}

Rangos rangos_de_tipo(const QString& tipo)
{
    if (tipo == u"VARIABLE")
        return Rangos::alicuotas;
    return tipo == u"FIJO" || tipo == u"FIJO PROPORCIONAL" ? Rangos::modulos : Rangos::ningunos;
}

QString impedimento_de_tipo(const QString& tipo, bool conAlicuotas, bool conModulos)
{
    const Rangos rangos = rangos_de_tipo(tipo);
    if (rangos == Rangos::alicuotas && conModulos)
        return u"No puede cambiar el tipo de calculo a VARIABLE ya que tiene rangos con impusto fijo. "
               u"Para cambiar el tipo de cálculo elimine primero los rangos con impuesto fijo."_s;
    if (rangos == Rangos::modulos && conAlicuotas)
        return u"No puede cambiar el tipo de calculo a FIJO ya que tiene alícuotas asignadas. "
               u"Para cambiar el tipo de cálculo elimine primero las alícuotas asignadas."_s;
    return {};
}

std::optional<Falla> validar_subconcepto(ControlesSubconcepto& c)
{
    for (const CampoSubconcepto& campo : campos_subconcepto())
        if (campo.forma == Forma::texto || campo.forma == Forma::mascara) {
            QVariant& valor = c[QString::fromUtf8(campo.control)];
            valor = valor.toString().trimmed();
        }
    suplir(c, "txtObligAccesoria_suma", "0");
    suplir(c, "txtGarantiaCumplimiento_suma", "0");
    suplir(c, "txtFondoReparo_nombre", "Fondo de reparo");
    const auto vacio = [&c](const char* control) { return c.value(QLatin1StringView(control)).toString().isEmpty(); };
    if (auto falla = primera_falla({
            {vacio("txtDescripcion"), "Ingrese la descripción del subconcepto", "txtDescripcion"},
            {vacio("txtLeyVigencia"), "Ingrese la Ley de vigencia del subconcepto", "txtLeyVigencia"},
            {c.value(u"cboConcepto"_s).toInt() == 0, "Seleccione el concepto", "cboConcepto"},
            {c.value(u"ctlTipoCalculo"_s).toInt() == 0, "Ingrese el tipo de calculo del impuesto", "ctlTipoCalculo"},
            {falta(c, {"chkBaseImponible"}, "txtTipoCalculoBI"), "Ingrese el tipo de cálculo del subconcepto",
             "cmdElegirTCBI"},
            {falta(c, {"chkPeriodoBI"}, "nroPeriodoBI"),
             "Ingrese el periodo que se utilizará para el cálculo de la base imponible", "nroPeriodoBI"},
            {falta(c, {"chkDuracionDefault"}, "nroDuracionDefault"), "Ingrese la duración por defecto",
             "nroDuracionDefault"},
            {falta(c, {"chkDur_cotaSup"}, "nroDur_CotaSup"), "Ingrese la cota superior para la duración",
             "nroDur_CotaSup"},
            {falta(c, {"chkProrrogaDefault"}, "nroProrrogaDefault"), "Ingrese la prórroga por defecto",
             "nroProrrogaDefault"},
            {falta(c, {"chkPro_CotaSup"}, "nroPro_CotaSup"), "Ingrese la cota superior para la prórroga",
             "nroPro_CotaSup"},
        }))
        return falla;
    suplir(c, "txtDenomVContractual", "Valor contractual");
    suplir(c, "txtDenomVFiscal", "Valuación fiscal");
    return primera_falla({
        {falta(c, {"chkCargaRapida"}, "nroMontoCRapida"), "Ingrese el monto máximo permitido para la carga rápida",
         "nroMontoCRapida"},
        {falta(c, {"chkFondoReparo", "chkFondoReparo_Porc"}, "nroFondoReparo_PorcDef"),
         "Ingrese el porcentaje a utilizar en el Fondo de Reparo", "nroFondoReparo_PorcDef"},
        {sin_modo(c, "chkFondoReparo", "optFondoReparo_montoFijo", "optFondoReparo_porcentaje"),
         "Indique el modo por defecto para el Fondo de Reparo", "optFondoReparo_montoFijo"},
        {falta(c, {"chkGarantiaCumplimiento", "chkGarantiaCumplimiento_porc"}, "nroGarantiaCumplimiento_Porc"),
         "Ingrese el porcentaje a utilizar en la Garantia de Cumplimiento", "nroGarantiaCumplimiento_Porc"},
        {sin_modo(c, "chkGarantiaCumplimiento", "optGarantiaCumplimiento_fijo", "optGarantiaCumplimiento_porc"),
         "Indique el modo por defecto para la Garantia de Cumplimiento", "optGarantiaCumplimiento_fijo"},
        {falta(c, {"chkObligAccesoria", "chkObligAccesoria_porcDef"}, "nroObligAccesoria_porcDef"),
         "Ingrese el porcentaje a utilizar en la Obligación Accesoria", "nroObligAccesoria_porcDef"},
        {sin_modo(c, "chkObligAccesoria", "optObligAccesoria_fijo", "optObligAccesoria_porc"),
         "Indique el modo por defecto para la Obligación Accesoria", "optObligAccesoria_fijo"},
    });
}
