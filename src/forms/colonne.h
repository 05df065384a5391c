#pragma once

#include "forms/griglia.h"
#include "forms/scala.h"

#include <vector>

namespace lumigrafo {

/// The edges of a grid's columns in pixels, one more than columns, from 0. Columns with a width of their own
/// take it, scaled; the others share what is left of `larghezza`, the width of the grid's widget.
[[nodiscard]] std::vector<int> bordiColonne(const Griglia& griglia, const Scala& scala, int larghezza);

} // namespace lumigrafo
