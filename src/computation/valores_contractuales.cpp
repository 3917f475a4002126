// The contract values of an operation in the store.

#include "computation/operacion.h"
#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "core/numero.h"

namespace {

QString donde_valor(const ClaveOperacion& clave, const QString& id)
{
    return clave.donde() + QStringLiteral(" and SVCI_ID=") + id;
}

QString numero_o_null(const std::optional<double>& n)
{
    return n ? numero_sql(*n) : QStringLiteral("null");
}

}  // namespace

double leer_valores(const ClaveOperacion& clave, const AgregarFila& fila)
{
    double total = 0;
    Numero monto(2);
    for (Recordset rs(cnRtn, QStringLiteral("select VC.*, M.GMON_DESCRIPCION from GLB_TB_MONEDAS as M, SEL_TB_RTN_INS_VC as VC ")
                                 + QStringLiteral(" where VC.SEDJ_NRO='") + clave.dj + QStringLiteral("'") + QStringLiteral(" and VC.SEDD_ID=")
                                 + clave.renglon + QStringLiteral(" and VC.SEDO_ID=") + clave.operacion
                                 + QStringLiteral(" and (VC.GMON_ID is null OR  VC.GMON_ID=M.GMON_ID)") + QStringLiteral(" order by SVCI_ID "));
         !rs.eof(); rs.siguiente()) {
        monto.setValue(rs.real("SVCI_VALOR_CONTRACTUAL"));
        fila({rs.texto("SVCI_ID"), monto.toString(), rs.texto("GMON_DESCRIPCION"), formato_importe(rs.real("SVCI_TOTAL"))});
        total += rs.real("SVCI_TOTAL");
    }
    return total;
}

std::optional<ValorContractual> cargar_valor(const ClaveOperacion& clave, const QString& id)
{
    return leer_fila<ValorContractual>(cnRtn, QStringLiteral("select * from SEL_TB_RTN_INS_VC ") + donde_valor(clave, id), columnas_valor());
}

void modificar_valor(const ValorContractual& v)
{
    const ClaveOperacion clave{v.dj, QString::number(v.renglon), QString::number(v.operacion)};
    cnRtn.ejecutar(QStringLiteral("update SEL_TB_RTN_INS_VC set ") + QStringLiteral(" SVCI_VALOR_CONTRACTUAL=") + numero_o_null(v.valor)
                   + QStringLiteral(", SVCI_PORC_IVA=") + numero_o_null(v.porcIva) + QStringLiteral(", GMON_ID='") + v.moneda
                   + QStringLiteral("'") + QStringLiteral(", SVCI_VALORCAMBIO=") + numero_o_null(v.valorCambio)
                   + QStringLiteral(", SVCI_TOTAL=") + numero_o_null(v.total) + donde_valor(clave, QString::number(v.id)));
}

void borrar_valor(const ClaveOperacion& clave, const QString& id)
{
    cnRtn.ejecutar(QStringLiteral("delete from SEL_TB_RTN_INS_VC ") + donde_valor(clave, id));
}
