#pragma once

#include "strumenti/chiamata.h"

#include <cstdint>
#include <string>
#include <vector>

/// The command line of lumigrafo-schermo.
namespace lumigrafo::schermo {

struct Argomenti {
    bool aiuto = false, versione = false;
    bool finestra = false;      ///< a full-screen window, not the terminal
    std::uint16_t porta = 8989; ///< the one that Lumigrafo sends to
    std::string indirizzo;      ///< where to listen; empty: at all addresses of the machine
};

using strumenti::ErroreDiUso;

/// The words behind the program's name. Throws ErroreDiUso.
[[nodiscard]] Argomenti leggiArgomenti(const std::vector<std::string>& parole);

/// What --help prints.
[[nodiscard]] const char* testoAiuto();

} // namespace lumigrafo::schermo
