// SPDX-License-Identifier: GPL-3.0-or-later
// Finding a name in an archive of any number of files in a few steps, from what their headers carry: a tree over the
// bits of the names' digests that only ever grows at its newest entry.
//
// An entry's k-th shortcut is the newest entry before it whose digest has the same first k bits and another one behind
// them. Who looks for a digest begins at the newest entry of all; at each entry the first bit that differs says which
// shortcut goes on, and from there at least one bit more agrees. The same walk gives the shortcuts of a new entry.
#pragma once

#include "archivo.h"
#include "cabeceras.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// The archive's index, from its end.
struct IndiceRar
{
    uint64_t ultima = 0;  ///< where the newest entry begins, 0 for an archive of none
    uint64_t fin = 0;     ///< where the end header begins
};

/// The index of an archive that this packer wrote; nothing for any other. What a killed call left behind the end goes.
[[nodiscard]] std::optional<IndiceRar> leer_indice(Archivo& a);

/// What a name's walk found.
struct BusquedaRar
{
    bool esta = false;
    std::vector<uint64_t> atajos = {};  ///< of an entry that is added under this name
};

/// Looks for a name. Nothing when the index can't tell, since two names have one digest.
[[nodiscard]] std::optional<BusquedaRar> buscar_rar(Archivo& a, const IndiceRar& indice, const std::string& nombre);
