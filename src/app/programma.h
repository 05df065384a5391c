#pragma once

#include "announce/annunciatore_vocale.h"
#include "announce/emissione_fiscale.h"
#include "announce/qt/frm_fiscale_qt.h"
#include "app/dialoghi_qt.h"
#include "boards/crea_videata.h"
#include "console/avanti_prossimo.h"
#include "console/dati_stato.h"
#include "console/pompa_console.h"
#include "console/qt/frmGestione.h"
#include "fiscale/componente.h"
#include "fiscale/qt/finestre_componente_qt.h"
#include "links/collegamento_android.h"
#include "links/server_casse.h"
#include "platform/linux/alimentazione.h"
#include "platform/linux/cliente_tcp.h"
#include "platform/linux/desktop.h"
#include "platform/linux/esecutore.h"
#include "platform/linux/luoghi.h"
#include "platform/linux/orologio.h"
#include "platform/linux/processi.h"
#include "platform/linux/sistema.h"
#include "platform/linux/trasporti.h"
#include "platform/qt/ascolto_tcp_qt.h"
#include "platform/qt/notifiche_qt.h"
#include "platform/qt/pompa_qt.h"
#include "platform/qt/scelta_file_qt.h"
#include "platform/qt/schermi_qt.h"
#include "platform/qt/timers_qt.h"
#include "platform/qt/voce_qt.h"
#include "settings/qt/messaggi_qt.h"
#include "settings/qt/scelta_cartella_qt.h"

#include <memory>

namespace lumigrafo {

/// The whole program put together: the platform's real sides, the console and its window.
class Programma {
public:
    /// What is handed in outlives the program.
    Programma(const Ambiente& ambiente, Avvisi& avvisi, Uscita& uscita);

    /// The load of the console. Runs inside the event loop.
    void avvia();

private:
    const Ambiente& ambiente_;
    OrologioSistema orologio_;
    StatoConsole stato_;
    DatiDaStato dati_{stato_};
    PompaQt pompaQt_;
    PompaConsole pompa_{pompaQt_, stato_};
    TimersQt timers_;
    ProcessiLinux processi_;
    AlimentazioneLinux alimentazione_{processi_};
    SistemaLinux sistema_;
    MessaggiQt messaggi_{timers_};
    SchermiQt schermi_;
    DesktopLinux desktop_{processi_};
    LuoghiLinux luoghi_;
    SceltaCartellaQt sceltaCartella_{luoghi_};
    DialoghiQt dialoghi_;
    NotificheQt notifiche_;
    RegistroLog log_{ambiente_.cartella, orologio_};
    VoceQt voce_;
    AnnunciatoreVocale annunciatore_;
    TrasportiLinux trasporti_;
    EsecutoreLinux esecutore_;
    FinestreComponenteQt finestreComponente_;
    FabbricaComponente componente_;
    FrmFiscaleQt frmFiscale_;
    EmissioneFiscale fiscale_;
    ClienteTcpLinux rete_;
    CollegamentoAndroid android_{FileIni(ambiente_.file(kFileImpostazioni)), dati_, orologio_, rete_,
                                 notifiche_};
    AvantiProssimo coda_{stato_, annunciatore_};
    ReteTcpQt reteCasse_;
    ServerCasseTcp server_;
    frmGestione finestra_;
    SceltaFileQt sceltaFile_{finestra_};
    ServiziSchede servizi_;
    Console console_;
};

} // namespace lumigrafo
