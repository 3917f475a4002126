// SPDX-License-Identifier: GPL-3.0-or-later
// Texts of the return file: one byte a character in Windows-1252.
#pragma once

#include <QString>

#include <string>
#include <string_view>

/// A piece of a record twice: as the bytes of the file, and as the bytes that the integrity code
/// takes, the low byte of each character's code. They differ only outside Latin-1.
struct Piezas
{
    std::string archivo;
    std::string codigo;

    void limpiar();
    /// Appends plain ASCII.
    void ascii(std::string_view texto);
    void repetir(char c, qsizetype veces);
    /// Appends a text in UTF-8; gives its length in 16-bit characters. A character outside the
    /// code page is "?" in the file.
    qsizetype utf8(std::string_view texto);
};

/// The byte of a character in Windows-1252, '?' when it has none.
[[nodiscard]] char byte_ansi(char16_t c);
/// The character of a byte of the file.
[[nodiscard]] char16_t caracter_ansi(unsigned char byte);
/// A text of the file as it reads.
[[nodiscard]] QString texto_ansi(std::string_view bytes);

/// Without the blanks at its ends; no other white space counts.
[[nodiscard]] inline std::string_view recortar(std::string_view texto)
{
    const auto desde = texto.find_first_not_of(' ');
    return desde == std::string_view::npos ? std::string_view()
                                           : texto.substr(desde, texto.find_last_not_of(' ') - desde + 1);
}
