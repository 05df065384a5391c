#pragma once

#include "console/chiamata.h"

#include <cstdint>
#include <memory>
#include <string>

namespace lumigrafo {

/// The scanner, wired as a keyboard: collects a code key by key, decides when it is whole, and calls its
/// number.
class Scansione {
public:
    Scansione(ContestoConsole& contesto, Chiamata& chiamata);

    /// A key press anywhere in the console, before any control sees it: the character, 0 for a key without
    /// one. True: it is part of a code and goes no further.
    bool tasto(char32_t carattere);
    /// Works on the code in `txtBarCode`.
    void EsaminaBarCode();
    /// The outcome over the whole window, for 0.7 seconds if `ok` and 2 if not. `colore` below 1 means the
    /// colour of the outcome.
    void MostraEsitoBarCode(bool ok, const std::string& testo, std::int32_t colore = 0);

private:
    /// The tick of the timer.
    void silenzio();
    void scatto();
    [[nodiscard]] std::int16_t quadranteDi(std::int16_t categoria) const;
    [[nodiscard]] bool trovaCella(std::int16_t quadrante, const std::string& testo);
    void chiama(std::int16_t quadrante, const std::string& sigla, const std::string& numero);

    ContestoConsole& c_;
    Chiamata& chiamata_;
    std::unique_ptr<Timer> TimerBarCode_;
    unsigned tasti_ = 0; ///< keys of codes so far
};

} // namespace lumigrafo
