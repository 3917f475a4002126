// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogue/rangos.h"

#include "core/asignaciones.h"
#include "core/modGlobales.h"
#include "core/numero.h"

using namespace Qt::StringLiterals;

const TablaRangos RANGOS_ALICUOTAS{"SEL_TB_ALICUOTAS",
                                   "SALI_ID",
                                   "SALI_DESDEVALOR",
                                   "SALI_HASTAVALOR",
                                   {"SALI_ALICUOTA", "SALI_DIVISOR", "SALI_DIVIDENDO"},
                                   "nroAlicuota",
                                   "La alicuota es nula\n¿Está seguro que desea darla de alta?",
                                   true};
const TablaRangos RANGOS_MODULOS{"SEL_TB_MODULOS",
                                 "SMOD_ID",
                                 "SMOD_DESDEVALOR",
                                 "SMOD_HASTAVALOR",
                                 {"SMOD_MODULOS"},
                                 "nroModulos",
                                 "Insgrese la cantidad de módulos.",
                                 false};

namespace {

QString valor_sql(const QString& numero)
{
    return numero.isEmpty() ? u"null"_s : numero;
}

double numero(const QString& sql)
{
    return sql.isEmpty() ? 0 : numero_de_texto_sql(sql);
}

// What the bracket gives, column by column.
Asignaciones columnas_de(const TablaRangos& t, const QStringList& valores)
{
    Asignaciones fila;
    for (qsizetype i = 0; i < qsizetype(t.valores.size()); ++i)
        fila << Asignacion{t.valores[size_t(i)], valor_sql(valores.value(i))};
    return fila;
}

template <class T, class Leer>
QList<T> leer_rangos(const char* vista, qint32 subconcepto, Leer leer)
{
    QList<T> lista;
    for (Recordset rs(
             cnRtn, u"select * from %1 where SSUB_ID=%2"_s.arg(QLatin1StringView(vista), QString::number(subconcepto)));
         !rs.eof(); rs.siguiente())
        lista << leer(rs);
    return lista;
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
    const QString desde = QLatin1StringView(t.desde);
    const QString hasta = QLatin1StringView(t.hasta);
    const auto abarca = [&](const QString& cota) { return u"(%1<%3 and (%2>%3 or %2=-1))"_s.arg(desde, hasta, cota); };
    const QString condicion = r.conHasta ? u"(%1=%3) or (%2=%4)  or (%5 or %6) "_s.arg(desde, hasta, r.desde, r.hasta,
                                                                                       abarca(r.desde), abarca(r.hasta))
                                         : u"(%1=%3) or (%4 or (%2>%3)) "_s.arg(desde, hasta, r.desde, abarca(r.desde));
    const Recordset rs(cnRtn, u"select * from %1 where SSUB_ID=%2 and (%3)"_s.arg(
                                  QLatin1StringView(t.tabla), QString::number(r.subconcepto), condicion));
    return !rs.eof();
}

qint64 proximo_rango(const TablaRangos& t, qint32 subconcepto)
{
    const Recordset rs(cnRtn, u"select max(%1) AS MAX_%1 from %2  where int(%1/1000)=%3"_s.arg(
                                  QLatin1StringView(t.id), QLatin1StringView(t.tabla), QString::number(subconcepto)));
    return rs.nulo(0) ? qint64(subconcepto) * 1000 + 1 : rs.entero(0) + 1;
}

void alta_rango(const TablaRangos& t, const Rango& r)
{
    const Asignaciones fila = Asignaciones{{"SSUB_ID", QString::number(r.subconcepto)},
                                           {t.id, QString::number(proximo_rango(t, r.subconcepto))},
                                           {t.desde, r.desde},
                                           {t.hasta, r.conHasta ? r.hasta : u"-1"_s}}
                              + columnas_de(t, r.valores);
    cnRtn.ejecutar(
        u"insert into %1 (%2) values (%3)"_s.arg(QLatin1StringView(t.tabla), columnas_sql(fila), valores_sql(fila)));
}

void modificar_rango(const TablaRangos& t, qint64 id, const QStringList& valores)
{
    cnRtn.ejecutar(u"update %1 set  %2 where %3=%4"_s.arg(QLatin1StringView(t.tabla),
                                                          asignar_sql(columnas_de(t, valores)), QLatin1StringView(t.id),
                                                          QString::number(id)));
}

void borrar_rango(const TablaRangos& t, qint64 id)
{
    cnRtn.ejecutar(
        u"delete from %1 where %2=%3"_s.arg(QLatin1StringView(t.tabla), QLatin1StringView(t.id), QString::number(id)));
}

QList<clsAlicuotaSellos> alicuotas_de(qint32 subconcepto)
{
    return leer_rangos<clsAlicuotaSellos>("SEL_VW_ALICUOTAS", subconcepto, [](const Recordset& rs) {
        return clsAlicuotaSellos{.IdAlicuota = rs.entero("SALI_ID"),
                                 .ValorDesde = rs.real("SALI_DESDEVALOR"),
                                 .ValorHasta = rs.real("SALI_HASTAVALOR"),
                                 .ValorAlicuota = rs.real("SALI_ALICUOTA"),
                                 .Divisor = rs.real("SALI_DIVISOR"),
                                 .Dividendo = rs.real("SALI_DIVIDENDO"),
                                 .IdUsuario = {},
                                 .FechaUltMod = {}};
    });
}

QList<clsModuloSellos> modulos_de(qint32 subconcepto)
{
    return leer_rangos<clsModuloSellos>("SEL_VW_MODULOS", subconcepto, [](const Recordset& rs) {
        return clsModuloSellos{.IdModulo = rs.entero("SMOD_ID"),
                               .ValorDesde = rs.real("SMOD_DESDEVALOR"),
                               .ValorHasta = rs.real("SMOD_HASTAVALOR"),
                               .CantModulos = rs.real("SMOD_MODULOS"),
                               .IdUsuario = {},
                               .FechaUltMod = {}};
    });
}
