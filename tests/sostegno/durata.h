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

/// How often the tests that work at random do so: a few times, or as often as LUMIGRAFO_GIRI says.
inline int giri(int pochi) {
    const char* quanti = std::getenv("LUMIGRAFO_GIRI");
    return quanti ? std::stoi(quanti) : pochi;
}

} // namespace lumigrafo::prova
