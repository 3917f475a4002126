// SPDX-License-Identifier: GPL-3.0-or-later

#include "declarations/renglones.h"

#include "core/modGlobales.h"
#include "core/motivos.h"
#include "core/numero.h"
#include "core/redondeo.h"
#include "tree/renglon.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// What the column of the operation says of a deed.
std::string_view texto_operacion(const Recordset& rs, bool& incompleto)
{
    const std::string_view estado = rs.utf8(7);
    if (estado != "P")
        return estado == "N" ? "Anulado/NO PASO" : "Anulado/ERROSE";
    const std::string_view alcanzado = rs.utf8(8);
    if (alcanzado == "S" && rs.nulo(4)) {
        incompleto = true;
        return "(falta completar: operacion)";
    }
    if (rs.entero(10) != 0 && rs.utf8(9).empty()) {
        incompleto = true;
        return "(falta completar: testimonio)";
    }
    return alcanzado == "N" ? "No alcanzado" : rs.utf8(4);
}

}  // namespace

QString consulta_renglones(const QString& nro)
{
    return u" select D.SEDD_ID, D.SEDD_ESCRITURA_NRO, D.SEDD_FOLIO, D.SEDD_DIA, "
           u" D.SSUB_DESCRIPCION, D.SEDD_OBSERVACIONES, D.SEDD_TOTAL_IMPUESTO, "
           u" D.SEDD_ESTADO, D.SEDD_ALCANZADO, D.SEDD_FNAME_TESTIMONIO, D.REQUIERE_TESTIMONIO "
           u" from SEL_VW_DJ_DETALLE D left join          (select SEDJ_NRO, SEDD_ID, SSUB_TESTIMONIO "
           u"          from SEL_TB_SUBCONCEPTOS as S inner join SEL_TB_RTN_INS_OPERACIONES as O "
           u"          on S.SSUB_ID=O.SSUB_ID) as A  on  D.SEDJ_NRO=A.SEDJ_NRO and D.SEDD_ID=A.SEDD_ID "
           u" where D.SEDJ_NRO='%1' order by D.SEDD_ESCRITURA_NRO"_s.arg(nro);
}

void leer_renglones(const QString& nro, const std::function<void(const FilaRenglon&)>& fila)
{
    for (Recordset rs(cnRtn, consulta_renglones(nro)); !rs.eof(); rs.siguiente()) {
        FilaRenglon f;
        const std::string_view operacion = texto_operacion(rs, f.incompleto);
        const QByteArray impuesto = rs.utf8(7) == "P" ? importe_llano(rs.real(6)).toUtf8() : QByteArrayLiteral("0.00");
        f.celdas = {rs.utf8(0),
                    rs.utf8(1),
                    rs.utf8(2),
                    rs.utf8(3),
                    operacion,
                    rs.utf8(5),
                    {impuesto.constData(), size_t(impuesto.size())}};
        fila(f);
    }
}

QString diferencia_de_totales(const QString& nro)
{
    const auto distintos = [](double a, double b) { return std::llround(a * 100) != std::llround(b * 100); };
    const auto cifras = [](const QString& que, double guardado, double operaciones) {
        return u"%1: %2 (operaciones: %3)"_s.arg(que, importe_agrupado(guardado), importe_agrupado(operaciones));
    };
    // Two walks in the order of the keys, side by side: the screen reads this with each of its lists.
    Recordset operaciones(cnRtn, u"select SEDD_ID, SINS_MONTO_FINAL from SEL_TB_RTN_INS_OPERACIONES"
                                 u" where SEDJ_NRO='%1' order by SEDD_ID"_s.arg(nro));
    double suma = 0;
    QString primera;
    int otras = -1;
    for (Recordset rs(cnRtn, u"select SEDD_ID, SEDD_TOTAL_IMPUESTO, SEDD_ESCRITURA_NRO from SEL_TB_RTN_DETDJ"
                             u" where SEDJ_NRO='%1' order by SEDD_ID"_s.arg(nro));
         !rs.eof(); rs.siguiente()) {
        double propia = 0;
        for (; !operaciones.eof() && operaciones.entero(0) <= rs.entero(0); operaciones.siguiente())
            propia += operaciones.real(1);
        suma += propia;
        if (distintos(rs.real(1), propia) && ++otras == 0)
            primera = cifras(u"escritura "_s + rs.texto(2), rs.real(1), propia);
    }
    QStringList partes;
    if (const Recordset dj(cnRtn, u"select SEDJ_TOTAL_RETENIDO from SEL_TB_RTN_CABDJ where SEDJ_NRO='%1'"_s.arg(nro));
        !dj.eof() && distintos(dj.real(0), suma))
        partes << cifras(u"total retenido"_s, dj.real(0), suma);
    if (!primera.isEmpty())
        partes << primera;
    if (otras > 0)
        partes << (otras == 1 ? u"y otra escritura"_s : u"y otras %1 escrituras"_s.arg(otras));
    return partes.isEmpty() ? QString() : u"Totales guardados que difieren: "_s + partes.join(u", "_s);
}

bool borrar_renglon(const QString& nro, int id, double monto, Dialogo& dialogo)
{
    const QString donde = RenglonDJ{nro, QString::number(id)}.donde();
    try {
        Transaccion t(cnRtn);
        cnRtn.ejecutar(u"delete from SEL_TB_RTN_INS_ROLES%1"_s.arg(donde));
        cnRtn.ejecutar(u"delete from SEL_TB_RTN_DETDJ%1"_s.arg(donde));
        Comando resta(cnRtn,
                      u"update SEL_TB_RTN_CABDJ set SEDJ_TOTAL_RETENIDO=SEDJ_TOTAL_RETENIDO-? where SEDJ_NRO=?"_s);
        resta.parametro("p_monto", monto);
        resta.parametro("p_dj_nro", nro, 17);
        resta.ejecutar();
        t.confirmar();
        return true;
    } catch (const ErrorAlmacen& e) {
        dialogo.avisar(
            {u"No se pudo borrar el renglón seleccionado"_s, u"Borrar renglón"_s, Icono::informacion, detalles_de(e)});
        return false;
    }
}
