#pragma once

#include "tests/sostegno/processo.h"

namespace lumigrafo::prova {

/// A second station: a process that obeys line by line (see aiutante.cpp).
class Stazione : public Processo {
public:
    Stazione() : Processo({AIUTANTE}) {}

    /// What it says to a line: "fatto", or number and description of a failure.
    std::string risposta() { return riga(std::chrono::minutes(2)).value_or("(nothing)"); }
    std::string operator()(const std::string& riga) {
        manda(riga);
        return risposta();
    }
};

} // namespace lumigrafo::prova
