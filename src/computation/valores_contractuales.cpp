// SPDX-License-Identifier: GPL-3.0-or-later

#include "computation/valores_contractuales.h"

#include "core/asignaciones.h"
#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "core/numero.h"

using namespace Qt::StringLiterals;

namespace {

QString donde_valor(const ClaveOperacion& clave, const QString& id)
{
    return u"%1 and SVCI_ID=%2"_s.arg(clave.donde(), id);
}

QString numero_o_null(const std::optional<double>& n)
{
    return n ? numero_sql(*n) : u"null"_s;
}

}  // namespace

double leer_valores(const ClaveOperacion& clave, const AgregarFila& fila, Pasos* pasos)
{
    double total = 0;
    Numero monto(2);
    for (Recordset rs(cnRtn, u"select VC.*, M.GMON_DESCRIPCION from GLB_TB_MONEDAS as M, SEL_TB_RTN_INS_VC as VC "
                             u" where VC.SEDJ_NRO='%1' and VC.SEDD_ID=%2 and VC.SEDO_ID=%3"
                             u" and (VC.GMON_ID is null OR  VC.GMON_ID=M.GMON_ID) order by SVCI_ID "_s.arg(
                                 clave.dj, clave.renglon, clave.operacion));
         !rs.eof(); rs.siguiente()) {
        monto.setValue(rs.real("SVCI_VALOR_CONTRACTUAL"));
        fila({rs.texto("SVCI_ID"), monto.toString(), rs.texto("GMON_DESCRIPCION"),
              importe_llano(rs.real("SVCI_TOTAL"))});
        const double antes = total;
        const double valor = rs.real("SVCI_TOTAL");
        total += valor;
        if (pasos)
            pasos->anotar(ClasePaso::valorSumado, {antes, valor}, total, rs.texto("SVCI_ID"),
                          monto.toString() + u' ' + rs.texto("GMON_DESCRIPCION"));
    }
    return total;
}

std::optional<ValorContractual> cargar_valor(const ClaveOperacion& clave, const QString& id)
{
    return leer_fila<ValorContractual>(cnRtn, u"select * from SEL_TB_RTN_INS_VC %1"_s.arg(donde_valor(clave, id)),
                                       columnas_valor());
}

void modificar_valor(const ValorContractual& v)
{
    const ClaveOperacion clave{v.dj, QString::number(v.renglon), QString::number(v.operacion)};
    const Asignaciones fila{{"SVCI_VALOR_CONTRACTUAL", numero_o_null(v.valor)},
                            {"SVCI_PORC_IVA", numero_o_null(v.porcIva)},
                            {"GMON_ID", entre_comillas(v.moneda)},
                            {"SVCI_VALORCAMBIO", numero_o_null(v.valorCambio)},
                            {"SVCI_TOTAL", numero_o_null(v.total)}};
    cnRtn.ejecutar(
        u"update SEL_TB_RTN_INS_VC set  %1%2"_s.arg(asignar_sql(fila), donde_valor(clave, QString::number(v.id))));
}

void borrar_valor(const ClaveOperacion& clave, const QString& id)
{
    cnRtn.ejecutar(u"delete from SEL_TB_RTN_INS_VC %1"_s.arg(donde_valor(clave, id)));
}
