// SPDX-License-Identifier: GPL-3.0-or-later
// An item of the tax catalogue with its roles, and what groups and brackets it.
#pragma once

#include "catalogue/clsRol.h"

#include <QDate>
#include <QString>

class Recordset;

struct clsConceptoSellos
{
    qint32 IdConcepto = 0;
    QString Descripcion;
    QString LeyVigencia;
    QDate FechaVigencia;
    QString Observaciones;
    QString IdUsuario;
    QDate FechaUltMod;
};

class clsSubconcepto
{
public:
    [[nodiscard]] qint32 IdSubconcepto() const { return id_; }
    /// Stores the identifier and reads the roles of the item from the store; an error of the
    /// store leaves them empty, silently.
    void setIdSubconcepto(qint32 id);
    [[nodiscard]] const colRoles& Roles() const { return roles_; }

    /// Fills what the operation screen fills, from a row of SEL_VW_SUBCONCEPTOS.
    void llenar(const Recordset& rs);

    bool PermitirCUIT_EnTramite = false;
    bool RequiereHipoteca = false;
    QString Descripcion;
    QString LeyVigencia;
    QDate FechaVigencia;
    QString TipoCalculo;        ///< "FIJO", "FIJO PROPORCIONAL", "FIJO ESCALA" or "VARIABLE"
    qint32 ModulosMinimo = -1;  ///< -1 without a minimum; 0 is a minimum of zero
    bool RequiereBaseImponible = false;
    bool RequiereMoneda = false;
    qint32 IdTipoCalculoBI = 0;
    bool RequiereTasacionJudicial = false;
    double PorcentajeTasacionJudicial = 0;
    bool RequiereValuacionFiscal = false;
    QString NombreValuacionFiscal;
    double PorcentajeValuacionFiscal = 0;  ///< a plain factor
    bool RequiereHectareas = false;
    bool RequiereTipoRetribucion = false;
    bool RequiereValorContractual = false;
    bool UTiempoVContractual = false;
    QString NombreValorContractual;
    double PorcentajeValorContractual = 0;  ///< a plain factor
    double PeriodoBI = 0;
    bool RequiereDuracion = false;
    bool DuracionDefault = false;
    double PlazoDuracionDefault = 0;
    bool DuracionCotaSuperior = false;
    double DuracionCotaSuperior_Valor = 0;
    bool PermiteDuracion2 = false;
    bool EjecucionSucesiva = false;
    bool PermiteProrroga = false;
    bool ProrrogaDefault = false;
    double PlazoProrrogaDefault = 0;
    bool ProrrogaCotaSuperior = false;
    double ProrrogaCotaSuperior_Valor = 0;
    bool PeriodosSucesivos = false;
    bool FondoReparo = false;
    double FondoReparo_Porc = 0;
    QString FondoReparo_Nombre;
    QString FondoReparo_ModoDef;
    bool GarantiaCumplimiento = false;
    QString GarantiaCumplimiento_ModoDef;
    double GarantiaCumplimiento_Porc = 0;
    qint32 GarantiaCumplimiento_suma = 0;
    bool ObligAccesoria = false;
    QString ObligAccesoria_ModoDef;
    double ObligAccesoria_Porc = 0;
    qint32 ObligAccesoria_suma = 0;  ///< mask of the modes whose amount adds to the base
    bool Exencion = false;
    double ExencionPorc = 0;
    QString Observaciones;
    bool PermitePagoACuenta = false;
    double PorcentajePagoACuenta = 0;
    bool PermiteCargaRapida = false;
    double MontoCargaRapida = 0;
    bool PermiteSelladoMultiple = false;
    double MontoSelladoMultiple = 0;
    QString SelMult_Denom;
    clsConceptoSellos concepto;

    [[nodiscard]] bool Unipersonal() const { return unipersonal_; }

private:
    qint32 id_ = 0;
    bool unipersonal_ = false;
    colRoles roles_;
};

/// A bracket of modules; -1 as its end is without limit.
struct clsModuloSellos
{
    qint64 IdModulo = 0;
    const clsSubconcepto* Subconcepto = nullptr;
    double ValorDesde = 0;
    double ValorHasta = 0;
    double CantModulos = 0;
    QString IdUsuario;
    QDate FechaUltMod;
};

/// A bracket of rates: a plain factor on the base, for the editor also as a fraction.
struct clsAlicuotaSellos
{
    qint64 IdAlicuota = 0;
    const clsSubconcepto* Subconcepto = nullptr;
    double ValorDesde = 0;
    double ValorHasta = 0;
    double ValorAlicuota = 0;
    double Divisor = 0;
    double Dividendo = 0;
    QString IdUsuario;
    QDate FechaUltMod;
};

struct clsTipoCalculoBI
{
    QString Observaciones;
    QString Descripcion;
    qint32 id = 0;
};

using colTiposCalculoBI = QList<clsTipoCalculoBI>;

/// The identifier of an item: the law followed by the code with three digits.
[[nodiscard]] qint32 identificador_subconcepto(int ley, int codigo);
