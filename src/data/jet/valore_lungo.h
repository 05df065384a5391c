#pragma once

#include "data/jet/pagine.h"

#include <string>
#include <string_view>

namespace lumigrafo::jet {

/// The data of a memo or OLE field, gathered from wherever its 12 bytes in the row lead. Throws Guasto 3049.
[[nodiscard]] std::string leggiValoreLungo(Pagine& pagine, Vista campo);

/// Inside Pagine::cambia. Keeps data for a long column on a page of its own, and gives the field that leads
/// to it. `mappa`: of the pages with the column's data. Throws Guasto 3047 where one page doesn't hold them.
[[nodiscard]] std::string scriviValoreLungo(Pagine& pagine, Posizione mappa, std::string_view dati);

} // namespace lumigrafo::jet
