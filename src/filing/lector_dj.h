// SPDX-License-Identifier: GPL-3.0-or-later
// Reads an emitted return file by the same tables that write it, and checks what it holds.
#pragma once

#include "filing/registros.h"

#include <QByteArrayView>
#include <QList>
#include <QString>

#include <array>
#include <functional>
#include <map>
#include <vector>

/// What is wrong, or worth knowing, at one place of the file. Lines and columns count from 1.
struct FallaLectura
{
    int linea = 0;
    int columna = 0;
    QString campo;
    QString valor;
    QString mensaje;
};

constexpr size_t CAMPOS_MAXIMOS = 28;

/// One record with the places of its fields.
struct RegistroLeido
{
    const Registro* registro = nullptr;
    int linea = 0;
    std::string_view bytes;                                 ///< the record without its line end
    std::array<std::string_view, CAMPOS_MAXIMOS> campos{};  ///< empty for a field that is absent
    bool entero = false;                                    ///< its fields could be told apart
    bool dudoso = false;                                    ///< they could in more than one way

    /// The bytes of a field by its name; empty without it.
    [[nodiscard]] std::string_view campo(const char* nombre) const;
};

struct LecturaDJ
{
    std::vector<FallaLectura> fallas;
    std::vector<FallaLectura> avisos;  ///< quirks of the format that were read right, or could not be told
    std::map<char, int> registros;     ///< how many of each type
    QString codigo;                    ///< recomputed integrity code
    QString agente, titular, cuit, posicion, secuencia, estado;
    double totalRetenido = 0;  ///< pesos, of the header
    double totalEscrituras = 0;
};

/// Reads the whole file; never fails, whatever the bytes are. `ver` sees each record.
[[nodiscard]] LecturaDJ leer_archivo_dj(QByteArrayView bytes,
                                        const std::function<void(const RegistroLeido&)>& ver = {});

/// A text of the file as it reads.
[[nodiscard]] QString texto_ansi(std::string_view bytes);
