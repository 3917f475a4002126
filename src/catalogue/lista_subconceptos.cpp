// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogue/lista_subconceptos.h"

#include "catalogue/cantidad.h"
#include "core/modGlobales.h"
#include "core/modUtiles.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array COLUMNAS{
    ColumnaSubconceptos{"COD", "SSUB_ID_SIN_LEY", false, 500},
    ColumnaSubconceptos{"Descripción", "SSUB_DESCRIPCION", true, 3600},
    ColumnaSubconceptos{"Observaciones", "SSUB_OBSERVACIONES", true, 1400},
    ColumnaSubconceptos{"Tipo", "STIC_DESCRIPCION", true, 1400},
    ColumnaSubconceptos{"Cálculo", "SCBI_DESCRIPCION", true, 2200},
    ColumnaSubconceptos{"Monto mínimo (en módulos)", "SSUB_MODULOSMIN", false, 1000},
    ColumnaSubconceptos{"Ley Vigencia", "SSUB_LEYVIGENCIA", true, 2400},
    ColumnaSubconceptos{"Fecha Vigencia", "SSUB_FECHAVIGENCIA", false, 1200},
    ColumnaSubconceptos{nullptr, "SSUB_ID_CONLEY", false, 0},
    ColumnaSubconceptos{nullptr, "SCON_ID", false, 0},
};
constexpr size_t COLUMNA_MINIMO = 5;
constexpr size_t COLUMNA_FECHA = 7;

QString exencion_igual(const FiltroSubconceptos& f)
{
    using Exenciones = FiltroSubconceptos::Exenciones;
    const bool con_valor = !f.porcExencion.isEmpty();
    switch (f.exenciones) {
    case Exenciones::subjetivas:
        return con_valor ? u" (SSUB_EXENCION_PORC=%1 or SSUB_EXENCION=0) "_s.arg(f.porcExencion) : QString();
    case Exenciones::no_exentos: return u" SSUB_EXENCION=0 "_s;
    case Exenciones::exentos:
        return con_valor ? u" SSUB_EXENCION=1  and (SSUB_EXENCION_PORC=%1) "_s.arg(f.porcExencion)
                         : u" SSUB_EXENCION=1 "_s;
    case Exenciones::sin_filtro: break;
    }
    return {};
}

// The signs of a pattern are joined, not filled in: what was typed may hold them too.
QString descripcion_parecida(const FiltroSubconceptos& f)
{
    using Criterio = FiltroSubconceptos::Criterio;
    if (f.criterio == Criterio::ninguno || f.texto.isEmpty())
        return {};
    const QString antes = f.criterio == Criterio::comienza ? QString() : u"%"_s;
    const QString despues = f.criterio == Criterio::termina ? QString() : u"%"_s;
    return u" SSUB_DESCRIPCION like '"_s + antes + toSQL(f.texto) + despues + u"' "_s;
}

QString norma_parecida(bool si, const char* parte, const QString& texto)
{
    if (!si)
        return {};
    return u" SSUB_LEYVIGENCIA like '%"_s + QLatin1StringView(parte) + u' ' + toSQL(texto.trimmed()) + u"%' "_s;
}

QString orden_sql(const QString& elegido)
{
    const QString campo = elegido.isEmpty() ? u"SSUB_LEYVIGENCIA"_s : elegido;
    const auto columna = std::find_if(COLUMNAS.begin(), COLUMNAS.end(),
                                      [&](const auto& c) { return campo == QLatin1StringView(c.campo); });
    const bool alfabetico = columna != COLUMNAS.end() && columna->texto;
    return u" order by %1%2"_s.arg(campo, alfabetico ? u" collate ESPANOL"_s : QString());
}

}  // namespace

std::span<const ColumnaSubconceptos> columnas_subconceptos()
{
    return COLUMNAS;
}

QString consulta_subconceptos(const FiltroSubconceptos& f)
{
    QStringList condiciones{descripcion_parecida(f),
                            norma_parecida(f.porLey, "LEY", f.textoLey),
                            norma_parecida(f.porArticulo, "ART", f.textoArticulo),
                            norma_parecida(f.porInciso, "INC", f.textoInciso),
                            f.selladoMultiple ? u" SSUB_SELLADO_MULTIPLE=1 "_s : QString(),
                            exencion_igual(f)};
    if (f.ley)
        condiciones.prepend(u" int(SSUB_ID_CONLEY/1000)=%1"_s.arg(QString::number(*f.ley)));
    if (f.concepto)
        condiciones.prepend(u" SCON_ID=%1"_s.arg(QString::number(*f.concepto)));
    if (f.uso)
        condiciones.prepend(u" ((([SSUB_USOS]/%1) % 2)=1) "_s.arg(QString::number(UsoSubconcepto)));
    condiciones.removeAll(QString());
    return u"select * from SEL_VW_SUBCONCEPTOS "_s
           + (condiciones.isEmpty() ? QString() : u" where "_s + condiciones.join(u" and "_s)) + orden_sql(f.orden);
}

void leer_subconceptos(const QString& consulta, const AgregarFilaUtf8& fila)
{
    Recordset rs(cnRtn, consulta);
    std::array<int, COLUMNAS.size()> lugares{};
    for (size_t i = 0; i < COLUMNAS.size(); ++i)
        lugares[i] = rs.columna(COLUMNAS[i].campo);
    std::array<std::string_view, COLUMNAS.size()> celdas;
    for (; !rs.eof(); rs.siguiente()) {
        for (size_t i = 0; i < COLUMNAS.size(); ++i)
            celdas[i] = rs.utf8(lugares[i]);
        // Stored as yyyy-mm-dd.
        std::string fecha;
        if (const std::string_view f = celdas[COLUMNA_FECHA]; f.size() >= 10)
            celdas[COLUMNA_FECHA] = fecha.append(f, 8, 2).append("/").append(f, 5, 2).append("/").append(f, 0, 4);
        QByteArray minimo;
        if (!celdas[COLUMNA_MINIMO].empty()) {
            minimo = cantidad_llana(rs.real(lugares[COLUMNA_MINIMO])).toUtf8();
            celdas[COLUMNA_MINIMO] = {minimo.constData(), size_t(minimo.size())};
        }
        fila(celdas);
    }
}

void marcar_subconcepto(const QString& id, bool si)
{
    cnRtn.ejecutar(u"update SEL_TB_SUBCONCEPTOS set SSUB_USOS=%1 where SSUB_ID=%2"_s.arg(si ? u"2"_s : u"0"_s, id));
}

void borrar_subconcepto(const QString& id)
{
    cnRtn.ejecutar(u"delete from SEL_TB_SUBCONCEPTOS where SSUB_ID=%1"_s.arg(id));
}
