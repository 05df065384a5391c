#pragma once

#include "console/contesto.h"

#include <functional>
#include <memory>

namespace lumigrafo {

/// The hidden button panel, the mode switch, the showing of the board, and the clicks that open dialogs.
class Comandi {
public:
    /// `Timer1`: the periodic rebuild of the grids.
    Comandi(ContestoConsole& contesto, Timer& Timer1);

    /// Hides the button panel.
    void NascondiBottoni();
    /// Shows it; it goes away by itself after 5 seconds.
    void cmdAllarga();
    void cmdLumigrafo();
    void cmdModalita();
    void cmdPulisciLumigrafo();
    /// Looks for the second monitor and puts the board there. The waits block the console for three seconds.
    void cmdPosizionaLumigrafo();
    /// The tick that starts the companion program which keeps the console in front. Nothing ever switches its
    /// timer on: a running copy is only stopped.
    void timerPrimoPiano();
    /// Starts the timer of the random test numbers, whose tick does nothing.
    void TimerVis() { TimerVis_->abilita(true); }
    void cmdUscita();
    void cmdRiavvia();
    void cmdSpegni();

private:
    ContestoConsole& c_;
    Timer& Timer1_;
    std::unique_ptr<Timer> timerBottoni_;
    std::unique_ptr<Timer> timerPrimoPiano_;
    std::unique_ptr<Timer> TimerVis_;
};

} // namespace lumigrafo
