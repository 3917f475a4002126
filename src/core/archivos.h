// SPDX-License-Identifier: GPL-3.0-or-later
// Files that only their owner reads, and that outlive a power cut once they are told to be there.
#pragma once

#include <QByteArray>
#include <QString>

/// A file that is written: made anew and empty, with mode 0600 whatever the umask. Each step throws ErrorAlmacen.
class ArchivoPrivado
{
public:
    explicit ArchivoPrivado(const QString& ruta);
    ~ArchivoPrivado();
    ArchivoPrivado(const ArchivoPrivado&) = delete;
    ArchivoPrivado& operator=(const ArchivoPrivado&) = delete;

    void escribir(const QByteArray& bytes);
    /// What was written is on the disk when this returns.
    void asentar();

private:
    QString ruta_;
    int archivo_ = -1;
};

/// Puts a file in the place of another, or where none is, and has the folder on the disk. Throws ErrorAlmacen.
void poner_en_lugar(const QString& nuevo, const QString& lugar);
/// The names in the folder of that file are on the disk when this returns; folders that know no such thing are let be.
void asentar_carpeta(const QString& archivo);
/// A small file written aside and put in its place. Throws ErrorAlmacen.
void escribir_privado(const QString& ruta, const QByteArray& bytes);
/// Makes the folder with mode 0700, or gives that mode to the one that is there. Throws ErrorAlmacen.
void crear_carpeta_privada(const QString& carpeta);

/// The path of a file without links on its way; the file itself may be missing.
[[nodiscard]] QString ruta_real(const QString& archivo);

/// Throws ErrorAlmacen with what could not be done and why, by the system's last error.
[[noreturn]] void fallar_archivo(const QString& que, const QString& ruta);
