// SPDX-License-Identifier: GPL-3.0-or-later
// Calls an action with as many of the arguments of a signal as it takes.
#pragma once

#include <tuple>
#include <type_traits>
#include <utility>

/// The arguments that are too many, counted from the last, are dropped.
template <class Accion, class... Argumentos>
void invocar(const Accion& accion, Argumentos&... argumentos)
{
    if constexpr (std::is_invocable_v<const Accion&, Argumentos&...>) {
        accion(argumentos...);
    } else {
        const auto todos = std::tie(argumentos...);
        [&]<size_t... I>(std::index_sequence<I...>)
        {
            invocar(accion, std::get<I>(todos)...);
        }
        (std::make_index_sequence<sizeof...(Argumentos) - 1>());
    }
}
