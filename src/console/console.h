#pragma once

#include "console/avvio.h"
#include "console/richiami.h"
#include "console/ripetizione.h"
#include "console/scansione.h"

#include <memory>
#include <optional>
#include <string>

namespace lumigrafo {

/// The console apart from its window: the routines that work on the running state. The window hands its
/// events on to here.
class Console {
public:
    /// What is handed in outlives the console.
    Console(StatoConsole& stato, const PorteConsole& porte, FinestraConsole& finestra,
            FabbricaVideata fabbrica);
    /// Takes the board with it: its timers and its window belong to the ports that were handed in.
    ~Console();
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

    [[nodiscard]] Controlli& controlli() { return controlli_; }
    [[nodiscard]] const Controlli& controlli() const { return controlli_; }
    [[nodiscard]] StatoConsole& stato() { return stato_; }
    [[nodiscard]] const StatoConsole& stato() const { return stato_; }
    /// What its dialogs call back.
    [[nodiscard]] RichiamiConsole& richiami() { return richiami_; }

    void carica() { avvio_.carica(); }
    void attiva() { avvio_.attiva(); }
    void scarica() { avvio_.scarica(); }

    /// A click on a button, label or box, by name and index. Names without an action are ignored.
    void clic(std::string_view nome, int indice);
    /// A click on the current cell of a grid.
    void clicGriglia(int quadrante);
    /// A touch on a grid; `riga` is -1 beside its cells.
    void toccoSuGriglia(int quadrante, int riga);
    /// A pointer event on a grid: the periodic rebuild waits as long as the pointer is moving.
    void puntatoreSuGriglia();
    /// A key press, before any control sees it; 0 for a key without a character. True: it goes no further.
    bool tasto(char32_t carattere) { return scansione_.tasto(carattere); }

    void mnuDatabase();
    void mnuImposta();
    void mnuFiscale();
    /// Starts the timer that the settings dialog's hidden button is for.
    void TimerVis() { comandi_.TimerVis(); }

private:
    void cmdAggiorna();
    void cmdAvanti();
    void cmdComunicazione();
    void cmdRipristina();
    void allargaGriglia(int quadrante);

    StatoConsole& stato_;
    Controlli controlli_;
    ContestoConsole contesto_;
    Caricatore caricatore_;
    Richiami richiami_;
    DispositoreConsole dispositore_;
    Chiamata chiamata_;
    Scansione scansione_;
    Ripetizione ripetizione_;
    std::unique_ptr<Timer> Timer1_;
    Comandi comandi_;
    Avvio avvio_;
};

} // namespace lumigrafo
