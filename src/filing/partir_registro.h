// SPDX-License-Identifier: GPL-3.0-or-later
// Where the fields of a record lie.
#pragma once

#include "filing/registro_leido.h"

#include <memory>

/// Tells the fields of records apart by their tables, one record after the other of a file.
class PartidorRegistros
{
public:
    PartidorRegistros();
    ~PartidorRegistros();
    PartidorRegistros(const PartidorRegistros&) = delete;
    PartidorRegistros& operator=(const PartidorRegistros&) = delete;

    /// Where the record is not as long as its widths, the quirks of the format are tried (a sign, a
    /// number without its zeros or absent, a text with blanks at its ends, a long remark), and the
    /// reading with the fewest is taken. Gives the first field that does not fit when there is no such
    /// reading, -1 otherwise.
    [[nodiscard]] int partir(RegistroLeido& r);

private:
    struct Estado;
    std::unique_ptr<Estado> estado_;
};
