// SPDX-License-Identifier: GPL-3.0-or-later

#include "computation/subconcepto_operacion.h"

#include "core/modGlobales.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int USO_ESCRIBANOS = 2;

}  // namespace

ResultadoSubconcepto buscar_subconcepto(int ley, int codigo, Dialogo& dialogo)
{
    ResultadoSubconcepto r;
    const int id = identificador_subconcepto(ley, codigo);
    const Recordset rs(cnRtn, u"select * from SEL_VW_SUBCONCEPTOS  where SSUB_ID_CONLEY=%1"_s.arg(QString::number(id)));
    const auto rechazar = [&](const QString& motivo) {
        dialogo.avisar({u"El subconcepto "_s + QString::number(codigo) + motivo, {}, Icono::ninguno});
        return r;
    };
    if (rs.eof())
        return rechazar(u" no se encuentra en la ley "_s + QString::number(ley));
    r.hallado = true;
    if (rs.nulo("SSUB_USOS") || (rs.entero("SSUB_USOS") & USO_ESCRIBANOS) == 0)
        return rechazar(u" no se encuentra habilitado para el módulo para escribanos"_s);
    r.subconcepto.emplace().llenar(rs);
    r.subconcepto->setIdSubconcepto(id);
    r.conMinimo = !rs.nulo("SSUB_MODULOSMIN");
    r.nombreValorContractual = rs.nulo("SSUB_DENOM_VCONTRACTUAL") ? u"Valor contractual"_s
                                                                  : rs.texto("SSUB_DENOM_VCONTRACTUAL");
    return r;
}
