// SPDX-License-Identifier: GPL-3.0-or-later
// What hangs on which box.

#include "catalogue/reglas_subconcepto.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array DEPENDENCIAS{
    DependenciaSubconcepto{"nroImporteMinimo", "chkImporteMinimo"},
    DependenciaSubconcepto{"nroExencionPorc", "chkExención"},
    DependenciaSubconcepto{"nroPagoACuentaPorc", "chkPermitePagoACuenta"},
    DependenciaSubconcepto{"lblMontoCR", "chkCargaRapida"},
    DependenciaSubconcepto{"nroMontoCRapida", "chkCargaRapida"},
    DependenciaSubconcepto{"lblMontoMaxSM", "chkSelladoMultiple"},
    DependenciaSubconcepto{"nroMontoMaxSM", "chkSelladoMultiple"},
    DependenciaSubconcepto{"cmdElegirTCBI", "chkBaseImponible"},
    DependenciaSubconcepto{"txtTipoCalculoBI", "chkBaseImponible"},
    DependenciaSubconcepto{"chkRequiereValFiscal", "chkBaseImponible"},
    DependenciaSubconcepto{"chkRequiereTasJudicial", "chkBaseImponible"},
    DependenciaSubconcepto{"chkRequiereValorContractual", "chkBaseImponible"},
    DependenciaSubconcepto{"chkPeriodoBI", "chkBaseImponible"},
    DependenciaSubconcepto{"chkRequiereMoneda", "chkBaseImponible"},
    DependenciaSubconcepto{"chkHectareas", "chkBaseImponible"},
    DependenciaSubconcepto{"chkTipoRetribucion", "chkBaseImponible"},
    DependenciaSubconcepto{"chkRequiereDuracion", "chkBaseImponible"},
    DependenciaSubconcepto{"chkPermiteProrroga", "chkBaseImponible"},
    DependenciaSubconcepto{"chkFondoReparo", "chkBaseImponible"},
    DependenciaSubconcepto{"chkGarantiaCumplimiento", "chkBaseImponible"},
    DependenciaSubconcepto{"chkObligAccesoria", "chkBaseImponible"},
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
