// SPDX-License-Identifier: GPL-3.0-or-later
// Records with one quirk, or with those of the record before: the common cases, which need no table.
#pragma once

#include "filing/registro_leido.h"

/// Where the fields of a record lie when each has its width.
struct MedidasRegistro
{
    explicit MedidasRegistro(const Registro& registro);
    std::array<size_t, CAMPOS_MAXIMOS + 1> lugares{};  ///< of each field, and behind the last one
};

/// One field alone makes up for the length of the record; all others have their width. The fields in front of `falla`
/// were told apart already, that one does not stand at its place. False when there is no such reading.
[[nodiscard]] bool partir_con_una(RegistroLeido& r, const MedidasRegistro& medidas, int falla);

/// Operations of one kind leave the same numbers out: the reading of the last record whose numbers
/// alone were odd is tried on the next one of its length, where it must come as dear.
class UltimaRareza
{
public:
    [[nodiscard]] bool partir(RegistroLeido& r) const;
    /// Keeps the reading of a record for the next ones.
    void recordar(const RegistroLeido& r);

private:
    const Registro* registro_ = nullptr;
    size_t largo_ = 0;
    int costo_ = 0;
    std::array<size_t, CAMPOS_MAXIMOS> tomados_{};
    bool dudoso_ = false;
};
