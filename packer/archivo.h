// SPDX-License-Identifier: GPL-3.0-or-later
// A file by its descriptor; every failure throws std::runtime_error with the file's name.
#pragma once

#include "system/sistema.h"

#include <cstdint>
#include <string>

class Archivo
{
public:
    Archivo(std::string ruta, sistema::Apertura como);
    ~Archivo();
    Archivo(const Archivo&) = delete;
    Archivo& operator=(const Archivo&) = delete;

    /// Bytes read, fewer than asked for at the end alone.
    size_t leer(void* donde, size_t cuantos);
    void escribir(const void* que, size_t cuantos);
    void ir(uint64_t lugar);
    [[nodiscard]] uint64_t lugar() const { return lugar_; }
    [[nodiscard]] uint64_t largo() const { return ficha().largo; }
    /// Throws for what is no file, too.
    [[nodiscard]] sistema::Ficha ficha() const;
    /// To the disk, before a rename makes it count.
    void asegurar();
    /// Ends the file at its place.
    void recortar();
    /// Waits until no other process has it so, and keeps it until it is closed.
    void trabar();
    /// Whether this name is that of the open file.
    [[nodiscard]] bool es(const std::string& ruta) const;
    /// For the user alone, where the file system keeps modes.
    void soloDelUsuario();
    [[nodiscard]] const std::string& ruta() const { return ruta_; }

private:
    [[noreturn]] void fallar(const char* que) const;

    std::string ruta_;
    int fd_;
    uint64_t lugar_ = 0;
};
