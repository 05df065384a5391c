#include "tests/e2e/modello.h"
#include "tests/sostegno/archivio_prova.h"
#include "tests/sostegno/cartella_temporanea.h"
#include "tests/sostegno/processo.h"

#include <chrono>
#include <csignal>
#include <fstream>
#include <gtest/gtest.h>
#include <random>

namespace lumigrafo::prova {
namespace {

using namespace std::chrono_literals;

struct Caso {
    const char* nome;
    void (*prepara)(ArchivioProva& archivio, const FileIni& ini);
};

void moltiOrdini(ArchivioProva& archivio, int ordini) {
    archivio.esegui(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " + std::to_string(ordini) +
        ") INSERT INTO Lumigrafo (Sigla, Numero, Categoria1, Pezzi1, Categoria2, Pezzi2, Categoria3, "
        "Pezzi3) SELECT char(65 + i % 5), i, -1, 2, -(i % 2), 1, -(i % 3 = 0), 4 FROM n");
}

const Caso kCasi[] = {
    {"vuoto", [](ArchivioProva&, const FileIni& ini) { impostaReparti(ini, 3); }},
    {"ordini5000Righe50",
     [](ArchivioProva& a, const FileIni& ini) {
         moltiOrdini(a, 5000);
         impostaReparti(ini, 3);
         ini.ScriviIni(kSezioneImpostazioni, "NumeroMassimoRighe", 50);
     }},
    {"ordini5000Righe400",
     [](ArchivioProva& a, const FileIni& ini) {
         moltiOrdini(a, 5000);
         impostaReparti(ini, 1);
         ini.ScriviIni(kSezioneImpostazioni, "NumeroMassimoRighe", 400);
     }},
    {"lettereEPezziNulliOMinuscoli",
     [](ArchivioProva& a, const FileIni& ini) {
         a.ordine(std::nullopt, 1, {{1, 1}});
         a.ordine("", 2, {{1, 1}, {2, 1}});
         a.ordine("b", 3, {{2, 1}});
         a.ordine("B", 4, {{3, 1}});
         a.esegui("UPDATE Lumigrafo SET Pezzi1 = NULL, Pezzi2 = NULL, Pezzi3 = NULL");
         a.esegui("INSERT INTO Numero (Numero) VALUES (NULL)");
         impostaReparti(ini, 3);
     }},
    {"senzaImpostazioni",
     [](ArchivioProva& a, const FileIni&) {
         a.ordine("A", 1, {{1, 1}});
     }},
    {"impostazioniIlleggibili",
     [](ArchivioProva& a, const FileIni& ini) {
         a.ordine("A", 1, {{1, 1}});
         std::mt19937 caso(599);
         std::ofstream file(ini.file(), std::ios::binary);
         for (int i = 0; i < 20000; ++i)
             file.put(static_cast<char>(caso()));
     }},
};

void PrintTo(const Caso& caso, std::ostream* out) {
    *out << caso.nome;
}

class Avvii : public testing::TestWithParam<Caso> {};

/// The voice log is emptied once the grids stand; from there the program must live on, with its board.
TEST_P(Avvii, ilProgrammaParte) {
    const CartellaTemporanea cartella;
    ArchivioProva archivio(cartella.percorso() / "archivio.mdb");
    std::ofstream(cartella.percorso() / ".sonoindebug");
    GetParam().prepara(archivio, FileIni(cartella.percorso() / kFileImpostazioni));
    const auto inizio = std::chrono::steady_clock::now();
    Processo programma({LUMIGRAFO},
                       {{"QT_QPA_PLATFORM", "offscreen"}, {"LUMIGRAFO_HOME", cartella.percorso().string()}});
    ASSERT_TRUE(attendiChe(20s, [&] {
        return std::filesystem::exists(cartella.percorso() / "log.vocal.txt") || !programma.vivo();
    }));
    const std::chrono::duration<double> durata = std::chrono::steady_clock::now() - inizio;
    EXPECT_EQ(programma.fine(500ms), std::nullopt) << "it didn't live on";
    programma.segnala(SIGTERM);
    EXPECT_EQ(programma.fine(10s), -SIGTERM);
    std::printf("grids filled after %.2f s\n", durata.count());
}

INSTANTIATE_TEST_SUITE_P(Casi, Avvii, testing::ValuesIn(kCasi),
                         [](const auto& caso) { return std::string(caso.param.nome); });

} // namespace
} // namespace lumigrafo::prova
