// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/codificacion.h"

#include <iconv.h>

#include <array>
#include <unordered_map>

namespace {

struct Pagina
{
    std::array<char16_t, 256> aUnicode{};
    std::unordered_map<char16_t, char> aByte;

    Pagina()
    {
        iconv_t cd = iconv_open("UTF-16LE", "WINDOWS-1252");
        for (int i = 0; i < 256; ++i) {
            char entrada = char(i);
            char salida[4] = {};
            char* de = &entrada;
            char* a = salida;
            size_t quedan = 1;
            size_t lugar = sizeof salida;
            aUnicode[size_t(i)] = u'?';
            if (cd != iconv_t(-1) && iconv(cd, &de, &quedan, &a, &lugar) != size_t(-1) && lugar == 2) {
                aUnicode[size_t(i)] = char16_t(static_cast<unsigned char>(salida[0])
                                               | static_cast<unsigned char>(salida[1]) << 8);
                aByte.emplace(aUnicode[size_t(i)], char(i));
            }
        }
        if (cd != iconv_t(-1))
            iconv_close(cd);
    }
};

const Pagina& pagina()
{
    static const Pagina unica;
    return unica;
}

}  // namespace

char byte_ansi(char16_t c)
{
    const auto it = pagina().aByte.find(c);
    return it == pagina().aByte.end() ? '?' : it->second;
}

char16_t caracter_ansi(unsigned char byte)
{
    return pagina().aUnicode[byte];
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
