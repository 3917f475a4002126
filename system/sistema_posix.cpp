// SPDX-License-Identifier: GPL-3.0-or-later

#include "system/sistema.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>

namespace sistema {

namespace {

constexpr mode_t SOLO_DEL_USUARIO = 0600;
constexpr mode_t CARPETA_DEL_USUARIO = 0700;

std::optional<Identidad> identidad_de(bool bien, const struct stat& s)
{
    return bien ? std::optional(Identidad{uint64_t(s.st_dev), uint64_t(s.st_ino)}) : std::nullopt;
}

}  // namespace

// A stick may keep no modes: that one can't be set is no failure.
int abrir(const std::string& ruta, Apertura como)
{
    constexpr int MODOS[] = {O_RDONLY, O_RDWR, O_RDWR | O_CREAT, O_RDWR | O_CREAT | O_EXCL};
    const int archivo = ::open(ruta.c_str(), MODOS[int(como)] | O_CLOEXEC, SOLO_DEL_USUARIO);
    if (archivo >= 0 && como == Apertura::nuevo)
        solo_del_usuario(archivo);
    return archivo;
}

bool cerrar(int archivo)
{
    return ::close(archivo) == 0 || errno == EINTR;
}

int64_t leer(int archivo, void* donde, size_t cuantos)
{
    while (true)
        if (const ssize_t n = ::read(archivo, donde, cuantos); n >= 0 || errno != EINTR)
            return n;
}

int64_t escribir(int archivo, const void* que, size_t cuantos)
{
    while (true)
        if (const ssize_t n = ::write(archivo, que, cuantos); n >= 0 || errno != EINTR)
            return n;
}

bool ir(int archivo, uint64_t lugar)
{
    return ::lseek(archivo, off_t(lugar), SEEK_SET) >= 0;
}

bool recortar(int archivo, uint64_t largo)
{
    return ::ftruncate(archivo, off_t(largo)) == 0;
}

bool asegurar(int archivo)
{
    return ::fsync(archivo) == 0;
}

std::optional<Ficha> ficha(int archivo)
{
    struct stat s = {};
    if (::fstat(archivo, &s) != 0)
        return std::nullopt;
    return Ficha{S_ISREG(s.st_mode), uint64_t(s.st_size), int64_t(s.st_mtime), uint32_t(s.st_mode)};
}

std::optional<Identidad> identidad(int archivo)
{
    struct stat s = {};
    return identidad_de(::fstat(archivo, &s) == 0, s);
}

std::optional<Identidad> identidad(const std::string& ruta)
{
    struct stat s = {};
    return identidad_de(::stat(ruta.c_str(), &s) == 0, s);
}

bool trabar(int archivo, bool esperar)
{
    int resultado = -1;
    do
        resultado = ::flock(archivo, LOCK_EX | (esperar ? 0 : LOCK_NB));
    while (resultado != 0 && errno == EINTR);
    return resultado == 0;
}

void solo_del_usuario(int archivo)
{
    (void)::fchmod(archivo, SOLO_DEL_USUARIO);
}

bool renombrar(const std::string& de, const std::string& a)
{
    return std::rename(de.c_str(), a.c_str()) == 0;
}

bool borrar(const std::string& ruta)
{
    return ::unlink(ruta.c_str()) == 0;
}

bool otro_nombre(const std::string& de, const std::string& a)
{
    return ::link(de.c_str(), a.c_str()) == 0;
}

std::string nombre_sin_camino(const std::string& ruta)
{
    return ruta.substr(ruta.rfind('/') + 1);
}

bool existe(const std::string& ruta)
{
    struct stat s = {};
    return ::lstat(ruta.c_str(), &s) == 0;
}

std::optional<bool> carpeta_privada(const std::string& ruta)
{
    const bool nueva = ::mkdir(ruta.c_str(), CARPETA_DEL_USUARIO) == 0;
    const int falla = errno;
    struct stat s = {};
    if (!nueva && (falla != EEXIST || ::stat(ruta.c_str(), &s) != 0 || !S_ISDIR(s.st_mode))) {
        errno = falla == EEXIST ? ENOTDIR : falla;
        return std::nullopt;
    }
    if (nueva || (s.st_mode & 07777) != CARPETA_DEL_USUARIO)
        (void)::chmod(ruta.c_str(), CARPETA_DEL_USUARIO);
    return nueva;
}

// One that may be written but not listed can't be asked, and some file systems know no such call.
bool asegurar_carpeta(const std::string& ruta)
{
    const int carpeta = ::open(ruta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (carpeta < 0)
        return errno == EACCES;
    const int falla = ::fsync(carpeta) != 0 && errno != EINVAL && errno != ENOTSUP ? errno : 0;
    ::close(carpeta);
    errno = falla;
    return falla == 0;
}

std::vector<std::string> argumentos(int argc, char** argv)
{
    return {argv + (argc > 0 ? 1 : 0), argv + argc};
}

void preparar_salidas()
{
    std::signal(SIGPIPE, SIG_IGN);
}

}  // namespace sistema
