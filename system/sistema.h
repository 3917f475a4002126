// SPDX-License-Identifier: GPL-3.0-or-later
// What the program asks of the system about files, alike on each. Plain C++: the packer asks it too. Paths and
// arguments are UTF-8. What fails gives false, -1 or nothing, with the reason in `errno`.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace sistema {

/// How a file is opened. One that is made is for the user alone, whatever the umask; none is handed to other programs.
enum class Apertura {
    leer,
    escribir,  ///< to read too; it must be there
    crear,     ///< the same, made when it is not there
    nuevo      ///< the same; it must not be there
};

/// What tells a file from all others that are there, whatever its names are.
struct Identidad
{
    uint64_t disco = 0;
    uint64_t archivo = 0;
    bool operator==(const Identidad&) const = default;
};

/// What the system says of an open file.
struct Ficha
{
    bool regular = false;  ///< a file, and neither a folder nor a device
    uint64_t largo = 0;
    int64_t modificado = 0;  ///< seconds since 1970
    uint32_t permisos = 0;   ///< a mode of Unix
};

/// A descriptor, or -1.
[[nodiscard]] int abrir(const std::string& ruta, Apertura como);
bool cerrar(int archivo);
/// Bytes read, 0 at the end, -1.
[[nodiscard]] int64_t leer(int archivo, void* donde, size_t cuantos);
/// Bytes written, -1.
[[nodiscard]] int64_t escribir(int archivo, const void* que, size_t cuantos);
[[nodiscard]] bool ir(int archivo, uint64_t lugar);
/// Ends the file there.
[[nodiscard]] bool recortar(int archivo, uint64_t largo);
/// To the disk, before the call ends.
[[nodiscard]] bool asegurar(int archivo);
[[nodiscard]] std::optional<Ficha> ficha(int archivo);
[[nodiscard]] std::optional<Identidad> identidad(int archivo);
[[nodiscard]] std::optional<Identidad> identidad(const std::string& ruta);
/// Keeps the file from other processes that ask so too, until it is closed; its bytes can be read by all. Without
/// `esperar` a file that another one keeps gives EWOULDBLOCK.
[[nodiscard]] bool trabar(int archivo, bool esperar);
/// For the user alone, where the file system keeps modes.
void solo_del_usuario(int archivo);

/// Whether a file can be replaced while it is open.
#ifdef _WIN32
constexpr bool SE_REEMPLAZA_ABIERTO = false;
#else
constexpr bool SE_REEMPLAZA_ABIERTO = true;
#endif

/// Gives a file another name, in the place of what has it. Where a file that is open can't be replaced it is tried again
/// for a while; then EBUSY.
[[nodiscard]] bool renombrar(const std::string& de, const std::string& a);
/// Deletes a file, a write-protected one too; tried again as above.
bool borrar(const std::string& ruta);
/// A second name for a file.
[[nodiscard]] bool otro_nombre(const std::string& de, const std::string& a);
/// What is behind the last separator of a path.
[[nodiscard]] std::string nombre_sin_camino(const std::string& ruta);
/// Whether something has that name.
[[nodiscard]] bool existe(const std::string& ruta);
/// Makes a folder for the user alone, or narrows the one that stands there, where its owner lets it be narrowed. Gives
/// whether it was made; nothing with ENOTDIR where a file has that name, or why it can't be made.
[[nodiscard]] std::optional<bool> carpeta_privada(const std::string& ruta);
/// The entries of a folder to the disk, where its file system can.
[[nodiscard]] bool asegurar_carpeta(const std::string& ruta);

/// The arguments of `main` behind the program's name.
[[nodiscard]] std::vector<std::string> argumentos(int argc, char** argv);
/// Standard output and error take UTF-8 and end their lines by LF alone; who does not listen any more ends nothing.
void preparar_salidas();

}  // namespace sistema
