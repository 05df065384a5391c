#pragma once

#include "strumenti/cassa/collegamento.h"

#include <chrono>
#include <functional>
#include <string>

namespace lumigrafo::cassa {

/// Waits; false ends the work (a test's way out of the endless one).
using Attesa = std::function<bool(std::chrono::milliseconds)>;

/// A desk that asks a station for numbers, over one connection for as long as that holds.
class Richiedente {
public:
    Richiedente(Collegamento& collegamento, std::string server, std::string sigla, Attesa attesa);

    /// The station's answer: "NUMERO 12" or "KO". Asks again while the station is busy. Throws Guasto where
    /// it gives none in time; the next request begins with a new connection then.
    [[nodiscard]] std::string chiedi();

private:
    [[nodiscard]] std::string unaVolta();
    [[nodiscard]] std::string scambia();

    Collegamento& collegamento_;
    std::string server_, sigla_;
    Attesa attesa_;
    bool aperto_ = false;
};

} // namespace lumigrafo::cassa
