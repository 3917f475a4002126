// SPDX-License-Identifier: GPL-3.0-or-later
// The modules or the rate of an operation, from the brackets of its item.

#include "computation/calculo.h"

#include "computation/anotador.h"
#include "core/modGlobales.h"

using namespace Qt::StringLiterals;

namespace {

// The bounds of a bracket, at the same places in both statements.
constexpr int DESDE = 1;
constexpr int HASTA = 2;

void buscar_modulos(CamposImpuesto& c, EstadoOperacion& e, Dialogo& dialogo)
{
    e.lblMoA = u"Módulos"_s;
    c.nroAux.cantidadDecimales = 2;
    // The bounds are compared with base times module value; the product is deliberate.
    const double B = c.ctlBaseImponiblePesos.Value();
    tomar(e.pasos, ClasePaso::comparado, c.nroAux, B * ValorModulo, {B, ValorModulo});
    const Recordset rs(cnRtn, u"select SMOD_ID, SMOD_DESDEVALOR, SMOD_HASTAVALOR, SMOD_MODULOS  from SEL_TB_MODULOS "
                              u" where SSUB_ID=%1 and SMOD_DESDEVALOR<=%2"
                              u" and (SMOD_HASTAVALOR=-1 or SMOD_HASTAVALOR>=%2)"_s.arg(
                                  QString::number(e.subconcepto->IdSubconcepto()), c.nroAux.toSQL()));
    if (rs.eof()) {
        dialogo.avisar(
            {u"Error en la tabla de módulos: No se encuentran los modulos correspondientes para este subconcepto"_s,
             e.titulo, Icono::critico});
        if (e.pasos)
            e.pasos->anotar(ClasePaso::sinTramoModulos, {leido(c.nroMoA), leido(c.nroAux)}, leido(c.nroMoA));
        return;
    }
    const double modulos = rs.real("SMOD_MODULOS");
    c.nroMoA.setValue(modulos);
    if (e.pasos)
        e.pasos->anotar(ClasePaso::tramoModulos, {leido(c.nroAux), rs.real(DESDE), rs.real(HASTA), modulos},
                        leido(c.nroMoA));
}

void buscar_alicuota(CamposImpuesto& c, EstadoOperacion& e, Dialogo& dialogo)
{
    e.lblMoA = u"Alícuota"_s;
    // A bracket begins above its lower bound; the base 0 belongs to the one that begins there.
    const Recordset rs(cnRtn,
                       u"select SALI_ID, SALI_DESDEVALOR, SALI_HASTAVALOR, SALI_ALICUOTA  from SEL_TB_ALICUOTAS "
                       u" where SSUB_ID=%1 and (SALI_DESDEVALOR%2%3"
                       u" and (SALI_HASTAVALOR=-1 or SALI_HASTAVALOR>=%3))"_s.arg(
                           QString::number(e.subconcepto->IdSubconcepto()),
                           c.ctlBaseImponiblePesos.Value() == 0 ? u"<="_s : u"<"_s, c.ctlBaseImponiblePesos.toSQL()));
    if (!rs.eof()) {
        const double alicuota = rs.real("SALI_ALICUOTA");
        c.nroMoA.setValue(alicuota);
        if (e.pasos)
            e.pasos->anotar(ClasePaso::tramoAlicuota,
                            {leido(c.ctlBaseImponiblePesos), rs.real(DESDE), rs.real(HASTA), alicuota},
                            leido(c.nroMoA));
        return;
    }
    dialogo.avisar(
        {u"Error: No se encuentra la alícuota correspondiente para este subconcepto"_s, e.titulo, Icono::critico});
    tomar(e.pasos, ClasePaso::sinTramoAlicuota, c.nroMoA, 0, {leido(c.ctlBaseImponiblePesos)});
    e.enfocarMoA = true;
}

}  // namespace

void BuscarModulosOAlicuota(CamposImpuesto c, EstadoOperacion& e, Dialogo& dialogo)
{
    if (!e.subconcepto)
        return;
    const QString& tipo = e.subconcepto->TipoCalculo;
    if (tipo == u"FIJO" || tipo == u"FIJO PROPORCIONAL")
        buscar_modulos(c, e, dialogo);
    else if (tipo == u"VARIABLE")
        buscar_alicuota(c, e, dialogo);
    else
        conservar(e.pasos, ClasePaso::modulosPuestos, c.nroMoA);
}
