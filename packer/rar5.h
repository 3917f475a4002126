// SPDX-License-Identifier: GPL-3.0-or-later
// The RAR 5 container as it is published ("RAR 5.0 archive format"): signature, main header, file
// headers with stored data, end header. Nothing is compressed.
#pragma once

#include "cabeceras.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

/// The files of an archive, in their order. Throws std::runtime_error on what is no archive, or on a
/// header whose check does not hold.
[[nodiscard]] std::vector<EntradaRar> listar_rar(const std::string& archivo);

/// Gives the data of an entry in blocks, and checks their CRC at the end; false when it differs.
[[nodiscard]] bool leer_entrada(const std::string& archivo, const EntradaRar& entrada,
                                const std::function<void(const char*, size_t)>& bloque);

/// Told how far a file is: its name, bytes done, bytes in all; the last time with all of them done.
using AvanceRar = std::function<void(const std::string& nombre, uint64_t hechos, uint64_t todos)>;

/// Creates the archive or adds to it, in time that does not grow with the archive; a file takes the place of an earlier
/// one of the same name, and for that, as for an archive of another packer, the archive is written anew and renamed.
/// The archive holds all files of the call or, whatever happens, is the earlier one or holds the first of them; an
/// addition is not brought to the disk. Throws std::runtime_error, also on two files of one name.
void agregar_rar(
    const std::string& archivo, const std::vector<std::string>& archivos,
    const AvanceRar& avance = [](const std::string&, uint64_t, uint64_t) {});
