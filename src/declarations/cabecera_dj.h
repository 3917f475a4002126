// SPDX-License-Identifier: GPL-3.0-or-later
// The header of a DJ: its number, due date, checks, update and totals.
#pragma once

#include "agents/agente.h"
#include "core/dialogo.h"
#include "tree/arbol_dj.h"

/// The header as the screen holds it, before it is a row.
struct ControlesCabecera
{
    QString agenteNro;          ///< text of the agent's number
    std::optional<int> agente;  ///< item data of the agent
    QString anio;
    std::optional<int> mes;
    std::optional<int> secuencia;
    QString observaciones;
};

/// Whether a posición may be declared: June 2006 itself may, a later year even without a month.
[[nodiscard]] bool posicion_admitida(int anio, std::optional<int> mes);
/// CUIT, two digits of the year, month and sequence; "00" for what is not chosen.
[[nodiscard]] QString componer_numero(const QString& cuit, const QString& anio, std::optional<int> mes,
                                      std::optional<int> secuencia);
/// The 15th of the month after the posición, moved off a weekend; holidays are not looked at.
[[nodiscard]] QDate vencimiento_dj(int anio, int mes);

/// Trims the texts and gives the first thing missing.
[[nodiscard]] std::optional<Falla> validar_cabecera(ControlesCabecera& c);

/// "0000/00" from the number and the year of the resolution.
[[nodiscard]] QString componer_resolucion(double numero, double anio);

/// The agent as the header keeps it, with the name of its locality.
[[nodiscard]] DatosAgenteDJ agente_de(const CabeceraDJ& dj, const QString& localidadNombre);
/// Copies the agent into the header.
void copiar_agente(CabeceraDJ& dj, const DatosAgenteDJ& agente);

/// Writes what the screen may change; the titular's columns stay as they were copied. Throws ErrorAlmacen.
void actualizar_cabecera(const CabeceraDJ& dj);
/// The header with its locality's name, or nothing.
[[nodiscard]] std::optional<CabeceraDJ> cargar_dj(const QString& nro, QString& localidad);
/// The tax withheld in a DJ, in pesos; 0 for one that is not stored.
[[nodiscard]] double total_retenido(const QString& nro);

/// Deletes all deeds of a DJ; its total is not touched.
void borrar_escrituras(const QString& nro);
