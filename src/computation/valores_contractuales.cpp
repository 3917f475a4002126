// SPDX-License-Identifier: GPL-3.0-or-later
// The contract values of an operation in the store.

#include "computation/operacion.h"
#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "core/numero.h"

using namespace Qt::StringLiterals;

namespace {

QString donde_valor(const ClaveOperacion& clave, const QString& id)
{
    return clave.donde() + u" and SVCI_ID="_s + id;
}

QString numero_o_null(const std::optional<double>& n)
{
    return n ? numero_sql(*n) : u"null"_s;
}

}  // namespace

double leer_valores(const ClaveOperacion& clave, const AgregarFila& fila)
{
    double total = 0;
    Numero monto(2);
    for (Recordset rs(cnRtn, u"select VC.*, M.GMON_DESCRIPCION from GLB_TB_MONEDAS as M, SEL_TB_RTN_INS_VC as VC "
                             u" where VC.SEDJ_NRO='"_s
                                 + clave.dj + u"' and VC.SEDD_ID="_s + clave.renglon + u" and VC.SEDO_ID="_s
                                 + clave.operacion
                                 + u" and (VC.GMON_ID is null OR  VC.GMON_ID=M.GMON_ID) order by SVCI_ID "_s);
         !rs.eof(); rs.siguiente()) {
        monto.setValue(rs.real("SVCI_VALOR_CONTRACTUAL"));
        fila({rs.texto("SVCI_ID"), monto.toString(), rs.texto("GMON_DESCRIPCION"),
              importe_llano(rs.real("SVCI_TOTAL"))});
        total += rs.real("SVCI_TOTAL");
    }
    return total;
}

std::optional<ValorContractual> cargar_valor(const ClaveOperacion& clave, const QString& id)
{
    return leer_fila<ValorContractual>(cnRtn, u"select * from SEL_TB_RTN_INS_VC "_s + donde_valor(clave, id),
                                       columnas_valor());
}

void modificar_valor(const ValorContractual& v)
{
    const ClaveOperacion clave{v.dj, QString::number(v.renglon), QString::number(v.operacion)};
    cnRtn.ejecutar(u"update SEL_TB_RTN_INS_VC set  SVCI_VALOR_CONTRACTUAL="_s + numero_o_null(v.valor)
                   + u", SVCI_PORC_IVA="_s + numero_o_null(v.porcIva) + u", GMON_ID='"_s + v.moneda
                   + u"', SVCI_VALORCAMBIO="_s + numero_o_null(v.valorCambio) + u", SVCI_TOTAL="_s
                   + numero_o_null(v.total) + donde_valor(clave, QString::number(v.id)));
}

void borrar_valor(const ClaveOperacion& clave, const QString& id)
{
    cnRtn.ejecutar(u"delete from SEL_TB_RTN_INS_VC "_s + donde_valor(clave, id));
}
