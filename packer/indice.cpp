// SPDX-License-Identifier: GPL-3.0-or-later

#include "indice.h"

#include <bit>
#include <stdexcept>

namespace {

// FNV-1a, and a last mixing, as near names differ in the low bits of that alone.
uint64_t resumen(const std::string& nombre)
{
    uint64_t h = 0xcbf29ce484222325;
    for (const char c : nombre) {
        h ^= static_cast<unsigned char>(c);
        h *= 0x100000001b3;
    }
    h ^= h >> 32;
    h *= 0xd6e8feb86659fd93;
    return h ^ (h >> 32);
}

// By all headers, from the first one to the end header.
std::optional<IndiceRar> recorrer(Archivo& a)
{
    a.ir(sizeof FIRMA_RAR);
    uint64_t fin = 0;
    do
        fin = a.lugar();
    while (leer_cabecera(a).tipo != TipoRar::fin);
    std::string bytes(LARGO_FIN, '\0');
    a.ir(fin);
    IndiceRar indice{0, fin};
    if (a.leer(bytes.data(), bytes.size()) != bytes.size() || !leer_fin(bytes, indice.ultima))
        return {};
    return indice;
}

// From the last bytes alone.
std::optional<IndiceRar> mirar_el_fin(Archivo& a)
{
    const uint64_t largo = a.largo();
    if (largo < LARGO_FIN)
        return {};
    IndiceRar indice;
    indice.fin = largo - LARGO_FIN;
    std::string bytes(LARGO_FIN, '\0');
    a.ir(indice.fin);
    if (a.leer(bytes.data(), bytes.size()) != bytes.size() || !leer_fin(bytes, indice.ultima))
        return {};
    if (indice.ultima == 0)
        return indice.fin == principio_rar().size() ? std::optional(indice) : std::nullopt;
    // What a killed call left behind an earlier end may end with that of a packed archive: the newest entry's data
    // reach to this end, or it is none.
    a.ir(indice.ultima);
    const CabeceraRar c = leer_cabecera(a);
    return c.tipo == TipoRar::archivo && c.entrada.propia && a.lugar() == indice.fin ? std::optional(indice)
                                                                                     : std::nullopt;
}

// A header that can't be read where one is looked for is none.
template <class Busca>
std::optional<IndiceRar> sin_falla(Busca busca)
{
    try {
        return busca();
    } catch (const std::runtime_error&) {
        return {};
    }
}

}  // namespace

std::optional<IndiceRar> leer_indice(Archivo& a)
{
    if (const auto indice = sin_falla([&] { return mirar_el_fin(a); }))
        return indice;
    const auto indice = sin_falla([&] { return recorrer(a); });
    if (indice) {
        a.ir(indice->fin + LARGO_FIN);
        a.recortar();
    }
    return indice;
}

std::optional<BusquedaRar> buscar_rar(Archivo& a, const IndiceRar& indice, const std::string& nombre)
{
    BusquedaRar b;
    const uint64_t buscado = resumen(nombre);
    for (uint64_t lugar = indice.ultima; lugar != 0;) {
        a.ir(lugar);
        const EntradaRar e = leer_cabecera(a).entrada;
        const uint64_t otro = resumen(e.nombre);
        if (otro == buscado) {
            if (e.nombre != nombre)
                return {};
            b.esta = true;
            return b;
        }
        const auto nivel = size_t(std::countl_zero(buscado ^ otro));
        for (size_t i = b.atajos.size(); i < nivel; ++i)
            b.atajos.push_back(i < e.atajos.size() ? e.atajos[i] : 0);
        b.atajos.push_back(lugar);
        const uint64_t sigue = nivel < e.atajos.size() ? e.atajos[nivel] : 0;
        if (sigue >= lugar || b.atajos.size() != nivel + 1)
            throw std::runtime_error(a.ruta() + ": el archivo está dañado");
        lugar = sigue;
    }
    while (!b.atajos.empty() && b.atajos.back() == 0)
        b.atajos.pop_back();
    return b;
}
