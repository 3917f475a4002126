// SPDX-License-Identifier: GPL-3.0-or-later
// The lines of a return file one by one, and the integrity code over them.
#pragma once

#include "filing/codigo_integridad.h"

#include <array>
#include <string>
#include <string_view>

/// One record as it stands in the file.
struct LineaArchivo
{
    std::string_view bytes;  ///< without its line end
    int deMas = 0;           ///< line ends within it
    bool terminada = false;  ///< a line end stands behind it
};

class LineasArchivo
{
public:
    explicit LineasArchivo(std::string_view bytes);

    [[nodiscard]] bool quedan() const { return lugar_ < bytes_.size(); }
    /// The next one; the code takes it.
    [[nodiscard]] LineaArchivo tomar();
    /// The code of what was taken.
    [[nodiscard]] QString codigo();

private:
    void digerir(std::string_view registro);
    void volcar();

    std::string_view bytes_;
    size_t lugar_ = 0;
    std::array<char, 256> codigos_{};  // what the code takes for each byte of the file
    std::string pendiente_;
    CodigoIntegridad codigo_;
};
