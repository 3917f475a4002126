// SPDX-License-Identifier: GPL-3.0-or-later
// One deed of a DJ: its checks, among them against the other deeds, and its row.
#pragma once

#include "core/dialogo.h"
#include "core/listas.h"
#include "core/numero.h"
#include "tree/arbol_dj.h"
#include "tree/renglon.h"

/// State of a deed, in the order of its list.
enum class EstadoEscritura { paso = 0, errose = 1, noPaso = 2 };

/// "P", "E" or "N" of an index of the list of states.
[[nodiscard]] QString letra_estado(int indice);
/// Entries of the list of states: the caption, blanks up to 50 characters, the letter.
[[nodiscard]] QStringList lista_estados();
/// Why a deed may be not reached, in the order of its list. Throws ErrorAlmacen.
[[nodiscard]] Entradas motivos_no_alcanzado();
/// Whether this name of a reason asks for words of its own.
[[nodiscard]] bool es_otro_motivo(const QString& motivo);

/// What a deed's screen knows of its DJ.
struct DatosDJ
{
    QString nro;
    QString anio;
    int mes = 0;
    QString agente;  ///< name of the withholding agent
};

/// The deed as the screen holds it.
struct ControlesEscritura
{
    Modo operacion = Modo::nuevo;
    QString titulo;  ///< caption of the form
    QString dj;
    QString renglon;  ///< empty while the row does not exist
    int anio = 0;     ///< of the DJ
    int mes = 0;
    QString nro;
    QString folio;
    Numero dia;
    int estado = 0;             ///< index of its list, -1 without a selection
    int alcanzado = 0;          ///< index: 0 reached, 1 not
    std::optional<int> motivo;  ///< item data
    QString motivoTexto;
    QString motivoOtro;
    bool motivoOtroActivo = false;
    QString testimonio;
    QString observaciones;
    Numero totalImpuesto;

    [[nodiscard]] bool noAlcanzado() const { return alcanzado == 1; }
    [[nodiscard]] bool anulada() const { return estado > 0; }
};

/// Whether the deed may be stored, and which control gets the focus. Trims the texts, empties the
/// testimonio of a deed that did not pass, and turns the deed to ERROSE when the user says so.
struct ResultadoEscritura
{
    bool vale = false;
    QString foco;
};
[[nodiscard]] ResultadoEscritura validar_escritura(ControlesEscritura& c, Dialogo& dialogo);

/// Whether this deed must have a file. Throws ErrorAlmacen.
[[nodiscard]] bool requiere_testimonio(const ControlesEscritura& c);

/// The row that a new deed becomes.
[[nodiscard]] Escritura escritura_nueva(const ControlesEscritura& c);
/// Writes the deed's fields to its row; gives the rows affected. Throws ErrorAlmacen.
int actualizar_escritura(const ControlesEscritura& c);
/// Annuls the deed under the letter of a state. Throws ErrorAlmacen.
void anular_escritura(const RenglonDJ& r, const QString& estado);
/// Takes an annulment back and adds the deed's tax, in SQL form, to the DJ. Throws ErrorAlmacen.
void desanular_escritura(const RenglonDJ& r, const QString& impuesto);
/// The deed of a renglón, or nothing. Throws ErrorAlmacen.
[[nodiscard]] std::optional<Escritura> cargar_escritura(const QString& dj, int renglon);
