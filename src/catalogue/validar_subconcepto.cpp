// SPDX-License-Identifier: GPL-3.0-or-later
// The checks before an item is saved.

#include "catalogue/reglas_subconcepto.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

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
            {!id_elegido(c, u"cboConcepto"_s), "Seleccione el concepto", "cboConcepto"},
            {!id_elegido(c, u"ctlTipoCalculo"_s), "Ingrese el tipo de calculo del impuesto", "ctlTipoCalculo"},
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
