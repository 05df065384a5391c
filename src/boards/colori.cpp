#include "boards/colori.h"

#include "platform/conversioni.h"

#include <algorithm>

namespace lumigrafo {

Colore ColoreSchiarito(Colore c) {
    const auto chiaro = [](int parte) {
        return std::min(255, static_cast<int>(arrotonda(parte * 15 / 10.0)));
    };
    return rgb(chiaro(c.rosso()), chiaro(c.verde()), chiaro(c.blu()));
}

Colore ColoreScurito(Colore c) {
    return coloreSpostato(c, -50);
}

Colore coloreSpostato(Colore c, int piu) {
    const auto spostato = [piu](int parte) { return std::clamp(parte + piu, 0, 255); };
    return rgb(spostato(c.rosso()), spostato(c.verde()), spostato(c.blu()));
}

} // namespace lumigrafo
