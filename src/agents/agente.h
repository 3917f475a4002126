// SPDX-License-Identifier: GPL-3.0-or-later
// An agent of the register: a titular and up to two adscriptos.
#pragma once

#include "core/columnas.h"
#include "core/dialogo.h"
#include "core/filas.h"
#include "core/listas.h"

#include <QStringList>

/// The agent as the screen holds it; a CUIT is the text that was typed.
struct Agente
{
    int nroRegNotarial = 0;
    QString titular;
    QString cuit;
    QString domicilio;
    std::optional<int> localidad;
    QString codPostal;
    QString telefono;
    QString email;
    QString adscripto1;
    QString adscripto1Cuit;
    QString adscripto2;
    QString adscripto2Cuit;
};

/// Trims the texts, moves a lone second adscripto up to the first place, and gives the first
/// thing wrong.
[[nodiscard]] std::optional<Falla> validar_agente(Agente& a);

/// False after a failure of the store, which is told.
[[nodiscard]] bool agregar_agente(const Agente& a, const QString& titulo, Dialogo& dialogo);
/// The agent's number is its key and stays, whatever `a` holds.
[[nodiscard]] bool modificar_agente(const Agente& a, int nro, const QString& titulo, Dialogo& dialogo);
/// The agent of this number, or nothing. Throws ErrorAlmacen.
[[nodiscard]] std::optional<Agente> cargar_agente(int nro);
/// Rows deleted; the DJs of the agent are not looked at.
int borrar_agente(int nro);
/// The list by name, one call a row.
void leer_padron(const AgregarFila& fila);

/// The agent as a DJ copies it.
struct DatosAgenteDJ
{
    int nro = 0;
    QString titular, cuit, domicilio, codPostal, telefono, localidadNombre, email, adscripto1, adscripto1Cuit,
        adscripto2, adscripto2Cuit;
    std::optional<int> localidad;
};
/// An agent without a locality is not found.
[[nodiscard]] std::optional<DatosAgenteDJ> datos_agente_dj(int nro);

/// The agents by name, each with its number. A failure of the store is told and gives none.
[[nodiscard]] Entradas agentes_por_nombre(Dialogo& dialogo);
