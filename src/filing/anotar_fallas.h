// SPDX-License-Identifier: GPL-3.0-or-later
// Notes what is wrong with the records of a return file, each at its place.
#pragma once

#include "filing/lector_dj.h"

/// Keeps the first thousand of each kind.
class AnotadorFallas
{
public:
    explicit AnotadorFallas(LecturaDJ& lectura) : lectura_(lectura) {}

    void falla(const FallaLectura& f);
    void aviso(const FallaLectura& f);
    /// Whether a notice would still be kept; the text of one that is not need not be made.
    [[nodiscard]] bool cabenAvisos() const;
    /// One more record with a quirk: of a field of its type, or of none.
    void rareza(const RegistroLeido& r, const char* campo, size_t largo, int previsto);
    /// The field, by its place, does not fit in the record.
    void campo(const RegistroLeido& r, size_t campo);
    /// The value of the field can't be.
    void valor(const RegistroLeido& r, const char* campo, const QString& mensaje);

private:
    LecturaDJ& lectura_;
};
