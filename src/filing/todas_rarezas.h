// SPDX-License-Identifier: GPL-3.0-or-later
// Records with any number of quirks.
#pragma once

#include "filing/costo_campo.h"
#include "filing/registro_leido.h"

#include <vector>

/// The cheapest reading of all fields over the whole record. Only the places that a reading reaches
/// are looked at; the table is kept from record to record, and a turn tells which of it is of this one.
class Rarezas
{
public:
    /// False when there is no reading.
    [[nodiscard]] bool partir(RegistroLeido& r);

private:
    struct Paso
    {
        unsigned turno = 0;
        int costo = IMPOSIBLE;
        int maneras = 0;
        size_t tomados = 0;
    };

    Paso resolver(size_t i, size_t p);

    RegistroLeido* r_ = nullptr;
    std::span<const CampoRegistro> campos_;
    size_t ancho_ = 0;
    bool puedeAlargar_ = true;
    unsigned turno_ = 0;
    std::vector<Paso> tabla_;
};
