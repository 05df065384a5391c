#pragma once

#include "forms/controlli.h"
#include "platform/ambiente.h"
#include "platform/desktop.h"
#include "platform/messaggi.h"
#include "settings/ini/ini.h"
#include "settings/richiami.h"

#include <functional>
#include <string_view>

namespace lumigrafo {

struct ServiziComunicazione {
    const Ambiente& ambiente;
    RichiamiConsole& console;
    Desktop& desktop;
    Messaggi& messaggi;
};

/// The operator's message to the public, `frmComunicazione`: shown over the whole board for as long as this
/// window is open, spoken, or both.
class Comunicazione {
public:
    /// The load. `invio` sends an Enter to whatever has the keyboard focus, `chiudi` closes the window.
    Comunicazione(const ServiziComunicazione& servizi, std::function<void()> invio,
                  std::function<void()> chiudi);

    [[nodiscard]] Controlli& controlli() { return controlli_; }
    /// A click, by the control's name and index. Throws Guasto where the board's panel can't be shown or
    /// hidden.
    void clic(std::string_view nome, int indice);

private:
    void lblMessaggio(int indice);
    void cmdVisualizza();
    void cmdTastiera();
    void cmdUscita();
    void salva();

    Controlli controlli_;
    ServiziComunicazione s_;
    FileIni messaggi_;
    std::function<void()> invio_, chiudi_;
};

} // namespace lumigrafo
