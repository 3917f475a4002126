// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/revisar_valores.h"

#include <algorithm>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

struct Dominio
{
    char tipo;
    const char* campo;
    const char* letras;
};
// What a field of one letter may hold.
constexpr Dominio DOMINIOS[] = {{'1', "SEDJ_ESTADO", "01"},
                                {'2', "SEDD_ESTADO", "PNE"},
                                {'2', "SEDD_ALCANZADO", "SN"},
                                {'3', "SPIN_NACIONALIDAD", "AE"}};

void revisar_largo(const RegistroLeido& r, AnotadorFallas& fallas)
{
    const auto previsto = int(r.previsto);
    if (!r.dudoso && r.bytes.size() == r.previsto)
        return;
    if (r.dudoso)
        fallas.rareza(r, "", r.bytes.size(), previsto);
    else
        for (size_t i = 0; i < r.registro->campos.size(); ++i)
            if (const CampoRegistro& c = r.registro->campos[i]; int(r.campos[i].size()) != c.ancho)
                fallas.rareza(r, c.nombre, r.campos[i].size(), c.ancho);
    if (!fallas.cabenAvisos())
        return;
    const QString mensaje = r.dudoso ? u"no se puede saber qué campo falta o sobra (largo %1, previsto %2)"_s
                                     : u"el registro tiene otro largo (%1, previsto %2)"_s;
    fallas.aviso({r.linea, 1, {}, {}, mensaje.arg(r.bytes.size()).arg(previsto)});
}

void revisar_control(const RegistroLeido& r, AnotadorFallas& fallas)
{
    // The least byte of all, rather than the first that is one: the compiler takes many at a time.
    unsigned char menor = 0xff;
    for (const char c : r.bytes)
        menor = std::min(menor, static_cast<unsigned char>(c));
    if (menor < 0x20)
        fallas.falla({r.linea, 1, {}, {}, u"hay un carácter de control en el registro"_s});
}

}  // namespace

void revisar_valores(const RegistroLeido& r, AnotadorFallas& fallas)
{
    // The text of a testimonio is of any length and holds what it holds.
    if (r.registro->tipo != '8') {
        revisar_largo(r, fallas);
        revisar_control(r, fallas);
    }
    for (const Dominio& d : DOMINIOS)
        if (const std::string_view v = d.tipo == r.registro->tipo ? r.campo(d.campo) : std::string_view();
            v.size() == 1 && !std::strchr(d.letras, v.front()))
            fallas.valor(r, d.campo, u"el valor no es de los que admite el campo"_s);
}
