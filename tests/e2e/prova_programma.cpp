#include "tests/e2e/stazione.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace lumigrafo::prova {
namespace {

using namespace std::chrono_literals;

/// The program itself on a display with two monitors.
class Programma : public ConSchermo {
protected:
    bool vede(const Processo& p, const char* titolo, std::chrono::milliseconds limite = 10s) {
        return attendiChe(limite, [&] { return !schermo->finestre(p.pid(), titolo).empty(); });
    }
};

TEST_F(Programma, unNumeroToccatoEUnoScansionatoVannoSulTabellone) {
    Stazione s(*schermo);
    s.archivio.ordine("A", 1, {{1, 2}});
    s.archivio.ordine("A", 2, {{1, 1}, {2, 3}});
    s.archivio.ordine("B", 7, {{1, 1}});
    ASSERT_TRUE(s.accendi());
    EXPECT_LT(s.console.posto.x + s.console.posto.larghezza, Schermo::kLarghezza + 1);
    EXPECT_EQ(s.tabellone.posto,
              (RettangoloPixel{Schermo::kLarghezza, 0, Schermo::kLarghezza, Schermo::kAltezza}));
    EXPECT_GT(schermo->colori(s.console.posto), 8);
    EXPECT_GT(schermo->colori(s.tabellone.posto), 8);

    s.clic(0, 0, 0);
    ASSERT_TRUE(attendiChe(10s, [&] { return s.servito("A  1") == "-1"; }));
    EXPECT_EQ(s.sulTabellone(0), "A 1");
    EXPECT_EQ(s.archivio.coda(), "A2 B7");
    s.clic(0, 0, 0); // its cell is empty now
    schermo->digita(codiceScontrino(1, "A  2") + "\r");
    ASSERT_TRUE(attendiChe(10s, [&] { return s.servito("A  2") == "-1"; }));
    EXPECT_EQ(s.sulTabellone(1), "A 2");
    EXPECT_EQ(s.sulTabellone(0), "A 1");
    EXPECT_EQ(s.ultimoChiamato(0), "A  1");
    EXPECT_EQ(
        s.archivio.leggi("SELECT Categoria1, Categoria2, Pezzi1, Pezzi2 FROM Lumigrafo WHERE Numero = 2"),
        "-1|0|1|0");
    EXPECT_EQ(s.archivio.leggi("SELECT Numero, CATEGORIA, SERVITO FROM DettaglioLumigrafo ORDER BY 1, 2"),
              "1|1|-1 2|1|0 2|2|-1 7|1|0");

    // The system ends it; nothing of it stands in the way of the next start, which shows the same board.
    s.programma().segnala(SIGTERM);
    EXPECT_EQ(s.programma().fine(10s), -SIGTERM);
    ASSERT_TRUE(s.accendi());
    EXPECT_EQ(s.sulTabellone(0), "A 1");
    EXPECT_EQ(s.sulTabellone(1), "A 2");
}

TEST_F(Programma, ogniChiamataHaIlSuoScontrino) {
    Stazione s(*schermo);
    s.archivio.ordine("A", 1, {{1, 2}});
    s.archivio.ordine("A", 2, {{1, 1}});
    s.archivio.ordine("A", 3, {{2, 1}});
    s.imposta("ScontrinoFiscale", 1);
    ASSERT_TRUE(s.accendi());
    const auto scontrini = [&] {
        std::error_code nessuna;
        const std::filesystem::directory_iterator file(s.cartella.percorso() / "Scontrini", nessuna);
        return std::distance(begin(file), end(file));
    };
    s.clic(0, 0, 0);
    EXPECT_TRUE(attendiChe(10s, [&] { return scontrini() == 1; }));
    schermo->digita(codiceScontrino(1, "A  3") + "\r");
    EXPECT_TRUE(attendiChe(10s, [&] { return scontrini() == 2; }));
    EXPECT_TRUE(attendiChe(10s, [&] { return s.servito("A  3") == "-1"; }));
    EXPECT_EQ(s.archivio.coda(), "A2");

    // A failure is told and asked about on the operator's monitor, never on the public's.
    const FileIni fiscale(s.cartella.percorso() / "Fiscale.ini");
    fiscale.ScriviIni("Fiscale", "Driver", "programma");
    fiscale.ScriviIni("Fiscale", "Programma", "/nessun/programma");
    s.clic(0, 0, 1);
    for (const auto& [titolo, tasto] :
         {std::pair{"Stampa dello scontrino", "\r"}, {"ERRORE STAMPA FISCALE", "\x1b"}}) {
        ASSERT_TRUE(vede(s.programma(), titolo)) << titolo;
        EXPECT_LT(schermo->finestre(s.programma().pid(), titolo).front().posto.x, Schermo::kLarghezza);
        EXPECT_TRUE(attendiChe(10s, [&, t = titolo, k = tasto] { // until it has the keyboard
            schermo->digita(k);
            return schermo->finestre(s.programma().pid(), t).empty();
        }));
    }
    EXPECT_TRUE(attendiChe(10s, [&] { return s.servito("A  2") == "-1"; }));
}

TEST_F(Programma, unSecondoAvvioSiScusaEFinisce) {
    Stazione s(*schermo);
    s.archivio.ordine("A", 1, {{1, 1}});
    ASSERT_TRUE(s.accendi());
    const auto inizio = std::chrono::steady_clock::now();
    Processo secondo({LUMIGRAFO}, s.ambiente());
    EXPECT_TRUE(attendiChe(3s, [&] { return !schermo->finestre(secondo.pid(), ".*").empty(); }));
    EXPECT_EQ(secondo.fine(15s), 0);
    EXPECT_GE(std::chrono::steady_clock::now() - inizio, 4s);
    EXPECT_TRUE(s.programma().vivo());

    // The word of its own restarts lets another in beside it.
    Processo riavvio({LUMIGRAFO, "RIAVVIO"}, s.ambiente());
    EXPECT_TRUE(vede(riavvio, "Lumigrafo"));
    EXPECT_TRUE(s.programma().vivo());
}

TEST_F(Programma, unErroreSiMostraEFinisceMale) {
    struct Caso {
        const char* nome;
        const char* titolo; ///< of the box
        void (*guasta)(Stazione&);
    };
    const Caso casi[] = {
        {"no archive but rubbish", "ERRORE",
         [](Stazione& s) {
             std::ofstream(s.cartella.percorso() / "archivio.mdb", std::ios::trunc) << "nessun archivio";
         }},
        {"a category that is no number", "Lumigrafo", [](Stazione& s) { s.imposta("Categoria1", "pippo"); }},
        {"an archive without a table", "clsRecordset",
         [](Stazione& s) { s.archivio.esegui("DROP TABLE Categorie"); }},
    };
    for (const Caso& caso : casi) {
        SCOPED_TRACE(caso.nome);
        Stazione s(*schermo);
        caso.guasta(s);
        Processo& programma = s.avvia();
        ASSERT_TRUE(vede(programma, caso.titolo));
        EXPECT_TRUE(programma.vivo());
        EXPECT_TRUE(attendiChe(10s, [&] { // until the window manager has given it the keyboard
            schermo->digita("\r");
            return programma.fine(200ms).has_value();
        }));
        EXPECT_GT(programma.fine(0ms).value_or(0), 0);
    }
}

TEST(RigaDiComando, versioneEAiutoNonChiedonoUnoSchermo) {
    const Processo::Ambiente senzaSchermo{
        {"DISPLAY", ""}, {"WAYLAND_DISPLAY", ""}, {"QT_QPA_PLATFORM", "xcb"}};
    const auto [versione, testoVersione] = esegui({LUMIGRAFO, "--version"}, senzaSchermo);
    EXPECT_EQ(versione, 0);
    EXPECT_EQ(testoVersione, "lumigrafo " LUMIGRAFO_VERSIONE "\n");
    const auto [aiuto, testoAiuto] = esegui({LUMIGRAFO, "--help"}, senzaSchermo);
    EXPECT_EQ(aiuto, 0);
    EXPECT_NE(testoAiuto.find("RIDOTTA"), std::string::npos);
}

} // namespace
} // namespace lumigrafo::prova
