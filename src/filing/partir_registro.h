// Where the fields of a record lie.
#pragma once

#include "filing/lector_dj.h"

/// Tells the fields of a record apart by its table. Where the record is not as long as its widths,
/// the quirks of the format are tried (a sign, a number without its zeros or absent, a text with
/// blanks at its ends, a long remark), and the reading with the fewest is taken. Gives the first
/// field that does not fit when there is no such reading, -1 otherwise.
[[nodiscard]] int partir_registro(RegistroLeido& r);
