// SPDX-License-Identifier: GPL-3.0-or-later
// Reads an emitted return file by the same tables that write it, and checks what it holds.
#pragma once

#include "filing/registro_leido.h"

#include <QByteArrayView>
#include <QString>

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

/// A quirk that the format itself makes, and how often: a field of another width than its own, or absent.
struct RarezaLeida
{
    char tipo = 0;  ///< of the record
    QString campo;  ///< empty when which field it is can't be told
    int largo = 0;  ///< of the field, 0 for an absent one; of the record when the field can't be told
    int previsto = 0;
    int veces = 0;
    int linea = 0;  ///< the first time
};

struct LecturaDJ
{
    std::vector<FallaLectura> fallas;
    std::vector<FallaLectura> avisos;  ///< quirks of the format that were read right, or could not be told
    std::vector<RarezaLeida> rarezas;  ///< the same quirks counted
    std::map<char, int> registros;     ///< how many of each type
    QString codigo;                    ///< recomputed integrity code
    QString agente, titular, cuit, posicion, secuencia, estado;
    double totalRetenido = 0;  ///< pesos, of the header
    double totalEscrituras = 0;
};

/// Reads the whole file; never fails, whatever the bytes are. `ver` sees each record.
[[nodiscard]] LecturaDJ leer_archivo_dj(QByteArrayView bytes,
                                        const std::function<void(const RegistroLeido&)>& ver = {});
