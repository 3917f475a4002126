// SPDX-License-Identifier: GPL-3.0-or-later
// The records of the return file. One row a field, in the order of the file: name, width, form.
#pragma once

#include <QString>

#include <span>

/// How a column's value becomes characters.
enum class Clase {
    cifras,        ///< whole number with leading zeros; halves away from zero
    texto,         ///< the stored text, then blanks; the blanks are counted on the stored text
    recortado,     ///< the stored text, then blanks; the blanks are counted on the trimmed text
    contenido,     ///< the trimmed text, then blanks
    talCual,       ///< the value as it stands
    siNo,          ///< "S" when true, else "N"
    primeraLetra,  ///< the first character, a blank without one
    cerosDelante,  ///< the text with "0" put in front
    hastaElAncho,  ///< the whole text; blanks only count on its first characters
    leyExencion,   ///< "LEY EXENCION:" and the number, then blanks
    literal,       ///< the name of the field is what is written
};

struct Forma
{
    Clase clase;
    int factor = 1;              ///< what the value is multiplied by before it is rounded
    const char* nulo = nullptr;  ///< what a null writes, when it is not the form's own
    bool nuloEsFalla = false;
    bool soloNoAlcanzada = false;  ///< counts as null unless the deed is not reached and has a reason

    [[nodiscard]] constexpr Forma por(int f) const
    {
        Forma c = *this;
        c.factor = f;
        return c;
    }
    [[nodiscard]] constexpr Forma siNulo(const char* texto) const
    {
        Forma c = *this;
        c.nulo = texto;
        return c;
    }
    [[nodiscard]] constexpr Forma obligatorio() const
    {
        Forma c = *this;
        c.nuloEsFalla = true;
        return c;
    }
    [[nodiscard]] constexpr Forma soloSinAlcance() const
    {
        Forma c = *this;
        c.soloNoAlcanzada = true;
        return c;
    }
};

constexpr Forma cifras()
{
    return {Clase::cifras};
}
constexpr Forma texto()
{
    return {Clase::texto};
}
constexpr Forma textoRecortado()
{
    return {Clase::recortado};
}
constexpr Forma talCual()
{
    return {Clase::talCual};
}

struct CampoRegistro
{
    const char* nombre;  ///< source column
    int ancho;
    Forma forma;
};

struct Registro
{
    char tipo;
    const char* titulo;           ///< how messages call it
    const char* consultaAntes;    ///< the statement up to the DJ's number
    const char* consultaDespues;  ///< and behind it
    std::span<const CampoRegistro> campos;
    bool saltoEnCodigo = false;  ///< the integrity code takes CR LF behind the record

    /// Characters of the record without its type, as far as they are fixed.
    [[nodiscard]] int ancho() const;
    [[nodiscard]] QString consulta(const QString& nro) const;
};

/// The eight records in the order of the file.
[[nodiscard]] std::span<const Registro> registros();

/// Characters that the return takes of a text, by its column; throws std::out_of_range for one that is no text of it.
[[nodiscard]] int ancho_emitido(const char* columna);

/// What stands around the text of a testimonio in record 8.
constexpr const char* MARCA_INICIO = "<_d59fb4af70161c458a82b02558160ca6_tag_ini_tes>";
constexpr const char* MARCA_FIN = "<_d59fb4af70161c458a82b02558160ca6_tag_fin_tes>";
