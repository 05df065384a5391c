#pragma once

#include "forms/tastiera.h"

#include <QPainterPath>

namespace lumigrafo {

/// The sign of a key without a text, as lines around the middle of a square of side 1; empty for keys that
/// bear a text. Drawn, since few fonts have such signs.
[[nodiscard]] QPainterPath simbolo(AzioneTasto azione);

} // namespace lumigrafo
