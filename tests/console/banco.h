#pragma once

#include "boards/crea_videata.h"
#include "console/console.h"
#include "console/dati_stato.h"
#include "console/pompa_console.h"
#include "platform/finti/finti.h"
#include "platform/finti/messaggi_finti.h"
#include "platform/finti/scelta_file_finta.h"
#include "tests/console/finti_console.h"
#include "tests/sostegno/archivio_prova.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <chrono>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace lumigrafo::prova {

using namespace std::chrono_literals;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::Not;

/// A console without a window on a real archive, with every port faked; what the fakes are told is in
/// `diario`.
class Banco {
public:
    Banco() = default;
    /// In a program folder that outlives it, with the archive that stands there.
    explicit Banco(std::filesystem::path esistente) : cartella(std::move(esistente)) {}

    Diario diario;
    CartellaTemporanea cartella;
    Ambiente ambiente{cartella.percorso(), "/opt/lumigrafo/lumigrafo", ""};
    ArchivioProva archivio{cartella.percorso() / "archivio.mdb"};
    FileIni impostazioni{cartella.percorso() / kFileImpostazioni};
    FileIni videata{cartella.percorso() / kFileVideata};
    FileIni ultimi{cartella.percorso() / kFileUltimiChiamati};

    OrologioFinto orologio{&diario};
    StatoConsole stato;
    DatiDaStato dati{stato};
    PompaFinta pompa{&diario};
    TimersFinti timers;
    AvvisiFinti avvisi{&diario};
    MessaggiFinti messaggi{&diario};
    ProcessiFinti processi{&diario};
    AlimentazioneFinta alimentazione;
    SistemaFinto sistema{&diario};
    DesktopFinto desktop{&diario};
    UscitaFinta uscita{&diario};
    DialoghiFinti dialoghi{diario};
    CollegatiFinti collegati{diario};
    FinestraFinta finestra{diario};
    SceltaFileFinta sceltaFile;
    /// Real sides in the place of the fakes, for tests of the window; set before the first `console()`.
    Pompa* pompaVera = nullptr;
    Timers* timersVeri = nullptr;
    FinestraConsole* finestraVera = nullptr;

    /// The console of one run. Settings must stand in the files before.
    Console& console();
    /// Loads it and empties the diary.
    Console& caricata();
    Videata& board() { return *console().stato().frmVideata; }
    TipoVideata tipoChiesto{};
    bool tipoVero = false; ///< the board of the settings, not the standard one

    void imposta(const char* chiave, const ValoreIni& valore) {
        impostazioni.ScriviIni(kSezioneImpostazioni, chiave, valore);
    }
    /// The categories of the quadrants, behind them the first one's further category; 0 for none.
    void reparti(std::initializer_list<int> categorie);
    /// Texts of a grid's cells, row by row, "" for empty ones.
    [[nodiscard]] std::vector<std::string> celle(int quadrante);
    /// The slots of a quadrant on the board, from 1 to `quanti`.
    [[nodiscard]] std::vector<std::string> posti(int quadrante, int quanti = 6);
    /// What stands on a control of the console.
    [[nodiscard]] const std::string& scritta(const char* nome, int indice = kSenzaIndice) {
        return console().controlli()(nome, indice).Caption();
    }
    /// Makes the cell with this text current and clicks it.
    void clic(int quadrante, const std::string& testo);
    /// Clicks a control of the console.
    void premi(const char* nome, int indice = kSenzaIndice) { console().clic(nome, indice); }
    /// Keys of the scanner.
    void digita(std::string_view tasti);
    /// What the diary holds of these kinds of entries, in order ("cedi" and "attendi" left out, say).
    [[nodiscard]] Diario senza(std::initializer_list<std::string_view> inizi) const;

private:
    std::unique_ptr<PompaConsole> pompaConsole_;
    std::unique_ptr<ServiziSchede> servizi_;
    std::unique_ptr<Console> console_;
};

} // namespace lumigrafo::prova
