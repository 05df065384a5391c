#pragma once

#include "console/contesto.h"

#include <functional>
#include <memory>

namespace lumigrafo {

/// The hidden button panel, the mode switch, the showing of the board, and the clicks that open dialogs.
class Comandi {
public:
    explicit Comandi(ContestoConsole& contesto);

    /// Hides the button panel.
    void NascondiBottoni();
    /// Shows it; it goes away by itself after 5 seconds.
    void cmdAllarga();
    void cmdLumigrafo();
    void cmdModalita();
    void cmdPulisciLumigrafo();
    void cmdUscita();
    void cmdRiavvia();
    void cmdSpegni();

private:
    ContestoConsole& c_;
    std::unique_ptr<Timer> timerBottoni_;
};

} // namespace lumigrafo
