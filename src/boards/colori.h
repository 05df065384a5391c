#pragma once

#include "platform/colore.h"

namespace lumigrafo {

/// One and a half times as bright: each component by 1.5, halves to the even neighbour, 255 at most.
[[nodiscard]] Colore ColoreSchiarito(Colore colore);

/// Each component less 50, 0 at least.
[[nodiscard]] Colore ColoreScurito(Colore colore);

/// Each component `piu` higher, within 0..255.
[[nodiscard]] Colore coloreSpostato(Colore colore, int piu);

} // namespace lumigrafo
