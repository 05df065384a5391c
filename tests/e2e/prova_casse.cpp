#include "announce/log.h"
#include "links/server_casse.h"
#include "platform/file.h"
#include "settings/ini/ini.h"
#include "tests/sostegno/archivio_prova.h"
#include "tests/sostegno/cartella_temporanea.h"
#include "tests/sostegno/cliente_nudo.h"
#include "tests/sostegno/durata.h"
#include "tests/sostegno/processo.h"

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <numeric>
#include <set>
#include <thread>

namespace lumigrafo::prova {
namespace {

using namespace std::chrono_literals;
using Momento = std::chrono::steady_clock;

constexpr int kCasse = 10;

/// The program itself in the next-customer system, asked by ten desks as fast as they can.
class Casse : public testing::Test {
protected:
    CartellaTemporanea cartella;
    ArchivioProva archivio{cartella.percorso() / "archivio.mdb"};
    /// A full archive has 5,000: LUMIGRAFO_DURATA=50.
    const int numeri = static_cast<int>(100 * durataCarico().count());
    std::unique_ptr<Processo> programma;
    std::vector<int> dati; ///< numbers that a desk was answered, in no order
    std::atomic<int> quanti = 0;
    std::chrono::milliseconds attesaMassima{0};

    void SetUp() override {
        ASSERT_TRUE(attendiChe(60s, [] { return !inAscolto(); })) << "somebody else has the port";
        std::ofstream(cartella.percorso() / ".sonoindebug");
        const FileIni ini(cartella.percorso() / kFileImpostazioni);
        ini.ScriviIni(kSezioneImpostazioni, "TipoLumigrafo", 4);
        ini.ScriviIni(kSezioneImpostazioni, "Categoria0", 1);
        ini.ScriviIni(kSezioneImpostazioni, "NumeroMassimoRighe", 1300);
        archivio.esegui("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
                        std::to_string(numeri) +
                        ") INSERT INTO Lumigrafo (Sigla, Numero, Categoria1) SELECT '', i, -1 FROM n");
    }

    static bool inAscolto() {
        try {
            ClienteNudo(kPortaCasse, true);
            return true;
        } catch (const std::runtime_error&) {
            return false;
        }
    }
    [[nodiscard]] std::string registro() const {
        return leggiFile(cartella.percorso() / kFileLogConnessioni).value_or("");
    }
    [[nodiscard]] bool accendi() {
        std::filesystem::remove(cartella.percorso() / kFileLogConnessioni);
        programma =
            std::make_unique<Processo>(std::vector<std::string>{LUMIGRAFO},
                                       Processo::Ambiente{{"LUMIGRAFO_HOME", cartella.percorso().string()},
                                                          {"QT_QPA_PLATFORM", "offscreen"}});
        // The first to knock must have left its slot before ten others come.
        return attendiChe(30s, inAscolto) &&
               attendiChe(10s, [&] { return registro().find("Closed") != std::string::npos; });
    }

    /// Asks until there is no number left, or no station.
    void cassa(char sigla, std::vector<int>& avuti, std::chrono::milliseconds& massima) {
        const ClienteNudo presa(kPortaCasse, true);
        for (std::string risposta; risposta != "KO";) {
            const auto inizio = Momento::now();
            if (presa.manda({&sigla, 1}) == 0 || (risposta = presa.ricevi()).empty())
                return;
            massima = std::max(
                massima, std::chrono::duration_cast<std::chrono::milliseconds>(Momento::now() - inizio));
            if (risposta.starts_with("NUMERO ")) {
                avuti.push_back(std::stoi(risposta.substr(7)));
                ++quanti;
            }
        }
    }
    void chiedonoTutte() {
        std::vector<std::vector<int>> avuti(kCasse);
        std::vector<std::chrono::milliseconds> massime(kCasse);
        std::vector<std::thread> fili;
        for (std::size_t i = 0; i < kCasse; ++i)
            fili.emplace_back([&, i] { cassa(static_cast<char>('A' + i % 5), avuti[i], massime[i]); });
        for (std::thread& filo : fili)
            filo.join();
        for (const auto& suoi : avuti)
            dati.insert(dati.end(), suoi.begin(), suoi.end());
        attesaMassima = *std::max_element(massime.begin(), massime.end());
    }
    [[nodiscard]] int inCoda() { return std::stoi(archivio.leggi("SELECT count(*) FROM Lumigrafo")); }
};

TEST_F(Casse, ogniNumeroVaAUnaCassaSola) {
    ASSERT_TRUE(accendi());
    const auto inizio = Momento::now();
    chiedonoTutte();
    const std::chrono::duration<double> durata = Momento::now() - inizio;
    std::vector<int> tutti(static_cast<std::size_t>(numeri));
    std::iota(tutti.begin(), tutti.end(), 1);
    std::sort(dati.begin(), dati.end());
    EXPECT_EQ(dati, tutti);
    EXPECT_EQ(inCoda(), 0);
    EXPECT_TRUE(programma->vivo());
    std::printf("%d numbers in %.1f s, longest answer %lld ms\n", numeri, durata.count(),
                static_cast<long long>(attesaMassima.count()));
    EXPECT_LT(attesaMassima, 5s);
}

TEST_F(Casse, unUccisionePerdeAlPiuIlNumeroCheVieneDato) {
    int uccisioni = 0;
    for (; uccisioni < 4; ++uccisioni) {
        ASSERT_TRUE(accendi());
        const int basta = quanti + numeri / 10 + uccisioni * 7;
        std::thread boia([&] {
            (void)attendiChe(30s, [&] { return quanti >= basta; });
            programma->uccidi();
        });
        chiedonoTutte();
        boia.join();
        ASSERT_EQ(archivio.leggi("PRAGMA integrity_check"), "ok");
        const std::set<int> diversi(dati.begin(), dati.end());
        EXPECT_EQ(diversi.size(), dati.size()) << "a number was given twice";
        EXPECT_LE(numeri - inCoda() - static_cast<int>(dati.size()), uccisioni + 1) << "numbers were lost";
        EXPECT_LE(static_cast<int>(dati.size()) + inCoda(), numeri)
            << "a number that was given is still there";
    }
    ASSERT_TRUE(accendi());
    chiedonoTutte();
    EXPECT_EQ(inCoda(), 0);
    EXPECT_GE(static_cast<int>(dati.size()), numeri - uccisioni);
}

} // namespace
} // namespace lumigrafo::prova
