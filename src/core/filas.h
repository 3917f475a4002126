// SPDX-License-Identifier: GPL-3.0-or-later
// How the rules hand rows of a list to whoever shows them.
#pragma once

#include <QStringList>

#include <functional>
#include <span>
#include <string_view>

/// Takes one row, a text for each column of the list.
using AgregarFila = std::function<void(const QStringList&)>;
/// The same for long lists: the cells in UTF-8, good for that call alone.
using AgregarFilaUtf8 = std::function<void(std::span<const std::string_view>)>;
