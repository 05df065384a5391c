#pragma once

#include "data/jet/pagine.h"

#include <cstddef>
#include <string>
#include <vector>

namespace lumigrafo::jet {

/// What a walk over a whole archive found.
struct Esame {
    std::vector<std::string> discordanze; ///< in Italian, one each; empty: the archive is sound
    std::vector<std::string> note;        ///< oddities that do no harm
    std::size_t tabelle = 0, righe = 0, indici = 0, pagine = 0;
};

/// Walks every page, map, row and index. Damage is told, not thrown; Guasto is thrown only where the file
/// can't be read at all or another station keeps writing.
[[nodiscard]] Esame verifica(Pagine& pagine);

} // namespace lumigrafo::jet
