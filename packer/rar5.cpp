// SPDX-License-Identifier: GPL-3.0-or-later

#include "rar5.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <stdexcept>

namespace {
constexpr size_t BLOQUE = 1 << 20;
}

std::vector<EntradaRar> listar_rar(const std::string& archivo)
{
    Archivo a(archivo, sistema::Apertura::leer);
    unsigned char firma[sizeof FIRMA_RAR] = {};
    if (a.leer(firma, sizeof firma) != sizeof firma || std::memcmp(firma, FIRMA_RAR, sizeof firma) != 0)
        throw std::runtime_error(archivo + ": no es un archivo RAR 5");
    std::vector<EntradaRar> entradas;
    while (true) {
        const CabeceraRar c = leer_cabecera(a);
        if (c.tipo == TipoRar::fin)
            return entradas;
        if (c.tipo == TipoRar::archivo && !c.carpeta)
            entradas.push_back(c.entrada);
    }
}

bool leer_entrada(const std::string& archivo, const EntradaRar& entrada,
                  const std::function<void(const char*, size_t)>& bloque)
{
    if (!entrada.guardada)
        throw std::runtime_error(archivo + ": " + entrada.nombre + " está comprimido");
    Archivo a(archivo, sistema::Apertura::leer);
    a.ir(entrada.datos);
    const auto bufer = std::make_unique<char[]>(BLOQUE);
    uint32_t crc = 0;
    for (uint64_t quedan = entrada.almacenado; quedan > 0;) {
        const size_t parte = size_t(std::min<uint64_t>(quedan, BLOQUE));
        if (a.leer(bufer.get(), parte) != parte)
            return false;
        crc = crc_de(bufer.get(), parte, crc);
        bloque(bufer.get(), parte);
        quedan -= parte;
    }
    return !entrada.conCrc || crc == entrada.crc;
}
