// SPDX-License-Identifier: GPL-3.0-or-later

#include "visible.h"

#include <array>
#include <cstdint>
#include <cstdio>

namespace {

constexpr uint32_t NINGUNO = 0xffffffff;

struct Caracter
{
    uint32_t codigo = NINGUNO;  // NINGUNO for a byte that begins no character
    size_t bytes = 1;
};

// The character that the text begins with.
Caracter primero(std::string_view t)
{
    const auto byte = [t](size_t i) { return static_cast<unsigned char>(t[i]); };
    const unsigned char c = byte(0);
    if (c < 0x80)
        return {c, 1};
    const size_t largo = c >= 0xf0 ? 4 : c >= 0xe0 ? 3 : 2;
    if (c < 0xc2 || c > 0xf4 || largo > t.size())
        return {};
    uint32_t codigo = c & (0xffu >> (largo + 1));
    for (size_t i = 1; i < largo; ++i) {
        if ((byte(i) & 0xc0) != 0x80)
            return {};
        codigo = codigo << 6 | (byte(i) & 0x3fu);
    }
    constexpr std::array<uint32_t, 5> MENOR{0, 0, 0x80, 0x800, 0x10000};
    const bool vale = codigo >= MENOR[largo] && codigo <= 0x10ffff && (codigo < 0xd800 || codigo > 0xdfff);
    return vale ? Caracter{codigo, largo} : Caracter{};
}

bool es_control(uint32_t c)
{
    return c < 0x20 || (c >= 0x7f && c <= 0x9f);
}

// Line and paragraph separators, and the marks, embeddings, overrides and isolates of direction.
bool desordena(uint32_t c)
{
    return c == 0x61c || c == 0x200e || c == 0x200f || (c >= 0x2028 && c <= 0x202e) || (c >= 0x2066 && c <= 0x2069);
}

void poner(std::string& salida, const char* forma, unsigned numero)
{
    std::array<char, 8> cifras{};
    std::snprintf(cifras.data(), cifras.size(), forma, numero);
    salida += cifras.data();
}

}  // namespace

std::string visible(std::string_view texto)
{
    std::string salida;
    while (!texto.empty()) {
        const Caracter c = primero(texto);
        if (c.codigo == NINGUNO || es_control(c.codigo) || desordena(c.codigo))
            for (const char b : texto.substr(0, c.bytes))
                poner(salida, "\\x%02X", static_cast<unsigned char>(b));
        else
            salida += texto.substr(0, c.bytes);
        texto.remove_prefix(c.bytes);
    }
    return salida;
}

std::string visible_json(std::string_view json)
{
    std::string salida;
    while (!json.empty()) {
        const Caracter c = primero(json);
        if (c.codigo != NINGUNO && c.codigo >= 0x7f && (es_control(c.codigo) || desordena(c.codigo)))
            poner(salida, "\\u%04x", c.codigo);
        else
            salida += json.substr(0, c.bytes);
        json.remove_prefix(c.bytes);
    }
    return salida;
}
