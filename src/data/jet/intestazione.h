#pragma once

#include "data/jet/pagina.h"

#include <cstdint>

namespace lumigrafo::jet {

/// Where the 256 commit words stand in page 0, and how many bytes they take.
inline constexpr std::size_t kParoleCommit = 0xE00;
inline constexpr std::size_t kByteParole = 512;

struct Intestazione {
    std::uint32_t ordinamento = 0; ///< default sort order of texts, as a column's definition has it
    double creazione = 0;          ///< days since 1899-12-30
};

/// Reads page 0. Throws Guasto 3343 for every kind of file that this engine must not touch, with the reason
/// in words, and 3031 for one with a password.
[[nodiscard]] Intestazione leggiIntestazione(const Pagina& pagina0);

/// Makes page 0 of a new archive.
[[nodiscard]] Pagina nuovaIntestazione(const Intestazione& intestazione);

} // namespace lumigrafo::jet
