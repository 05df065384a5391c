#pragma once

#include "data/jet/pagine.h"

#include <string>
#include <vector>

namespace lumigrafo::jet {

/// Mends what a station leaves behind that died while it wrote: indexes that disagree with their table are
/// made anew from its rows, halves of moved rows are dropped, counts, maps and the list of free pages put
/// right, and the mark of the fallen station taken away. Rows that can be read stay. All of it is one
/// transaction of `pagine`, already written on return; nobody else may be at work. Returns what was mended,
/// in Italian. Throws Guasto: 3049 where the catalog or a table's definition itself can't be read.
[[nodiscard]] std::vector<std::string> ripara(Pagine& pagine);

} // namespace lumigrafo::jet
