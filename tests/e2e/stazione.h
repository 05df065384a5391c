#pragma once

#include "settings/ini/ini.h"
#include "tests/e2e/schermo.h"
#include "tests/sostegno/archivio_prova.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <memory>
#include <string>

namespace lumigrafo::prova {

/// The program on a display, with a program folder and an archive of its own; three departments (categories
/// 1, 2, 3), the board on the second monitor, no start window.
class Stazione {
public:
    explicit Stazione(const Schermo& schermo);

    CartellaTemporanea cartella;
    ArchivioProva archivio{cartella.percorso() / "archivio.mdb"};

    void imposta(const char* chiave, const ValoreIni& valore) const;
    /// Starts the program anew, without waiting for anything.
    Processo& avvia(const std::string& parola = "");
    /// The same, and waits until console and board stand on their monitors. False where they don't.
    [[nodiscard]] bool accendi();
    [[nodiscard]] Processo& programma() { return *programma_; }
    [[nodiscard]] Processo::Ambiente ambiente() const;

    /// Touches a cell.
    void clic(int quadrante, int riga, int colonna) const;
    /// Touches the middle of a control, by the name in the console's layout.
    void clic(const std::string& controllo) const;
    /// The newest slot of a quadrant, by the state file; the newest entry of its list.
    [[nodiscard]] std::string sulTabellone(int quadrante) const;
    [[nodiscard]] std::string ultimoChiamato(int quadrante) const;
    [[nodiscard]] std::string servito(const std::string& cella);

    FinestraX console, tabellone;

private:
    [[nodiscard]] RettangoloPixel contenuto() const;

    const Schermo& schermo_;
    std::unique_ptr<Processo> programma_;
};

} // namespace lumigrafo::prova
