// SPDX-License-Identifier: GPL-3.0-or-later
// The RAR 5 container as it is published ("RAR 5.0 archive format"): signature, main header, file
// headers with stored data, end header. Nothing is compressed.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

/// One file of an archive.
struct EntradaRar
{
    std::string nombre;       ///< in UTF-8
    uint64_t largo = 0;       ///< bytes of the file
    uint64_t almacenado = 0;  ///< bytes in the archive
    uint32_t modificado = 0;  ///< seconds since 1970
    uint32_t crc = 0;
    bool conCrc = false;
    bool guardada = true;   ///< stored without compression
    uint64_t cabecera = 0;  ///< where its header begins
    uint64_t datos = 0;     ///< where its data begin
};

/// The files of an archive, in their order. Throws std::runtime_error on what is no archive, or on a
/// header whose check does not hold.
[[nodiscard]] std::vector<EntradaRar> listar_rar(const std::string& archivo);

/// Gives the data of an entry in blocks, and checks their CRC at the end; false when it differs.
[[nodiscard]] bool leer_entrada(const std::string& archivo, const EntradaRar& entrada,
                                const std::function<void(const char*, size_t)>& bloque);

/// Creates the archive or adds to it; a file takes the place of an earlier one of the same name.
/// It writes aside and renames: the archive is the earlier one or the new one, whatever happens.
void agregar_rar(const std::string& archivo, const std::vector<std::string>& archivos);
