#pragma once

#include "fiscale/modulo.h"
#include "fiscale/scontrino.h"

#include <string>

namespace lumigrafo {

/// How an attempt to print ended.
enum class Fine {
    Fatto,       ///< printed, as far as the printer can tell
    NonStampato, ///< nothing of it reached paper
    Incerto,     ///< it may have been printed, whole or in part
};

struct EsitoStampa {
    Fine fine = Fine::NonStampato;
    std::string testo; ///< why, in Italian, a sentence; empty where it is done
};

/// What the operator is told of a printer.
struct StatoStampante {
    bool pronta = false;
    std::string testo; ///< Italian, a sentence
};

/// What is printed. A driver takes the lines or, where the other side lays out the receipt itself, its data.
struct Lavoro {
    const Scontrino& scontrino;
    const Modulo& modulo;
    bool prova = false; ///< the test of the settings: no receipt
    bool copia = false; ///< it was issued before
};

/// A way to print. Each call blocks for a bounded time and throws nothing.
class Driver {
public:
    virtual ~Driver() = default;
    /// One attempt, which prints once at the most.
    [[nodiscard]] virtual EsitoStampa stampa(const Lavoro& lavoro) = 0;
    [[nodiscard]] virtual StatoStampante stato() = 0;
};

} // namespace lumigrafo
