#pragma once

#include "data/ordine.h"
#include "forms/controlli.h"
#include "forms/griglia.h"
#include "platform/ambiente.h"
#include "platform/orologio.h"
#include "platform/pompa.h"
#include "settings/richiami.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string_view>

namespace lumigrafo {

struct ServiziRipristina {
    const Ambiente& ambiente;
    RichiamiConsole& console;
    Orologio& orologio;
    Pompa& pompa;
};

/// The restore dialog, `frmRipristina`: a number that was called by mistake goes back into the queue of its
/// quadrant.
class Ripristina {
public:
    /// The load. `ridisegna` paints at once what has changed in the window, `chiudi` closes it.
    Ripristina(const ServiziRipristina& servizi, std::function<void()> ridisegna,
               std::function<void()> chiudi);

    [[nodiscard]] Controlli& controlli() { return controlli_; }
    /// The newest numbers called in a quadrant (0..2), the newest on top.
    [[nodiscard]] Griglia& grid(int quadrante) { return grid_.at(static_cast<std::size_t>(quadrante)); }
    void clic(std::string_view nome);
    /// A touch on the current cell of `grid(i)`: the number is open again and the window closes. An empty
    /// cell, one of a quadrant without a category, and a second touch meanwhile do nothing. Throws Guasto
    /// where archive or board fail.
    void clicGriglia(std::int16_t i);

private:
    static constexpr int kRighe = 3;

    void mostraTocco(Griglia& grid, int riga);
    void riapri(const Ordine& ordine, std::int16_t categoria);
    void togliDallaVideata(const std::string& numero);

    Controlli controlli_;
    ServiziRipristina s_;
    std::function<void()> ridisegna_, chiudi_;
    std::array<Griglia, 3> grid_{Griglia(1), Griglia(1), Griglia(1)};
    bool BottoneInCorso_ = false;
};

} // namespace lumigrafo
