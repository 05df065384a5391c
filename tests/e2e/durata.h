#pragma once

#include <chrono>
#include <cstdlib>
#include <string>

namespace lumigrafo::prova {

/// How long the tests under load run: 4 seconds each, or the seconds that LUMIGRAFO_DURATA names.
inline std::chrono::seconds durataCarico() {
    const char* secondi = std::getenv("LUMIGRAFO_DURATA");
    return std::chrono::seconds(secondi ? std::stol(secondi) : 4);
}

} // namespace lumigrafo::prova
