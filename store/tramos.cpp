// SPDX-License-Identifier: GPL-3.0-or-later

#include "tramos.h"

#include "core/almacen.h"
#include "core/numero.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

// A rate bracket excludes its lower bound and a module bracket includes it, so that the
// next one begins at the bound in the first and a cent above it in the second.
struct TablaTramos
{
    const char* tabla;
    const char* prefijo;
    const char* valor;
    double paso;
    const char* tipos;
};

// The decimals of the field through which the calculation takes a rate or a number of modules.
constexpr int DECIMALES = 4;

constexpr std::array TABLAS{
    TablaTramos{"SEL_TB_ALICUOTAS", "SALI", "SALI_ALICUOTA", 0.0, "'VARIABLE'"},
    TablaTramos{"SEL_TB_MODULOS", "SMOD", "SMOD_MODULOS", 0.01, "'FIJO','FIJO PROPORCIONAL'"},
};

QString revisar(Conexion& cn, const TablaTramos& t, const QHash<QString, QString>& lugares)
{
    const QString tabla = QLatin1StringView(t.tabla);
    const QString p = QLatin1StringView(t.prefijo);
    const QByteArray id = t.prefijo + QByteArray("_ID");
    const QByteArray desde = t.prefijo + QByteArray("_DESDEVALOR");
    const QByteArray hasta = t.prefijo + QByteArray("_HASTAVALOR");
    qint64 item = -1;
    double fin = -1;
    QString ultimo;
    for (Recordset rs(cn, u"select * from %1 order by SSUB_ID, %2_DESDEVALOR"_s.arg(tabla, p)); !rs.eof();
         rs.siguiente()) {
        const QString lugar = lugares.value(tabla + u'/' + rs.texto(id.constData()));
        const bool nuevo = rs.entero("SSUB_ID") != item;
        if (nuevo && fin != -1)
            return u"%1: el último tramo de %2 no llega a -1"_s.arg(ultimo).arg(item);
        const double inicio = rs.real(desde.constData());
        const double esperado = nuevo ? 0 : redondear(fin + t.paso, 2);
        if (!nuevo && (fin == -1 || inicio < esperado))
            return u"%1: el tramo se solapa con otro de %2"_s.arg(lugar).arg(rs.entero("SSUB_ID"));
        if (inicio > esperado)
            return u"%1: falta un tramo entre %2 y %3"_s.arg(lugar, numero_sql(esperado), numero_sql(inicio));
        fin = rs.real(hasta.constData());
        if (fin != -1 && fin < inicio)
            return u"%1: el tramo termina antes de empezar"_s.arg(lugar);
        if (const double valor = rs.real(t.valor); valor != redondear(valor, DECIMALES))
            return u"%1: %2 tiene más de %3 decimales"_s.arg(lugar, rs.texto(t.valor), QString::number(DECIMALES));
        item = rs.entero("SSUB_ID");
        ultimo = lugar;
    }
    if (fin != -1)
        return u"%1: el último tramo de %2 no llega a -1"_s.arg(ultimo).arg(item);
    const Recordset sin(
        cn, u"select S.SSUB_ID from SEL_TB_SUBCONCEPTOS S join SEL_TB_TIPOS_CALCULOS C on C.STIC_ID=S.STIC_ID "
            u"where C.STIC_DESCRIPCION in (%1) and S.SSUB_ID not in (select SSUB_ID from %2)"_s.arg(
                QLatin1StringView(t.tipos), tabla));
    if (!sin.eof())
        return u"%1: el subconcepto no tiene tramos en %2"_s.arg(
            lugares.value(u"SEL_TB_SUBCONCEPTOS/"_s + sin.texto(0)), tabla);
    return {};
}

}  // namespace

QString revisar_tramos(Conexion& cn, const QHash<QString, QString>& lugares)
{
    for (const TablaTramos& t : TABLAS)
        if (const QString falla = revisar(cn, t, lugares); !falla.isEmpty())
            return falla;
    return {};
}
