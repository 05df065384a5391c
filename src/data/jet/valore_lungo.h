#pragma once

#include "data/jet/pagine.h"

#include <string>

namespace lumigrafo::jet {

/// The data of a memo or OLE field, gathered from wherever its 12 bytes in the row lead. Throws Guasto 3049.
[[nodiscard]] std::string leggiValoreLungo(Pagine& pagine, Vista campo);

} // namespace lumigrafo::jet
