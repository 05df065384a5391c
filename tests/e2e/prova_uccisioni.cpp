#include "data/dao.h"
#include "data/verifica_archivio.h"
#include "tests/e2e/modello.h"
#include "tests/sostegno/archivio_prova.h"
#include "tests/sostegno/cartella_temporanea.h"
#include "tests/sostegno/durata.h"
#include "tests/sostegno/processo.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>
#include <random>
#include <sstream>
#include <thread>

namespace lumigrafo::prova {
namespace {

using namespace std::chrono_literals;

constexpr unsigned kSeme = 20260315;

struct Chiamata {
    std::size_t quadrante = 0;
    std::string cella;
};

/// A console killed again and again in the middle of its work, on one folder.
class Uccisioni : public testing::Test {
protected:
    CartellaTemporanea cartella;
    const std::filesystem::path file = cartella.percorso() / kFileArchivio;
    std::optional<ArchivioProva> archivio{file};
    int riparazioni = 0;
    std::string aMeta = "0";        ///< numbers of which a part was written
    StatoSalvato prima;             ///< what the last kill left
    std::vector<Chiamata> chiamate; ///< of this round; the last one may have been cut short
    bool intera = true;             ///< it wasn't
    int numero = 0;                 ///< of the last order

    void SetUp() override {
        const FileIni ini(cartella.percorso() / kFileImpostazioni);
        impostaReparti(ini, 3);
        ini.ScriviIni(kSezioneImpostazioni, "NumeroMassimoRighe", 400);
    }

    /// Orders for more calls than a round can make; every third one is open in two quadrants.
    void ordini() {
        while (std::stoi(archivio->leggi("SELECT count(*) FROM Lumigrafo")) < 150) {
            ++numero;
            const int categoria = numero % 3 + 1;
            if (numero % 9 == 0)
                archivio->ordine("A", numero, {{categoria, 1}, {categoria % 3 + 1, 2}});
            else
                archivio->ordine("A", numero, {{categoria, 1}});
        }
    }

    /// The console starts with what the files hold.
    void iniziaCon(Processo& operatore) {
        for (std::size_t q = 0; q < 3; ++q) {
            std::string attesi = "posti|" + std::to_string(q);
            for (const std::string& posto : prima.posti[q])
                attesi += "|" + posto;
            ASSERT_EQ(operatore.riga(10s), attesi);
        }
    }

    void annota(const std::string& uscita) {
        std::istringstream righe(uscita);
        chiamate.clear();
        intera = true;
        for (std::string riga; std::getline(righe, riga);) {
            intera = riga == "fatto";
            if (!intera)
                chiamate.push_back({static_cast<std::size_t>(riga.at(7) - '0'), riga.substr(9)});
        }
    }

    void controllaFile() {
        StatoSalvato stato = prima;
        for (std::size_t i = 0; i + 1 < chiamate.size(); ++i)
            stato = stato.dopo(chiamate[i].quadrante, chiamate[i].cella);
        const StatoSalvato trovato = StatoSalvato::leggi(cartella.percorso());
        if (!chiamate.empty()) {
            const auto possibili = stato.durante(chiamate.back().quadrante, chiamate.back().cella);
            if (intera)
                stato = possibili.back();
            else if (std::find(possibili.begin(), possibili.end(), trovato) != possibili.end())
                stato = trovato;
        }
        ASSERT_EQ(trovato.testo(), stato.testo()) << "no state of the run";
        prima = trovato;
    }

    void controllaArchivio() {
        if (const std::string guasti = archivio->discordanze(); !guasti.empty()) {
            ASSERT_TRUE(archiviAccess()) << guasti; // it has no journal: `ripara` puts it right
            archivio.reset();
            (void)riparaArchivio(file, cartella.percorso() / "prima.mdb");
            archivio.emplace(file);
            ASSERT_EQ(archivio->discordanze(), "") << "after the repair of: " << guasti;
            ++riparazioni;
            if (!intera)
                aMeta += ", " + chiamate.back().cella.substr(3);
        }
        for (std::size_t i = 0; i + (intera ? 0 : 1) < chiamate.size(); ++i) {
            const std::string chi = "Numero = " + chiamate[i].cella.substr(3);
            const std::string categoria = std::to_string(chiamate[i].quadrante + 1);
            ASSERT_EQ(archivio->leggi("SELECT Servito FROM ScontriniEmessi WHERE " + chi), "-1") << chi;
            ASSERT_EQ(archivio->leggi("SELECT count(*) FROM Lumigrafo WHERE Categoria" + categoria +
                                      " <> 0 AND " + chi),
                      "0")
                << chi;
        }
        // No order is gone from the queue whose receipt isn't marked: both are written as one, whenever the
        // kill came.
        ASSERT_EQ(
            archivio->leggi("SELECT count(*) FROM ScontriniEmessi s WHERE Servito = 0 AND NOT EXISTS "
                            "(SELECT 1 FROM Lumigrafo l WHERE l.Numero = s.Numero) AND Numero NOT IN (" +
                            aMeta + ")"),
            "0")
            << "an order was lost";
    }
};

TEST_F(Uccisioni, lascianoSempreUnoStatoDellaCorsa) {
    std::mt19937 caso(kSeme);
    const int uccisioni = giri(50); // LUMIGRAFO_GIRI makes it another number
    int totale = 0, tagliate = 0;
    for (int giro = 0; giro < uccisioni; ++giro) {
        SCOPED_TRACE("seed " + std::to_string(kSeme) + ", round " + std::to_string(giro));
        ordini();
        Processo operatore({OPERATORE, cartella.percorso().string()});
        iniziaCon(operatore);
        std::this_thread::sleep_for(std::chrono::microseconds(caso() % 60000)); // any instant of its work
        operatore.uccidi();
        annota(operatore.resto());
        totale += static_cast<int>(chiamate.size());
        tagliate += intera ? 0 : 1;
        ASSERT_NO_THROW(controllaFile());
        controllaArchivio();
        if (HasFatalFailure())
            return;
    }
    std::printf("%d kills, %d calls, %d of them cut short, %d repairs\n", uccisioni, totale, tagliate,
                riparazioni);
    EXPECT_GT(tagliate, uccisioni / 2) << "the kills missed the work";
}

} // namespace
} // namespace lumigrafo::prova
