#include "catalogue/lista_subconceptos.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"

#include <array>

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
        return con_valor ? QStringLiteral(" (SSUB_EXENCION_PORC=") + f.porcExencion + QStringLiteral(" or SSUB_EXENCION=0) ") : QString();
    case Exenciones::no_exentos:
        return QStringLiteral(" SSUB_EXENCION=0 ");
    case Exenciones::exentos:
        return QStringLiteral(" SSUB_EXENCION=1 ")
            + (con_valor ? QStringLiteral(" and (SSUB_EXENCION_PORC=") + f.porcExencion + QStringLiteral(") ") : QString());
    case Exenciones::sin_filtro:
        break;
    }
    return {};
}

QString descripcion_parecida(const FiltroSubconceptos& f)
{
    using Criterio = FiltroSubconceptos::Criterio;
    if (f.criterio == Criterio::ninguno || f.texto.isEmpty())
        return {};
    return QStringLiteral(" SSUB_DESCRIPCION like '") + (f.criterio == Criterio::comienza ? QString() : QStringLiteral("%")) + toSQL(f.texto)
        + (f.criterio == Criterio::termina ? QString() : QStringLiteral("%")) + QStringLiteral("' ");
}

QString norma_parecida(bool si, const char* parte, const QString& texto)
{
    return si ? QStringLiteral(" SSUB_LEYVIGENCIA like '%") + QLatin1StringView(parte) + u' ' + toSQL(texto.trimmed()) + QStringLiteral("%' ") : QString();
}

}  // namespace

std::span<const ColumnaSubconceptos> columnas_subconceptos()
{
    return COLUMNAS;
}

QString consulta_subconceptos(const FiltroSubconceptos& f)
{
    QString sql = QStringLiteral("select * from SEL_VW_SUBCONCEPTOS ");
    QString union_ = QStringLiteral(" where ");
    const auto agregar = [&](const QString& condicion) {
        if (condicion.isEmpty())
            return;
        sql += union_ + condicion;
        union_ = QStringLiteral(" and ");
    };
    agregar(f.uso ? QStringLiteral(" ((([SSUB_USOS]/") + QString::number(UsoSubconcepto) + QStringLiteral(") % 2)=1) ") : QString());
    agregar(f.concepto ? QStringLiteral(" SCON_ID=") + QString::number(f.concepto) : QString());
    agregar(f.ley ? QStringLiteral(" int(SSUB_ID_CONLEY/1000)=") + QString::number(f.ley) : QString());
    agregar(descripcion_parecida(f));
    agregar(norma_parecida(f.porLey, "LEY", f.textoLey));
    agregar(norma_parecida(f.porArticulo, "ART", f.textoArticulo));
    agregar(norma_parecida(f.porInciso, "INC", f.textoInciso));
    agregar(f.selladoMultiple ? QStringLiteral(" SSUB_SELLADO_MULTIPLE=1 ") : QString());
    agregar(igual_o_no_exento(f));

    const QString campo = f.orden.isEmpty() ? QStringLiteral("SSUB_LEYVIGENCIA") : f.orden;
    const auto columna = std::find_if(COLUMNAS.begin(), COLUMNAS.end(), [&](const auto& c) { return campo == QLatin1StringView(c.campo); });
    return sql + QStringLiteral(" order by ") + campo
        + (columna != COLUMNAS.end() && columna->texto ? QStringLiteral(" collate ESPANOL") : QString());
}

void leer_subconceptos(const QString& consulta, const std::function<void(std::span<const std::string_view>)>& fila)
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
    cnRtn.ejecutar((si ? QStringLiteral("update SEL_TB_SUBCONCEPTOS set SSUB_USOS=2 where SSUB_ID=")
                       : QStringLiteral("update SEL_TB_SUBCONCEPTOS set SSUB_USOS=0 where SSUB_ID="))
                   + id);
}

void borrar_subconcepto(const QString& id)
{
    cnRtn.ejecutar(QStringLiteral("delete from SEL_TB_SUBCONCEPTOS where SSUB_ID=") + id);
}
