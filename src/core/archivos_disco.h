// SPDX-License-Identifier: GPL-3.0-or-later
// Files that the program makes: for the user alone, whatever the umask, and whole or not at all.
#pragma once

#include "core/motivos.h"

#include <QByteArray>
#include <QString>

#include <exception>
#include <functional>
#include <string_view>

/// What the system refused; the text tells what was tried, with which file, and why, in Spanish.
class ErrorDisco : public ErrorTarea
{
public:
    /// `numero` is a value of errno.
    ErrorDisco(const QString& que, const QString& archivo, int numero);
};

/// Whether a file is on the disk, with its entry in the folder, before the call ends. A working copy need not be.
enum class Asegurar { no, si };

/// A file that is written aside, as NAME.nuevo, with mode 0600, and takes its place when it is whole. What fails
/// throws ErrorDisco and leaves what stands there as it is; what has not taken its place goes with the object.
class ArchivoNuevo
{
public:
    /// Makes the file aside; one that a killed program left there goes.
    explicit ArchivoNuevo(const QString& destino, Asegurar asegurar = Asegurar::si);
    /// The same with a name of its own for the file aside.
    ArchivoNuevo(const QString& destino, Asegurar asegurar, const QString& aparte);
    ~ArchivoNuevo();
    ArchivoNuevo(const ArchivoNuevo&) = delete;
    ArchivoNuevo& operator=(const ArchivoNuevo&) = delete;

    void escribir(std::string_view bytes);
    /// What was written so far goes to the disk, when that is asked for.
    void adelantar();
    /// Nothing more is written; what was written is on the disk when that is asked for.
    void cerrar();
    /// Closes, and takes the place of what stands there.
    void ocupar();
    [[nodiscard]] const QString& aparte() const { return aparte_; }

private:
    QString destino_;
    QString aparte_;
    Asegurar asegurar_;
    int fd_ = -1;
};

/// The step of a replacement that can be undone: the new file takes its place at once, and goes again, the
/// earlier one coming back, unless it is confirmed.
class Sustitucion
{
public:
    /// Throws ErrorDisco, with everything as it was.
    Sustitucion(const QString& nuevo, const QString& destino);
    ~Sustitucion();
    Sustitucion(const Sustitucion&) = delete;
    Sustitucion& operator=(const Sustitucion&) = delete;
    void confirmar();

private:
    void deshacer();

    QString nuevo_;
    QString destino_;
    QString anterior_;  // empty when none stood there
    bool pendiente_ = false;
};

/// Puts a file in the place of another, or where none is, and has the folder on the disk. Throws ErrorDisco.
void poner_en_lugar(const QString& nuevo, const QString& lugar);

/// The path of a file without links on its way; the file itself may be missing.
[[nodiscard]] QString ruta_real(const QString& archivo);

/// Told now and then how many bytes of a copy are done; false ends it.
using Latido = std::function<bool(qint64 hechos)>;
/// A copy that was ended.
struct Interrumpido : std::exception
{
};

/// Copies aside and renames. Throws ErrorDisco when the source can't be read or the copy can't be written, Interrumpido
/// when it is ended.
void copiar_archivo(const QString& de, const QString& a, Asegurar asegurar, const Latido& latido = {});

/// Brings a file to the disk and to another name; a copy when that is in another file system. What stood there stays
/// until the new one is whole. Throws as copiar_archivo does.
void llevar_archivo(const QString& de, const QString& a, const Latido& latido);

/// Deletes a file, a write-protected one too. Throws ErrorDisco, also when there is none.
void borrar_archivo(const QString& archivo);

/// Makes a folder with mode 0700, or narrows the one that stands there, where its owner lets it be narrowed. Its
/// parent must exist. Throws ErrorDisco.
void carpeta_privada(const QString& carpeta);

/// Brings the entries of a folder to the disk, where its file system can. Throws ErrorDisco.
void asegurar_carpeta(const QString& carpeta);
