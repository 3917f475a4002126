// SPDX-License-Identifier: GPL-3.0-or-later
// A party of a deed: what identifies it, its checks, and whether it stands twice.
#pragma once

#include "core/dialogo.h"
#include "core/numero.h"
#include "parties/listas_parte.h"
#include "tree/arbol_dj.h"

/// The party as the screen holds it.
struct ControlesParte
{
    Modo operacion = Modo::nuevo;
    QString titulo;  ///< caption of the form
    QString dj;
    QString renglon;
    int id = 0;

    bool argentina = false;
    bool extranjera = false;
    int pais = -1;                    ///< index, -1 without a selection
    QString paisTexto;                ///< "PAÍS - Persona (código)"
    std::optional<int> tipoSociedad;  ///< item data
    QString tipoSociedadTexto;        ///< the entry: the name, and the digit of its CUITs
    std::optional<int> tipoDoc;       ///< item data; one of the types is 0
    QString tipoDocTexto;
    Numero nroDoc;
    QString pasaporte;
    bool enTramite = false;  ///< active and ticked
    QString razonSocial;
    bool exento = false;
    bool exentoActivo = false;
    Numero exencionPorc;
    QString domicilio, codPostal, observaciones;
    QString provinciaTexto, localidadTexto;
    std::optional<int> provincia, localidad;  ///< item data, nothing when the text is no item
    bool rolActivo = false;
    bool rolElegido = false;

    [[nodiscard]] bool es(QStringView tipo) const { return tipoDocTexto.toUpper() == tipo; }
    [[nodiscard]] bool esCuitOCuil() const { return es_cuit_o_cuil(tipoDocTexto.toUpper()); }
    [[nodiscard]] bool esPasaporte() const { return es(tipo_documento::PASAPORTE); }
    /// The number of the document for the type chosen.
    [[nodiscard]] QString numero() const { return esPasaporte() ? pasaporte : nroDoc.toSQL(); }
};

/// Whether the number of a field is a CUIT with a right check digit.
[[nodiscard]] bool cuit_valido(const Numero& nro);

/// Trims the texts; gives the first thing wrong.
[[nodiscard]] std::optional<Falla> validar_parte(ControlesParte& c);

/// Whether no other party of the deed stands for the same person, or the user goes on.
[[nodiscard]] bool verificar_colision_partes(const ControlesParte& c, Dialogo& dialogo);

/// The row that the screen stands for.
[[nodiscard]] Parte parte_de(const ControlesParte& c);
/// Writes the row of `c.id`. Throws ErrorAlmacen.
void modificar_parte(const ControlesParte& c);
/// The party with this identifier, or nothing. Throws ErrorAlmacen.
[[nodiscard]] std::optional<Parte> cargar_parte(const QString& dj, const QString& renglon, int id);
