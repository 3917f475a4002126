// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogue/rangos.h"

#include "core/modGlobales.h"
#include "core/numero.h"

using namespace Qt::StringLiterals;

const TablaRangos RANGOS_ALICUOTAS{"SEL_TB_ALICUOTAS",
                                   "SALI_ID",
                                   "SALI_DESDEVALOR",
                                   "SALI_HASTAVALOR",
                                   {u"SALI_ALICUOTA"_s, u"SALI_DIVISOR"_s, u"SALI_DIVIDENDO"_s},
                                   "nroAlicuota",
                                   "La alicuota es nula\n¿Está seguro que desea darla de alta?",
                                   true};
const TablaRangos RANGOS_MODULOS{"SEL_TB_MODULOS",
                                 "SMOD_ID",
                                 "SMOD_DESDEVALOR",
                                 "SMOD_HASTAVALOR",
                                 {u"SMOD_MODULOS"_s},
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
        return u'(' + desde + u"<"_s + cota + u" and ("_s + hasta + u">"_s + cota + u" or "_s + hasta + u"=-1))"_s;
    };
    const Recordset rs(cnRtn, u"select * from "_s + QLatin1StringView(t.tabla) + u" where SSUB_ID="_s
                                  + QString::number(r.subconcepto) + u" and (("_s + desde + u"="_s + r.desde + u")"_s
                                  + (r.conHasta ? u" or ("_s + hasta + u"="_s + r.hasta + u") "_s : QString())
                                  + u" or ("_s + abarca(r.desde) + u" or "_s
                                  + (r.conHasta ? abarca(r.hasta) : u'(' + hasta + u">"_s + r.desde + u")"_s)
                                  + u") )"_s);
    return !rs.eof();
}

qint64 proximo_rango(const TablaRangos& t, qint32 subconcepto)
{
    const QLatin1StringView id(t.id);
    const Recordset rs(cnRtn, u"select max("_s + id + u") AS MAX_"_s + id + u" from "_s + QLatin1StringView(t.tabla)
                                  + u"  where int("_s + id + u"/1000)="_s + QString::number(subconcepto));
    return rs.nulo(0) ? qint64(subconcepto) * 1000 + 1 : rs.entero(0) + 1;
}

void alta_rango(const TablaRangos& t, const Rango& r)
{
    QString columnas = u"SSUB_ID, "_s + QLatin1StringView(t.id) + u", "_s + QLatin1StringView(t.desde) + u", "_s
                       + QLatin1StringView(t.hasta);
    QString valores = QString::number(r.subconcepto) + u", "_s + QString::number(proximo_rango(t, r.subconcepto))
                      + u", "_s + r.desde + u", "_s + (r.conHasta ? r.hasta : u"-1"_s);
    for (qsizetype i = 0; i < t.valores.size(); ++i) {
        columnas += u", "_s + t.valores[i];
        valores += u", "_s + valor_sql(r.valores.value(i));
    }
    cnRtn.ejecutar(u"insert into "_s + QLatin1StringView(t.tabla) + u" ("_s + columnas + u") values ("_s + valores
                   + u")"_s);
}

void modificar_rango(const TablaRangos& t, qint64 id, const QStringList& valores)
{
    QString asignaciones;
    for (qsizetype i = 0; i < t.valores.size(); ++i)
        asignaciones += (i == 0 ? u" "_s : u", "_s) + t.valores[i] + u'=' + valor_sql(valores.value(i));
    cnRtn.ejecutar(u"update "_s + QLatin1StringView(t.tabla) + u" set "_s + asignaciones + u" where "_s
                   + QLatin1StringView(t.id) + u'=' + QString::number(id));
}

void borrar_rango(const TablaRangos& t, qint64 id)
{
    cnRtn.ejecutar(u"delete from "_s + QLatin1StringView(t.tabla) + u" where "_s + QLatin1StringView(t.id) + u'='
                   + QString::number(id));
}

QList<clsAlicuotaSellos> alicuotas_de(qint32 subconcepto)
{
    QList<clsAlicuotaSellos> lista;
    for (Recordset rs(cnRtn, u"select * from SEL_VW_ALICUOTAS where SSUB_ID="_s + QString::number(subconcepto));
         !rs.eof(); rs.siguiente())
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
    for (Recordset rs(cnRtn, u"select * from SEL_VW_MODULOS where SSUB_ID="_s + QString::number(subconcepto));
         !rs.eof(); rs.siguiente())
        lista << clsModuloSellos{.IdModulo = rs.entero("SMOD_ID"),
                                 .ValorDesde = rs.real("SMOD_DESDEVALOR"),
                                 .ValorHasta = rs.real("SMOD_HASTAVALOR"),
                                 .CantModulos = rs.real("SMOD_MODULOS"),
                                 .IdUsuario = {},
                                 .FechaUltMod = {}};
    return lista;
}
