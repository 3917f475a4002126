#include "catalogue/rangos.h"

#include "core/modGlobales.h"
#include "core/numero.h"

const TablaRangos RANGOS_ALICUOTAS{"SEL_TB_ALICUOTAS", "SALI_ID", "SALI_DESDEVALOR", "SALI_HASTAVALOR",
                                   {QStringLiteral("SALI_ALICUOTA"), QStringLiteral("SALI_DIVISOR"), QStringLiteral("SALI_DIVIDENDO")},
                                   "nroAlicuota", "La alicuota es nula\n¿Está seguro que desea darla de alta?", true};
const TablaRangos RANGOS_MODULOS{"SEL_TB_MODULOS", "SMOD_ID", "SMOD_DESDEVALOR", "SMOD_HASTAVALOR", {QStringLiteral("SMOD_MODULOS")},
                                 "nroModulos", "Insgrese la cantidad de módulos.", false};

namespace {

QString valor_sql(const QString& numero)
{
    return numero.isEmpty() ? QStringLiteral("null") : numero;
}

double numero(const QString& sql)
{
    return sql.isEmpty() ? 0 : numero_de_texto_sql(sql);
}

}  // namespace

std::optional<QString> revisar_rango(const TablaRangos& t, const Rango& r, const QString& titulo, Dialogo& dialogo)
{
    const auto avisar = [&](const char* texto, const char* control) {
        dialogo.avisar({QString::fromUtf8(texto), titulo});
        return QString::fromLatin1(control);
    };
    if (r.desde.isEmpty())
        return avisar("Insgrese el Valor Desde", "nroDesde");
    if (r.conHasta && numero(r.hasta) == 0)
        return avisar("Insgrese el Valor Hasta", "nroHasta");
    if (numero(r.valores.value(0)) == 0) {
        if (!t.ceroSePregunta)
            return avisar(t.siEsCero, t.control);
        if (!dialogo.preguntar({QString::fromUtf8(t.siEsCero), titulo, Icono::pregunta}))
            return QString::fromLatin1(t.control);
    }
    if (r.conHasta && numero(r.desde) >= numero(r.hasta))
        return avisar("El Valor Desde debe ser menor que el Valor Hasta", "nroDesde");
    return {};
}

// A bracket that holds a stored one whole, no bound being equal, passes: deliberate. The brackets of
// the catalogue in use were accepted by this rule.
bool se_solapa(const TablaRangos& t, const Rango& r)
{
    const QLatin1StringView desde(t.desde);
    const QLatin1StringView hasta(t.hasta);
    const auto abarca = [&](const QString& cota) {
        return u'(' + desde + QStringLiteral("<") + cota + QStringLiteral(" and (") + hasta + QStringLiteral(">") + cota + QStringLiteral(" or ") + hasta
            + QStringLiteral("=-1))");
    };
    const Recordset rs(cnRtn, QStringLiteral("select * from ") + QLatin1StringView(t.tabla) + QStringLiteral(" where SSUB_ID=") + QString::number(r.subconcepto)
                                  + QStringLiteral(" and ((") + desde + QStringLiteral("=") + r.desde + QStringLiteral(")")
                                  + (r.conHasta ? QStringLiteral(" or (") + hasta + QStringLiteral("=") + r.hasta + QStringLiteral(") ") : QString())
                                  + QStringLiteral(" or (") + abarca(r.desde) + QStringLiteral(" or ")
                                  + (r.conHasta ? abarca(r.hasta) : u'(' + hasta + QStringLiteral(">") + r.desde + QStringLiteral(")"))
                                  + QStringLiteral(") )"));
    return !rs.eof();
}

