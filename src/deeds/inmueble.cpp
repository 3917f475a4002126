// SPDX-License-Identifier: GPL-3.0-or-later

#include "deeds/inmueble.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"

using namespace Qt::StringLiterals;

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
    QString sql = u"update SEL_TB_RTN_INS_INMUEBLES set "_s;
    QString separador;
    for (const Columna<Inmueble>& c : columnas_inmueble()) {
        const std::string_view nombre(c.nombre);
        if (nombre == "SEDJ_NRO" || nombre == "SEDD_ID" || nombre == "SEII_ID")
            continue;
        const QVariant valor = valor_columna(i, c);
        sql += separador + u" "_s + QLatin1String(c.nombre) + u"="_s;
        if (nombre == "SEII_VAL_FISCAL")
            sql += valFiscalSQL;
        else if (nombre == "GTUB_ID")
            sql += valor.toString();
        else
            sql += texto_o_null(valor.toString());  // not through toSQL, deliberately
        separador = u","_s;
    }
    cnRtn.ejecutar(sql + u" where SEDJ_NRO="_s + entre_comillas(i.dj) + u" and SEDD_ID="_s + QString::number(i.renglon)
                   + u" and SEII_ID="_s + QString::number(i.id));
}

std::optional<Inmueble> cargar_inmueble(const QString& dj, const QString& renglon, int id)
{
    return leer_fila<Inmueble>(cnRtn,
                               u"select * from SEL_TB_RTN_INS_INMUEBLES where SEDJ_NRO="_s + entre_comillas(dj)
                                   + u" and SEDD_ID="_s + renglon + u" and SEII_ID="_s + QString::number(id),
                               columnas_inmueble());
}
