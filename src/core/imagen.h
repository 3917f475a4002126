// SPDX-License-Identifier: GPL-3.0-or-later
// The store's file as it is on the disk, read while nobody can change it.
#pragma once

#include "core/conexion.h"

#include <functional>

/// Told how far a long work is, in bytes of `total`; false ends it. It must not throw.
using Progreso = std::function<bool(qint64 hecho, qint64 total)>;

/// The bytes of an open store under a read transaction: one whole state, of the pages as they are encrypted on the
/// disk. They are read by the connection's own handle, as the system would drop the engine's locks with any other
/// handle of the process that closes the file.
class Imagen
{
public:
    /// Begins the transaction, which lasts as long as the object. Throws ErrorAlmacen, also inside of a transaction.
    explicit Imagen(Conexion& cn);
    ~Imagen();
    Imagen(const Imagen&) = delete;
    Imagen& operator=(const Imagen&) = delete;

    [[nodiscard]] qint64 bytes() const { return bytes_; }
    /// Bytes from a place on, fewer at the end. Throws ErrorAlmacen.
    [[nodiscard]] QByteArray leer(qint64 desde, qint64 cuantos) const;
    /// All bytes in their order, a block at a time. Throws ErrorAlmacen.
    void recorrer(const std::function<void(const QByteArray& bloque)>& ver) const;

private:
    Conexion& cn_;
    qint64 bytes_ = 0;
};
