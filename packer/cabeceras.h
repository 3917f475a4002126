// SPDX-License-Identifier: GPL-3.0-or-later
// Headers of the RAR 5 container: what they are made of, and how they are read.
#pragma once

#include "archivo.h"

#include <cstdint>
#include <string>
#include <vector>

constexpr unsigned char FIRMA_RAR[] = {0x52, 0x61, 0x72, 0x21, 0x1a, 0x07, 0x01, 0x00};

/// One file of an archive.
struct EntradaRar
{
    std::string nombre;       ///< in UTF-8
    uint64_t largo = 0;       ///< bytes of the file
    uint64_t almacenado = 0;  ///< bytes in the archive
    uint32_t modificado = 0;  ///< seconds since 1970
    uint32_t permisos = 0;    ///< as the system that packed it has them
    uint32_t crc = 0;
    bool conCrc = false;
    bool guardada = true;   ///< stored without compression
    bool propia = false;    ///< written by this packer: its header carries `atajos`
    uint64_t cabecera = 0;  ///< where its header begins
    uint64_t datos = 0;     ///< where its data begin
    /// Where the headers of earlier entries begin, see indice.h; 0 for none.
    std::vector<uint64_t> atajos = {};
};

enum class TipoRar : uint64_t { principal = 1, archivo = 2, fin = 5 };

/// One header as it was read; the place of the file is behind its data.
struct CabeceraRar
{
    TipoRar tipo = TipoRar::fin;
    bool carpeta = false;
    EntradaRar entrada = {};  ///< of a file alone
};

/// What an archive begins with.
[[nodiscard]] std::string principio_rar();
/// The header of a stored file.
[[nodiscard]] std::string cabecera_archivo(const EntradaRar& e);

/// The end header that knows where the last entry begins, 0 for none. It always has the same length.
[[nodiscard]] std::string cabecera_fin(uint64_t ultima);
constexpr size_t LARGO_FIN = 20;
/// The end header of an archive without an index.
[[nodiscard]] std::string cabecera_fin_simple();
/// Where the last entry begins, when these bytes are an end header that knows it.
[[nodiscard]] bool leer_fin(const std::string& bytes, uint64_t& ultima);

/// Reads the header at the file's place, and goes behind its data. Throws std::runtime_error on a header whose check
/// does not hold, and where the file ends.
[[nodiscard]] CabeceraRar leer_cabecera(Archivo& a);

/// What is behind the last slash of an entry's name.
[[nodiscard]] std::string nombre_base(const std::string& ruta);
/// CRC-32 of so many bytes, going on from an earlier one.
[[nodiscard]] uint32_t crc_de(const char* datos, size_t largo, uint32_t antes = 0);
