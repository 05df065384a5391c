#pragma once

#include "console/chiamata.h"
#include "console/comandi.h"
#include "console/imposta_videata.h"

namespace lumigrafo {

/// The load of the console, from entry to idle, its first activation and its unload.
class Avvio {
public:
    /// `Timer1` is the periodic rebuild of the grids.
    Avvio(ContestoConsole& contesto, Caricatore& caricatore, DispositoreConsole& dispositore,
          Comandi& comandi, Timer& Timer1);

    /// One strictly ordered sequence. It ends the process where another instance runs, and where the archive
    /// isn't found or can't be opened.
    void carica();
    /// Each activation of the window; only the first after the load has an effect.
    void attiva();
    /// The unload: ends the process.
    void scarica();

private:
    void istanzaUnica();
    void leggiPathDB();
    void cercaArchivio();
    void archivioNonTrovato();
    [[nodiscard]] std::string esitoEco() const;
    void apriArchivio();
    void svuotaLogVoce() const;
    void togliVideataVecchia();
    void leggiAndroid();
    [[nodiscard]] bool esiste(const char* nome) const;

    ContestoConsole& c_;
    Caricatore& caricatore_;
    DispositoreConsole& dispositore_;
    Comandi& comandi_;
    Timer& Timer1_;
    bool caricata_ = false;
    bool attivata_ = false;
};

} // namespace lumigrafo
