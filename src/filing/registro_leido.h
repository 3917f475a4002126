// SPDX-License-Identifier: GPL-3.0-or-later
// One record of a return file with the places of its fields.
#pragma once

#include "tree/registros.h"

#include <array>
#include <cstring>
#include <string_view>

constexpr size_t CAMPOS_MAXIMOS = 28;

struct RegistroLeido
{
    const Registro* registro = nullptr;
    int linea = 0;
    std::string_view bytes;                                 ///< the record without its line end
    std::array<std::string_view, CAMPOS_MAXIMOS> campos{};  ///< empty for a field that is absent
    size_t previsto = 0;                                    ///< length of the record by its fields' widths
    bool entero = false;                                    ///< its fields could be told apart
    bool dudoso = false;                                    ///< they could in more than one way

    /// The bytes of a field by its name; empty without it.
    [[nodiscard]] std::string_view campo(const char* nombre) const
    {
        for (size_t i = 0; i < registro->campos.size(); ++i)
            if (std::strcmp(registro->campos[i].nombre, nombre) == 0)
                return campos[i];
        return {};
    }
};
