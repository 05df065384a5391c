#pragma once

#include "platform/colore.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumigrafo::schermo {

/// One department of the board.
struct Gruppo {
    std::string titolo;
    std::vector<std::string> numeri; ///< the newest first; empty slots left out
    Colore sfondo, testo;
    [[nodiscard]] bool inUso() const { return !titolo.empty() || !numeri.empty(); }
};

/// What a document shows. Texts are UTF-8, of a length that a screen can take, without control characters.
struct Tabellone {
    std::string titolo;
    int font = 0; ///< size of the numbers in points, 0: automatic
    std::array<Gruppo, 3> gruppi;
    std::optional<std::size_t> chiamato; ///< group of the number just called
};

/// Reads a document. Throws Guasto 13 or 6 for what isn't one.
[[nodiscard]] Tabellone leggiTabellone(std::string_view documento);

/// For a terminal: the title and a line for each department, the one just called marked. Ends with an empty
/// line.
[[nodiscard]] std::string comeTesto(const Tabellone& tabellone);

} // namespace lumigrafo::schermo
