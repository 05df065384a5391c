#pragma once

#include "strumenti/chiamata.h"

#include <string>
#include <vector>

/// A cash desk of the next-customer system on the command line.
namespace lumigrafo::cassa {

struct Argomenti {
    bool aiuto = false, versione = false;
    std::string sigla; ///< "A" to "E"
    std::string server = "localhost";
    int ogni = 0; ///< seconds between two requests; 0: a single one
};

using strumenti::ErroreDiUso;

/// The words behind the program's name. Throws ErroreDiUso.
[[nodiscard]] Argomenti leggiArgomenti(const std::vector<std::string>& parole);

} // namespace lumigrafo::cassa
