// SPDX-License-Identifier: GPL-3.0-or-later
// Texts of a file, for a terminal: what would command it, or turn its lines around, is shown instead.
#pragma once

#include <string>
#include <string_view>

/// A text in UTF-8 with each byte of a control character (C0, DEL, C1), of a mark that turns the direction of
/// writing, or of what is no UTF-8, as \xNN.
[[nodiscard]] std::string visible(std::string_view texto);

/// A JSON document in UTF-8 with DEL, C1 and those marks as \uNNNN: for who reads it the values stay the same.
[[nodiscard]] std::string visible_json(std::string_view json);
