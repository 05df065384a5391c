#pragma once

#include "boards/famiglia.h"
#include "console/stato.h"

namespace lumigrafo {

/// Which board window a run uses, and whether the console takes its single-department layout with it.
struct SceltaVideata {
    TipoVideata tipo;
    bool unReparto;
    friend constexpr bool operator==(const SceltaVideata&, const SceltaVideata&) = default;
};

/// From the type, the nine-number flag and the categories of the quadrants. An unknown type gives the
/// standard board.
[[nodiscard]] SceltaVideata scegliVideata(const StatoConsole& stato);

} // namespace lumigrafo
