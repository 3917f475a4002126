// SPDX-License-Identifier: GPL-3.0-or-later
// The lock of a store: one program at a time.
#pragma once

#include <QString>

/// The lock of one store, a file beside it (`vedra_rtn.db.lock`). What counts is the system's own lock on that file,
/// which ends with its process: a file that a crash or a power cut left there, whatever is in it, keeps nobody out, and
/// one that is held is held however old it is. Its text only says who has the store open.
class Candado
{
public:
    Candado() = default;
    ~Candado() { soltar(); }
    Candado(const Candado&) = delete;
    Candado& operator=(const Candado&) = delete;

    /// Takes the lock of the store at the path, whichever way the path is written, and lets go of one held before. A
    /// lock that this object holds already stays. Where the folder takes no file (read-only, full) nobody can hold it,
    /// and it is not taken. Throws ErrorAlmacen, `ocupado()`, with who has it and since when; ErrorDisco when the file
    /// is there and can't be opened.
    void tomar(const QString& almacen);
    /// Removes the file and lets go; nothing happens without a lock.
    void soltar();
    [[nodiscard]] bool tomado() const { return archivo_ >= 0; }

    /// The lock's file of a store; a link to the store and a relative path give the same one.
    [[nodiscard]] static QString ruta_de(const QString& almacen);

private:
    [[nodiscard]] bool sigueAhi() const;

    QString ruta_;
    int archivo_ = -1;
};
