#pragma once

#include "console/contesto.h"

#include <memory>

namespace lumigrafo {

/// Says a called number again: the last one of a quadrant, or one out of the panel of earlier numbers.
/// Nothing is moved on the board.
class Ripetizione {
public:
    explicit Ripetizione(ContestoConsole& contesto);

    void lblNumero(int quadrante);
    /// Opens the panel of the eight last numbers over the quadrant's label; it goes away by itself after 3
    /// seconds.
    void cmdNumero(int quadrante);
    /// A number of the panel, 0 the newest. The panel hides, with or without a voice.
    void lblNumeroPrec(int indice);

private:
    void annuncia(int quadrante, const std::string& testo);

    ContestoConsole& c_;
    std::unique_ptr<Timer> TimerfraNumero_;
    int quadranteAperto_ = 0; ///< whose numbers the panel shows
};

} // namespace lumigrafo
