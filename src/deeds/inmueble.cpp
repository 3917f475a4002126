// SPDX-License-Identifier: GPL-3.0-or-later

#include "deeds/inmueble.h"

#include "core/asignaciones.h"
#include "core/modGlobales.h"
#include "core/modUtiles.h"

using namespace Qt::StringLiterals;

Entradas caracteres_ubicacion()
{
    return leer_entradas(u"select * from GLB_TB_TIPOS_UBICACION order by GTUB_ID"_s, "GTUB_DESCRIPCION", "GTUB_ID");
}

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
    Asignaciones fila;
    for (const Columna<Inmueble>& c : columnas_inmueble()) {
        const std::string_view nombre(c.nombre);
        if (nombre == "SEDJ_NRO" || nombre == "SEDD_ID" || nombre == "SEII_ID")
            continue;
        if (nombre == "SEII_VAL_FISCAL")
            fila << Asignacion{c.nombre, valFiscalSQL};
        else if (nombre == "GTUB_ID")
            fila << Asignacion{c.nombre, i.caracter ? QString::number(*i.caracter) : QString()};
        else
            fila << Asignacion{c.nombre, texto_o_null(toSQL(i.*std::get<QString Inmueble::*>(c.campo)))};
    }
    cnRtn.ejecutar(u"update SEL_TB_RTN_INS_INMUEBLES set  %1 where SEDJ_NRO='%2' and SEDD_ID=%3 and SEII_ID=%4"_s.arg(
        asignar_sql(fila), i.dj, QString::number(i.renglon), QString::number(i.id)));
}

std::optional<Inmueble> cargar_inmueble(const QString& dj, const QString& renglon, int id)
{
    return leer_fila<Inmueble>(
        cnRtn,
        u"select * from SEL_TB_RTN_INS_INMUEBLES where SEDJ_NRO='%1' and SEDD_ID=%2 and SEII_ID=%3"_s.arg(
            dj, renglon, QString::number(id)),
        columnas_inmueble());
}
