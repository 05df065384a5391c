#pragma once

#include "boards/scheda.h"

namespace lumigrafo {

/// Which of a panel's two colours the boxes of its numbers have.
enum class SfondoCaselle : std::uint8_t { Base, Schiarito };

/// A board with its numbers in boxes on panels shaded from the slot's back colour to a brighter one.
class SchedaSfumata : public Scheda {
protected:
    SchedaSfumata(TipoVideata tipo, SfondoCaselle caselle, const ServiziSchede& servizi)
        : Scheda(tipo, servizi), caselle_(caselle) {}

    /// Colours and numbers of a slot.
    void vestiPannello(int slot);

private:
    SfondoCaselle caselle_;
};

} // namespace lumigrafo
