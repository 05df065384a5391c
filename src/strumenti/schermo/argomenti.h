#pragma once

#include <cstdint>
#include <stdexcept>
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

/// A call that can't be understood; the text tells the user why.
struct ErroreDiUso : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The words behind the program's name. Throws ErroreDiUso.
[[nodiscard]] Argomenti leggiArgomenti(const std::vector<std::string>& parole);

/// What --help prints.
[[nodiscard]] const char* testoAiuto();

} // namespace lumigrafo::schermo
