#pragma once

#include "forms/controlli.h"
#include "platform/ambiente.h"
#include "platform/avvisi.h"
#include "platform/desktop.h"
#include "platform/messaggi.h"
#include "platform/pompa.h"
#include "platform/schermi.h"
#include "settings/ini/ini.h"

#include <functional>

namespace lumigrafo {

/// The batch file that opens the display settings on the first platform; written everywhere.
inline constexpr const char* kFileImpoSchermo = "imposchermo.bat";

/// Opens the system's display settings for the operator; a machine without such a program says so. A program
/// folder that can't be written throws Guasto.
void ApriImpostazioniSchermo(const Ambiente& ambiente, Desktop& desktop, Messaggi& messaggi);

/// What the search for the second monitor works with; all of it outlives the search.
struct ServiziSagoma {
    const Ambiente& ambiente;
    Pompa& pompa;
    Avvisi& avvisi;
    Messaggi& messaggi;
    const Schermi& schermi;
    Desktop& desktop;
};

/// The template of the board, `frmSagoma`: a small window that steps beside the console, first to its right
/// and then to its left, and asks whether it stands on a monitor there. If so it fills that monitor's work
/// area, and its place is kept as the one where every board goes from then on.
class Sagoma {
public:
    /// `console`: where the console stands, twips of the desktop.
    Sagoma(const ServiziSagoma& servizi, const Rettangolo& console);

    [[nodiscard]] Controlli& controlli() { return controlli_; }
    /// Where the window is to stand now.
    [[nodiscard]] const Rettangolo& posto() const { return posto_; }
    /// Told of each change of its place.
    void allaMossa(std::function<void()> azione) { mossa_ = std::move(azione); }
    /// The window is shown and active: the whole search. The window goes when it returns.
    void attiva();

private:
    void sposta(const Rettangolo& posto);
    /// Steps there, from the console's top down; true where it stands on a monitor.
    [[nodiscard]] bool trovaMonitor(Twip left);
    void ConfermaPosizione();

    ServiziSagoma s_;
    Rettangolo console_;
    Rettangolo posto_;
    Controlli controlli_;
    std::function<void()> mossa_;
};

} // namespace lumigrafo