qint64 proximo_rango(const TablaRangos& t, qint32 subconcepto)
{
    const QLatin1StringView id(t.id);
    const Recordset rs(cnRtn, QStringLiteral("select max(") + id + QStringLiteral(") AS MAX_") + id + QStringLiteral(" from ") + QLatin1StringView(t.tabla)
                                  + QStringLiteral("  where int(") + id + QStringLiteral("/1000)=") + QString::number(subconcepto));
    return rs.nulo(0) ? qint64(subconcepto) * 1000 + 1 : rs.entero(0) + 1;
}

void alta_rango(const TablaRangos& t, const Rango& r)
{
    QString columnas = QStringLiteral("SSUB_ID, ") + QLatin1StringView(t.id) + QStringLiteral(", ") + QLatin1StringView(t.desde) + QStringLiteral(", ")
        + QLatin1StringView(t.hasta);
    QString valores = QString::number(r.subconcepto) + QStringLiteral(", ") + QString::number(proximo_rango(t, r.subconcepto)) + QStringLiteral(", ") + r.desde
        + QStringLiteral(", ") + (r.conHasta ? r.hasta : QStringLiteral("-1"));
    for (qsizetype i = 0; i < t.valores.size(); ++i) {
        columnas += QStringLiteral(", ") + t.valores[i];
        valores += QStringLiteral(", ") + valor_sql(r.valores.value(i));
    }
    cnRtn.ejecutar(QStringLiteral("insert into ") + QLatin1StringView(t.tabla) + QStringLiteral(" (") + columnas + QStringLiteral(") values (") + valores
                   + QStringLiteral(")"));
}

void modificar_rango(const TablaRangos& t, qint64 id, const QStringList& valores)
{
    QString asignaciones;
    for (qsizetype i = 0; i < t.valores.size(); ++i)
        asignaciones += (i == 0 ? QStringLiteral(" ") : QStringLiteral(", ")) + t.valores[i] + u'=' + valor_sql(valores.value(i));
    cnRtn.ejecutar(QStringLiteral("update ") + QLatin1StringView(t.tabla) + QStringLiteral(" set ") + asignaciones + QStringLiteral(" where ")
                   + QLatin1StringView(t.id) + u'=' + QString::number(id));
}

void borrar_rango(const TablaRangos& t, qint64 id)
{
    cnRtn.ejecutar(QStringLiteral("delete from ") + QLatin1StringView(t.tabla) + QStringLiteral(" where ") + QLatin1StringView(t.id) + u'=' + QString::number(id));
}

QList<clsAlicuotaSellos> alicuotas_de(qint32 subconcepto)
{
    QList<clsAlicuotaSellos> lista;
    for (Recordset rs(cnRtn, QStringLiteral("select * from SEL_VW_ALICUOTAS where SSUB_ID=") + QString::number(subconcepto)); !rs.eof(); rs.siguiente())
        lista << clsAlicuotaSellos{.IdAlicuota = rs.entero("SALI_ID"),
                                   .ValorDesde = rs.real("SALI_DESDEVALOR"),
                                   .ValorHasta = rs.real("SALI_HASTAVALOR"),
                                   .ValorAlicuota = rs.real("SALI_ALICUOTA"),
                                   .Divisor = rs.real("SALI_DIVISOR"),
                                   .Dividendo = rs.real("SALI_DIVIDENDO"),
                                   .IdUsuario = {},
                                   .FechaUltMod = {}};
    return lista;
}

QList<clsModuloSellos> modulos_de(qint32 subconcepto)
{
    QList<clsModuloSellos> lista;
    for (Recordset rs(cnRtn, QStringLiteral("select * from SEL_VW_MODULOS where SSUB_ID=") + QString::number(subconcepto)); !rs.eof(); rs.siguiente())
        lista << clsModuloSellos{.IdModulo = rs.entero("SMOD_ID"),
                                 .ValorDesde = rs.real("SMOD_DESDEVALOR"),
                                 .ValorHasta = rs.real("SMOD_HASTAVALOR"),
                                 .CantModulos = rs.real("SMOD_MODULOS"),
                                 .IdUsuario = {},
                                 .FechaUltMod = {}};
    return lista;
}
