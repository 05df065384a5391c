#pragma once

#include "platform/timer.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace lumigrafo {

/// The blink of one slot's newest number: 300 ms a phase, `numero` whole cycles.
class Lampeggio {
public:
    /// The order of work within a tick. Both give the same picture; they differ in the counter left behind.
    enum class Forma {
        Diritta,    ///< the last tick ends the blink and does nothing more
        Rovesciata, ///< the last tick ends the blink and then counts on: the counter is left at 1
    };
    /// Shows one phase: the number's usual look (true) or the other (false: hidden, or other colours).
    using Fase = std::function<void(bool usuale)>;

    /// `numero`, cycles of a blink, is read anew at each tick and must live as long as the blink.
    Lampeggio(Timers& timers, Forma forma, const std::int16_t& numero, Fase fase);

    /// Starts it, or begins a running one anew; the running timer keeps its period.
    void avvia();
    /// Starts it; a running one goes on to its end as if nothing had happened.
    void prosegui() { timer_->abilita(true); }
    [[nodiscard]] bool attivo() const { return timer_->abilitato(); }
    [[nodiscard]] std::int16_t conta() const { return conta_; }

private:
    /// Throws Guasto 6 where twice the number of cycles is no 16-bit number.
    void scatto();
    void fine();

    Forma forma_;
    const std::int16_t& numero_;
    Fase fase_;
    std::int16_t conta_ = 0;
    std::unique_ptr<Timer> timer_;
};

} // namespace lumigrafo
