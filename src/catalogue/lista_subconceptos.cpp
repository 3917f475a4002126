// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogue/lista_subconceptos.h"

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
constexpr size_t COLUMNA_FECHA = 7;

QString igual_o_no_exento(const FiltroSubconceptos& f)
{
    using Exenciones = FiltroSubconceptos::Exenciones;
    const bool con_valor = !f.porcExencion.isEmpty();
    switch (f.exenciones) {
    case Exenciones::subjetivas:
        return con_valor ? u" (SSUB_EXENCION_PORC="_s + f.porcExencion + u" or SSUB_EXENCION=0) "_s : QString();
    case Exenciones::no_exentos: return u" SSUB_EXENCION=0 "_s;
    case Exenciones::exentos:
        return u" SSUB_EXENCION=1 "_s
               + (con_valor ? u" and (SSUB_EXENCION_PORC="_s + f.porcExencion + u") "_s : QString());
    case Exenciones::sin_filtro: break;
    }
    return {};
}

QString descripcion_parecida(const FiltroSubconceptos& f)
{
    using Criterio = FiltroSubconceptos::Criterio;
    if (f.criterio == Criterio::ninguno || f.texto.isEmpty())
        return {};
    return u" SSUB_DESCRIPCION like '"_s + (f.criterio == Criterio::comienza ? QString() : u"%"_s) + toSQL(f.texto)
           + (f.criterio == Criterio::termina ? QString() : u"%"_s) + u"' "_s;
}

QString norma_parecida(bool si, const char* parte, const QString& texto)
{
    return si ? u" SSUB_LEYVIGENCIA like '%"_s + QLatin1StringView(parte) + u' ' + toSQL(texto.trimmed()) + u"%' "_s
              : QString();
}

}  // namespace

std::span<const ColumnaSubconceptos> columnas_subconceptos()
{
    return COLUMNAS;
}

QString consulta_subconceptos(const FiltroSubconceptos& f)
{
    QString sql = u"select * from SEL_VW_SUBCONCEPTOS "_s;
    QString union_ = u" where "_s;
    const auto agregar = [&](const QString& condicion) {
        if (condicion.isEmpty())
            return;
        sql += union_ + condicion;
        union_ = u" and "_s;
    };
    agregar(f.uso ? u" ((([SSUB_USOS]/"_s + QString::number(UsoSubconcepto) + u") % 2)=1) "_s : QString());
    agregar(f.concepto ? u" SCON_ID="_s + QString::number(f.concepto) : QString());
    agregar(f.ley ? u" int(SSUB_ID_CONLEY/1000)="_s + QString::number(f.ley) : QString());
    agregar(descripcion_parecida(f));
    agregar(norma_parecida(f.porLey, "LEY", f.textoLey));
    agregar(norma_parecida(f.porArticulo, "ART", f.textoArticulo));
    agregar(norma_parecida(f.porInciso, "INC", f.textoInciso));
    agregar(f.selladoMultiple ? u" SSUB_SELLADO_MULTIPLE=1 "_s : QString());
    agregar(igual_o_no_exento(f));

    const QString campo = f.orden.isEmpty() ? u"SSUB_LEYVIGENCIA"_s : f.orden;
    const auto columna = std::find_if(COLUMNAS.begin(), COLUMNAS.end(),
                                      [&](const auto& c) { return campo == QLatin1StringView(c.campo); });
    return sql + u" order by "_s + campo
           + (columna != COLUMNAS.end() && columna->texto ? u" collate ESPANOL"_s : QString());
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
        fila(celdas);
    }
}

void marcar_subconcepto(const QString& id, bool si)
{
    cnRtn.ejecutar((si ? u"update SEL_TB_SUBCONCEPTOS set SSUB_USOS=2 where SSUB_ID="_s
                       : u"update SEL_TB_SUBCONCEPTOS set SSUB_USOS=0 where SSUB_ID="_s)
                   + id);
}

void borrar_subconcepto(const QString& id)
{
    cnRtn.ejecutar(u"delete from SEL_TB_SUBCONCEPTOS where SSUB_ID="_s + id);
}
