// SPDX-License-Identifier: GPL-3.0-or-later
// The header of a DJ: its number, due date, checks, update and totals.
#pragma once

#include "core/dialogo.h"
#include "tree/arbol_dj.h"

/// The header as the screen holds it, before it is a row.
struct ControlesCabecera
{
    QString agenteNro;  ///< text of the agent's number
    int agente = 0;     ///< item data of the agent, 0 without a selection
    QString anio;
    int mes = 0;         ///< 0 without a selection
    int secuencia = -1;  ///< -1 without a selection
    QString observaciones;
};

/// Whether a posición may be declared: June 2006 itself may.
[[nodiscard]] bool posicion_admitida(int anio, int mes);
/// CUIT, two digits of the year, month and sequence.
[[nodiscard]] QString componer_numero(const QString& cuit, const QString& anio, int mes, int secuencia);
/// The 15th of the month after the posición, moved off a weekend; holidays are not looked at.
[[nodiscard]] QDate vencimiento_dj(int anio, int mes);

/// Trims the texts and gives the first thing missing.
[[nodiscard]] std::optional<Falla> validar_cabecera(ControlesCabecera& c);

/// "0000/00" from the number and the year of the resolution.
[[nodiscard]] QString componer_resolucion(double numero, double anio);

/// Writes what the screen may change; the titular's columns stay as they were copied.
void actualizar_cabecera(const CabeceraDJ& dj);
/// The header with its locality's name, or nothing.
[[nodiscard]] std::optional<CabeceraDJ> cargar_dj(const QString& nro, QString& localidad);
[[nodiscard]] double total_retenido(const QString& nro);

/// How many deeds a DJ holds.
[[nodiscard]] int cantidad_renglones(const QString& nro);
/// Deletes all deeds of a DJ; its total is not touched.
void borrar_escrituras(const QString& nro);
