#pragma once

#include "data/jet/definizione.h"
#include "data/jet/proprieta.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumigrafo::jet {

/// A table of the archive, as its catalog names it.
struct VoceCatalogo {
    std::string nome;
    std::uint32_t definizione = 0; ///< page; 0 for a table that lies in another file
    bool sistema = false;          ///< Access's own
    std::string altrove;           ///< of a table that lies in another file: where, as far as it says
    std::string proprieta;         ///< of a table of users: the field with its design's properties
};

/// All tables, linked ones too, in the order of their names' rows. Throws Guasto 3049.
[[nodiscard]] std::vector<VoceCatalogo> leggiCatalogo(Pagine& pagine);

/// What the table's design says of its columns. Throws Guasto 3049.
[[nodiscard]] std::vector<Proprieta> leggiProprieta(Pagine& pagine, const VoceCatalogo& voce);

} // namespace lumigrafo::jet
