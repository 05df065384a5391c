#include "console/console.h"

#include "console/dialogo.h"
#include "console/layout_frmGestione.h"
#include "platform/guasto.h"

#include <algorithm>
#include <array>

namespace lumigrafo {

namespace {

using namespace std::chrono_literals;

/// What a click on a grid's head adds to its width; only a restart takes it off again.
constexpr Twip kAllargamento = 300;

} // namespace

Console::Console(StatoConsole& stato, const PorteConsole& porte, FinestraConsole& finestra,
                 FabbricaVideata fabbrica)
    : stato_(stato), controlli_(kLayout_frmGestione), contesto_{stato_, controlli_, finestra, porte},
      caricatore_(contesto_), richiami_(contesto_, caricatore_),
      dispositore_(contesto_, caricatore_, std::move(fabbrica)), chiamata_(contesto_, caricatore_),
      scansione_(contesto_, chiamata_), ripetizione_(contesto_),
      Timer1_(porte.timers.crea(32000ms,
                                [this] {
                                    if (!stato_.ScontrinoInCorso)
                                        caricatore_.CaricaVideataInizio(true);
                                })),
      comandi_(contesto_, *Timer1_), avvio_(contesto_, caricatore_, dispositore_, comandi_, *Timer1_) {
    for (Griglia& grid : stato_.grid) {
        grid.altezzaMinima(kAltezzaRiga);
        for (int k = 0; k < grid.Cols(); ++k)
            grid.larghezzaColonna(k, kLarghezzaColonna);
    }
    Timer1_->abilita(true); // as designed; the load switches it off at once
}

Console::~Console() {
    stato_.frmVideata.reset();
}

void Console::clic(std::string_view nome, int indice) {
    struct Azione {
        std::string_view nome;
        void (*fai)(Console&, int indice);
    };
    static constexpr std::array kAzioni = {
        Azione{"lblPezz", [](Console& c, int q) { c.allargaGriglia(q); }},
        Azione{"picInfo", [](Console& c, int q) { c.allargaGriglia(q); }},
        Azione{"lblNumero", [](Console& c, int q) { c.ripetizione_.lblNumero(q); }},
        Azione{"cmdNumero", [](Console& c, int q) { c.ripetizione_.cmdNumero(q); }},
        Azione{"lblNumeroPrec", [](Console& c, int i) { c.ripetizione_.lblNumeroPrec(i); }},
        Azione{"cmdAllarga", [](Console& c, int) { c.comandi_.cmdAllarga(); }},
        Azione{"cmdChiudi", [](Console& c, int) { c.comandi_.NascondiBottoni(); }},
        Azione{"fraBottoni", [](Console& c, int) { c.comandi_.NascondiBottoni(); }},
        Azione{"cmdAggiorna", [](Console& c, int) { c.cmdAggiorna(); }},
        Azione{"cmdLumigrafo", [](Console& c, int) { c.comandi_.cmdLumigrafo(); }},
        Azione{"cmdModalita", [](Console& c, int) { c.comandi_.cmdModalita(); }},
        Azione{"cmdPulisciLumigrafo", [](Console& c, int) { c.comandi_.cmdPulisciLumigrafo(); }},
        Azione{"cmdPosizionaLumigrafo", [](Console& c, int) { c.comandi_.cmdPosizionaLumigrafo(); }},
        Azione{"cmdComunicazione", [](Console& c, int) { c.cmdComunicazione(); }},
        Azione{"cmdRipristina", [](Console& c, int) { c.cmdRipristina(); }},
        Azione{"cmdUscita", [](Console& c, int) { c.comandi_.cmdUscita(); }},
        Azione{"cmdRiavvia", [](Console& c, int) { c.comandi_.cmdRiavvia(); }},
        Azione{"cmdSpegni", [](Console& c, int) { c.comandi_.cmdSpegni(); }},
        Azione{"cmdAvanti", [](Console& c, int) { c.cmdAvanti(); }},
    };
    const auto azione =
        std::find_if(kAzioni.begin(), kAzioni.end(), [&](const Azione& a) { return a.nome == nome; });
    if (azione != kAzioni.end())
        azione->fai(*this, indice);
}

void Console::toccoSuGriglia(int quadrante, int riga) {
    // Beside the cells of a filled grid a touch is none: the current cell is an order called earlier.
    if (riga >= 0 || stato_.grid.at(static_cast<std::size_t>(quadrante)).Rows() == 0)
        clicGriglia(quadrante);
}

void Console::clicGriglia(int quadrante) {
    chiamata_.clicGriglia(static_cast<std::int16_t>(quadrante));
}

void Console::puntatoreSuGriglia() {
    if (!stato_.BarCodeInCorso && Timer1_->abilitato())
        Timer1_->riavvia();
}

void Console::allargaGriglia(int quadrante) {
    Controllo& grid = controlli_("grid", quadrante);
    grid.Width(grid.Width() + kAllargamento);
}

void Console::cmdAggiorna() {
    comandi_.NascondiBottoni();
    caricatore_.CaricaVideataInizio(false);
    contesto_.cedi("cmdAggiorna/1");
    contesto_.fuocoSuTxtBarCode();
}

void Console::cmdAvanti() {
    if (stato_.ModalitaDepennamento) {
        scansione_.MostraEsitoBarCode(false, "Sei in Modalità depennamento");
        return;
    }
    Controllo& bottone = controlli_("cmdAvanti");
    bottone.Enabled(false);
    contesto_.cedi("cmdAvanti/2");
    Griglia& grid = stato_.grid[0];
    if (const auto posto = grid.primaPiena()) {
        grid.corrente(posto->riga, posto->colonna);
        clicGriglia(0);
        contesto_.cedi("cmdAvanti/3");
    }
    bottone.Enabled(true);
}

void Console::cmdComunicazione() {
    if (stato_.TipoLumigrafo == 4) {
        contesto_.porte.messaggi.MostraMessaggio("Non possibile con sistema Avanti Prossimo", 1);
        return;
    }
    dialogo(contesto_, [this] { contesto_.porte.dialoghi.frmComunicazione(); });
    contesto_.fuocoSuTxtBarCode();
}

void Console::cmdRipristina() {
    comandi_.NascondiBottoni();
    if (stato_.TipoLumigrafo == 4 || archivioLocale(contesto_)) {
        dialogo(contesto_, [this] { contesto_.porte.dialoghi.frmInserisciNumeri(); });
        caricatore_.CaricaVideataInizio(false);
    } else {
        dialogo(contesto_, [this] { contesto_.porte.dialoghi.frmRipristina(); });
    }
    contesto_.fuocoSuTxtBarCode();
}

void Console::mnuDatabase() {
    if (contesto_.porte.dialoghi.ChiediPassword("Password admin", CodiceAdmin))
        dialogo(contesto_, [this] { contesto_.porte.dialoghi.frmDatabase(); });
}

void Console::mnuImposta() {
    dialogo(contesto_, [this] {
        if (!contesto_.porte.dialoghi.ChiediPassword("Password admin", CodiceAdmin))
            return;
        ignorandoGuasti([this] { contesto_.frmVideata().Scarica(); });
        contesto_.porte.dialoghi.frmImposta();
    });
}

void Console::mnuFiscale() {
    contesto_.porte.dialoghi.UtilitaFiscali();
}

} // namespace lumigrafo
