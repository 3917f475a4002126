#include "declarations/inmueble.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "declarations/escritura.h"

std::optional<Falla> validar_inmueble(Inmueble& i)
{
    i.partida = i.partida.trimmed();
    i.observaciones = i.observaciones.trimmed();
    return primera_falla({
        {i.partida.isEmpty(), "Ingrese la partida del inmueble", "txtINM_partida"},
        {!i.caracter, "Indique la ubicación del inmueble", "cboU_caracter"},
        {i.valFiscal == 0, "Indique la valuación fiscal del inmueble", "nroValFiscal"},
    });
}

void modificar_inmueble(const Inmueble& i, const QString& valFiscalSQL)
{
    QString sql = QStringLiteral("update SEL_TB_RTN_INS_INMUEBLES set ");
    QString separador;
    for (const Columna<Inmueble>& c : columnas_inmueble()) {
        const std::string_view nombre(c.nombre);
        if (nombre == "SEDJ_NRO" || nombre == "SEDD_ID" || nombre == "SEII_ID")
            continue;
        const QVariant valor = valor_columna(i, c);
        sql += separador + QStringLiteral(" ") + QLatin1String(c.nombre) + QStringLiteral("=");
        if (nombre == "SEII_VAL_FISCAL")
            sql += valFiscalSQL;
        else if (nombre == "GTUB_ID")
            sql += valor.toString();
        else
            sql += texto_o_null(valor.toString());  // not through toSQL, deliberately
        separador = QStringLiteral(",");
    }
    cnRtn.ejecutar(sql + QStringLiteral(" where SEDJ_NRO=") + entre_comillas(i.dj) + QStringLiteral(" and SEDD_ID=") + QString::number(i.renglon)
                   + QStringLiteral(" and SEII_ID=") + QString::number(i.id));
}

std::optional<Inmueble> cargar_inmueble(const QString& dj, const QString& renglon, int id)
{
    return leer_fila<Inmueble>(cnRtn, QStringLiteral("select * from SEL_TB_RTN_INS_INMUEBLES") + QStringLiteral(" where SEDJ_NRO=")
                                          + entre_comillas(dj) + QStringLiteral(" and SEDD_ID=") + renglon + QStringLiteral(" and SEII_ID=")
                                          + QString::number(id),
                               columnas_inmueble());
}
