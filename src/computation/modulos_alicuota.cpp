// SPDX-License-Identifier: GPL-3.0-or-later
// The modules or the rate of an operation, from the brackets of its item.

#include "computation/calculo.h"

#include "core/modGlobales.h"

using namespace Qt::StringLiterals;

namespace {

void buscar_modulos(CamposImpuesto& c, EstadoOperacion& e, Dialogo& dialogo)
{
    e.lblMoA = u"Módulos"_s;
    c.nroAux.cantidadDecimales = 2;
    // The bounds are compared with base times module value; the product is deliberate.
    c.nroAux.setValue(c.ctlBaseImponiblePesos.Value() * ValorModulo);
    const Recordset rs(cnRtn, u"select SMOD_ID, SMOD_DESDEVALOR, SMOD_HASTAVALOR, SMOD_MODULOS  from SEL_TB_MODULOS "
                              u" where SSUB_ID=%1 and SMOD_DESDEVALOR<=%2"
                              u" and (SMOD_HASTAVALOR=-1 or SMOD_HASTAVALOR>=%2)"_s.arg(
                                  QString::number(e.subconcepto->IdSubconcepto()), c.nroAux.toSQL()));
    if (rs.eof())
        dialogo.avisar(
            {u"Error en la tabla de módulos: No se encuentran los modulos correspondientes para este subconcepto"_s,
             e.titulo, Icono::critico});
    else
        c.nroMoA.setValue(rs.real("SMOD_MODULOS"));
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
        c.nroMoA.setValue(rs.real("SALI_ALICUOTA"));
        return;
    }
    dialogo.avisar(
        {u"Error: No se encuentra la alícuota correspondiente para este subconcepto"_s, e.titulo, Icono::critico});
    c.nroMoA.setValue(0);
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
}
