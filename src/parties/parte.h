// SPDX-License-Identifier: GPL-3.0-or-later
// A party of a deed: what identifies it, its checks, and whether it stands twice.
#pragma once

#include "core/dialogo.h"
#include "core/numero.h"
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
    int codigoPais = -1;         ///< index, -1 without a selection
    QString codigoPaisTexto;     ///< "PAÍS - Persona (código)"
    int tipoSociedad = 0;        ///< item data, 0 without a selection
    QString tipoSociedadTexto;   ///< the description, and the CUIT digit at position 201
    std::optional<int> tipoDoc;  ///< item data
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
    int provincia = 0, localidad = 0;  ///< item data, 0 when the text is no item
    bool rolActivo = false;
    bool rolElegido = false;

    [[nodiscard]] bool es(QStringView tipo) const { return tipoDocTexto.toUpper() == tipo; }
    [[nodiscard]] bool esCuitOCuil() const { return es(u"CUIT") || es(u"CUIL"); }
    /// The number of the document for the type chosen.
    [[nodiscard]] QString numero() const { return es(u"PASAPORTE") ? pasaporte : nroDoc.toSQL(); }
};

constexpr int POSICION_DIGITO_CUIT = 200;

/// The type of company, without the digit that its entry carries.
[[nodiscard]] QString nombre_sociedad(const QString& entrada);
/// Whether the number of a field passes the CUIT check.
[[nodiscard]] bool es_cuit(const Numero& nro);

/// Trims the texts; gives the first thing wrong.
[[nodiscard]] std::optional<Falla> validar_parte(ControlesParte& c);

/// Whether no other party of the deed stands for the same person, or the user goes on.
[[nodiscard]] bool verificar_colision_partes(const ControlesParte& c, Dialogo& dialogo);

/// The row that the screen stands for.
[[nodiscard]] Parte parte_de(const ControlesParte& c);
/// Throws ErrorAlmacen.
void modificar_parte(const ControlesParte& c);
[[nodiscard]] std::optional<Parte> cargar_parte(const QString& dj, const QString& renglon, int id);
