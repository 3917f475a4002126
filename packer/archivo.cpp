// SPDX-License-Identifier: GPL-3.0-or-later

#include "archivo.h"

#include "core/motivo_sistema.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <stdexcept>

namespace {
constexpr mode_t SOLO_DEL_USUARIO = 0600;
}

Archivo::Archivo(std::string ruta, int modo)
    : ruta_(std::move(ruta)), fd_(open(ruta_.c_str(), modo | O_CLOEXEC, SOLO_DEL_USUARIO))
{
    if (fd_ < 0)
        fallar("no se puede abrir");
    if (modo & O_CREAT)
        soloDelUsuario();
}

Archivo::~Archivo()
{
    close(fd_);
}

void Archivo::fallar(const char* que) const
{
    throw std::runtime_error(ruta_ + ": " + que + " (" + motivo_del_sistema(errno) + ")");
}

size_t Archivo::leer(void* donde, size_t cuantos)
{
    size_t leidos = 0;
    while (leidos < cuantos) {
        const ssize_t n = read(fd_, static_cast<char*>(donde) + leidos, cuantos - leidos);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            fallar("no se puede leer");
        if (n == 0)
            break;
        leidos += size_t(n);
    }
    lugar_ += leidos;
    return leidos;
}

void Archivo::escribir(const void* que, size_t cuantos)
{
    size_t escritos = 0;
    while (escritos < cuantos) {
        const ssize_t n = write(fd_, static_cast<const char*>(que) + escritos, cuantos - escritos);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            fallar("no se puede escribir");
        escritos += size_t(n);
    }
    lugar_ += escritos;
}

void Archivo::ir(uint64_t lugar)
{
    if (lseek(fd_, off_t(lugar), SEEK_SET) < 0)
        fallar("no se puede recorrer");
    lugar_ = lugar;
}

uint64_t Archivo::largo() const
{
    struct stat s;
    if (fstat(fd_, &s) != 0 || !S_ISREG(s.st_mode))
        fallar("no es un archivo");
    return uint64_t(s.st_size);
}

uint32_t Archivo::modificado() const
{
    struct stat s;
    return fstat(fd_, &s) == 0 ? uint32_t(s.st_mtime) : 0;
}

uint32_t Archivo::permisos() const
{
    struct stat s;
    return fstat(fd_, &s) == 0 ? uint32_t(s.st_mode) : uint32_t(S_IFREG | 0644);
}

void Archivo::asegurar()
{
    if (fsync(fd_) != 0)
        fallar("no se puede escribir");
}

void Archivo::recortar()
{
    if (ftruncate(fd_, off_t(lugar_)) != 0)
        fallar("no se puede escribir");
}

// Some file systems know no locks; there the user's own care has to do.
void Archivo::trabar()
{
    while (flock(fd_, LOCK_EX) != 0 && errno == EINTR)
        continue;
}

bool Archivo::es(const std::string& ruta) const
{
    struct stat esta, otra;
    return fstat(fd_, &esta) == 0 && stat(ruta.c_str(), &otra) == 0 && esta.st_dev == otra.st_dev
           && esta.st_ino == otra.st_ino;
}

// A stick may keep no modes: that one can't be set is no failure.
void Archivo::soloDelUsuario()
{
    (void)fchmod(fd_, SOLO_DEL_USUARIO);
}
