// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/codificacion.h"

#include <algorithm>
#include <array>

namespace {

// Windows-1252 from 0x80 to 0x9f, 0 for the bytes that it does not use; elsewhere it is Latin 1.
// https://www.unicode.org/Public/MAPPINGS/VENDORS/MICSFT/WINDOWS/CP1252.TXT
constexpr unsigned char PRIMERO = 0x80;
constexpr std::array<char16_t, 32> PROPIOS{0x20ac, 0,      0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021,
                                           0x02c6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017d, 0,
                                           0,      0x2018, 0x2019, 0x201c, 0x201d, 0x2022, 0x2013, 0x2014,
                                           0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0,      0x017e, 0x0178};

bool es_propio(char16_t c)
{
    return c >= PRIMERO && c < PRIMERO + PROPIOS.size();
}

}  // namespace

char byte_ansi(char16_t c)
{
    if (c <= 0xff && !es_propio(c))
        return char(c);
    const auto* p = std::find(PROPIOS.begin(), PROPIOS.end(), c);
    return p == PROPIOS.end() ? '?' : char(PRIMERO + (p - PROPIOS.begin()));
}

char16_t caracter_ansi(unsigned char byte)
{
    if (!es_propio(byte))
        return byte;
    const char16_t c = PROPIOS[byte - PRIMERO];
    return c == 0 ? u'?' : c;
}

QString texto_ansi(std::string_view bytes)
{
    QString t;
    t.reserve(qsizetype(bytes.size()));
    for (const char c : bytes)
        t += QChar(caracter_ansi(static_cast<unsigned char>(c)));
    return t;
}

void Piezas::limpiar()
{
    archivo.clear();
    codigo.clear();
}

void Piezas::ascii(std::string_view texto)
{
    archivo.append(texto);
    codigo.append(texto);
}

void Piezas::repetir(char c, qsizetype veces)
{
    archivo.append(size_t(veces), c);
    codigo.append(size_t(veces), c);
}

qsizetype Piezas::utf8(std::string_view texto)
{
    size_t i = 0;
    while (i < texto.size() && static_cast<unsigned char>(texto[i]) < 0x80)
        ++i;
    ascii(texto.substr(0, i));
    if (i == texto.size())
        return qsizetype(i);
    const QString resto = QString::fromUtf8(texto.data() + i, qsizetype(texto.size() - i));
    for (const QChar c : resto) {
        archivo.push_back(c.unicode() < 0x80 ? char(c.unicode()) : byte_ansi(c.unicode()));
        codigo.push_back(char(c.unicode() & 0xff));
    }
    return qsizetype(i) + resto.size();
}
