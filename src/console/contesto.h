#pragma once

#include "announce/annunciatore.h"
#include "announce/fiscale.h"
#include "console/finestra_console.h"
#include "console/stato.h"
#include "forms/controlli.h"
#include "links/collegamenti.h"
#include "platform/alimentazione.h"
#include "platform/ambiente.h"
#include "platform/avvisi.h"
#include "platform/desktop.h"
#include "platform/guasto.h"
#include "platform/messaggi.h"
#include "platform/orologio.h"
#include "platform/pompa.h"
#include "platform/processi.h"
#include "platform/sistema.h"
#include "platform/timer.h"
#include "settings/dialoghi.h"
#include "settings/ini/ini.h"

#include <string_view>

namespace lumigrafo {

/// The ports that the console's routines work through. Made once by the program, or by a test with fakes.
struct PorteConsole {
    const Ambiente& ambiente;
    Orologio& orologio;
    Pompa& pompa;
    Timers& timers;
    Avvisi& avvisi;
    Messaggi& messaggi;
    Processi& processi;
    Alimentazione& alimentazione;
    Sistema& sistema;
    Desktop& desktop;
    Uscita& uscita;
    Dialoghi& dialoghi;
    Annunciatore& annunciatore;
    Parlante& parlante;
    Fiscale& fiscale;
    LumigrafiAndroid& android;
    ServerCasse& server;
};

/// What each routine of the console holds: the running state, the window's controls and the ports.
struct ContestoConsole {
    StatoConsole& stato;
    Controlli& controlli;
    FinestraConsole& finestra;
    PorteConsole porte;
    FileIni impostazioni{porte.ambiente.file(kFileImpostazioni)};
    FileIni videata{porte.ambiente.file(kFileVideata)};
    FileIni ultimi{porte.ambiente.file(kFileUltimiChiamati)};

    /// The board in use. Throws Guasto 91 once the settings dialog has taken it out of memory.
    [[nodiscard]] Videata& frmVideata() const { return stato.videataInUso(); }
    /// Lets pending events through.
    void cedi(std::string_view punto) { porte.pompa.cedi(punto); }
    /// A scanner needs this field: nearly every action gives it the focus back.
    void fuocoSuTxtBarCode() { controlli("txtBarCode").SetFocus(); }
};

} // namespace lumigrafo
