// SPDX-License-Identifier: GPL-3.0-or-later

#include "archivo.h"

#include "system/motivo_sistema.h"

#include <cerrno>
#include <stdexcept>

Archivo::Archivo(std::string ruta, sistema::Apertura como) : ruta_(std::move(ruta)), fd_(sistema::abrir(ruta_, como))
{
    if (fd_ < 0)
        fallar("no se puede abrir");
}

Archivo::~Archivo()
{
    sistema::cerrar(fd_);
}

void Archivo::fallar(const char* que) const
{
    throw std::runtime_error(ruta_ + ": " + que + " (" + motivo_del_sistema(errno) + ")");
}

size_t Archivo::leer(void* donde, size_t cuantos)
{
    size_t leidos = 0;
    while (leidos < cuantos) {
        const int64_t n = sistema::leer(fd_, static_cast<char*>(donde) + leidos, cuantos - leidos);
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
        const int64_t n = sistema::escribir(fd_, static_cast<const char*>(que) + escritos, cuantos - escritos);
        if (n <= 0)
            fallar("no se puede escribir");
        escritos += size_t(n);
    }
    lugar_ += escritos;
}

void Archivo::ir(uint64_t lugar)
{
    if (!sistema::ir(fd_, lugar))
        fallar("no se puede recorrer");
    lugar_ = lugar;
}

sistema::Ficha Archivo::ficha() const
{
    const auto f = sistema::ficha(fd_);
    if (!f || !f->regular)
        fallar("no es un archivo");
    return *f;
}

void Archivo::asegurar()
{
    if (!sistema::asegurar(fd_))
        fallar("no se puede escribir");
}

void Archivo::recortar()
{
    if (!sistema::recortar(fd_, lugar_))
        fallar("no se puede escribir");
}

// Some file systems know no locks; there the user's own care has to do.
void Archivo::trabar()
{
    (void)sistema::trabar(fd_, true);
}

bool Archivo::es(const std::string& ruta) const
{
    const auto este = sistema::identidad(fd_);
    return este && este == sistema::identidad(ruta);
}

void Archivo::soloDelUsuario()
{
    sistema::solo_del_usuario(fd_);
}
