#pragma once

#include "app/dialoghi_qt.h"
#include "boards/crea_videata.h"
#include "console/qt/frmGestione.h"
#include "platform/linux/alimentazione.h"
#include "platform/linux/orologio.h"
#include "platform/linux/processi.h"
#include "platform/linux/sistema.h"
#include "platform/qt/pompa_qt.h"
#include "platform/qt/timers_qt.h"
#include "settings/qt/messaggi_qt.h"

#include <memory>

namespace lumigrafo {

/// The whole program put together: the platform's real sides, the console and its window.
class Programma : private DatiConsole {
public:
    /// What is handed in outlives the program.
    Programma(const Ambiente& ambiente, Avvisi& avvisi, Uscita& uscita);

    /// The load of the console. Runs inside the event loop.
    void avvia();

private:
    [[nodiscard]] std::string Reparto(int quadrante) const override;
    [[nodiscard]] bool SoloAndroid() const override;

    const Ambiente& ambiente_;
    OrologioSistema orologio_;
    PompaQt pompa_;
    TimersQt timers_;
    ProcessiLinux processi_;
    AlimentazioneLinux alimentazione_{processi_};
    SistemaLinux sistema_;
    MessaggiQt messaggi_{timers_};
    DialoghiQt dialoghi_;
    AnnunciatoreMuto annunciatore_;
    FiscaleAssente fiscale_;
    LumigrafiAssenti android_;
    ServerAssente server_;
    ServiziSchede servizi_;
    frmGestione finestra_;
    Console console_;
};

} // namespace lumigrafo
