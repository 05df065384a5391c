#include "tests/console/banco.h"

namespace lumigrafo::prova {
namespace {

class Chiamate : public testing::Test {
protected:
    Banco b;
    void SetUp() override {
        b.reparti({1, 2, 3});
        b.imposta("Vocale", 1);
        for (int n = 1; n <= 8; ++n)
            b.archivio.ordine("A", n, {{1, 2}, {2, 1}});
    }
};

TEST_F(Chiamate, TheGridsStandStillWhileAReceiptIsIssued) {
    b.imposta("ScontrinoFiscale", 1);
    b.caricata();
    b.collegati.dentroScontrino = [this] { // the operator thinks about the printer for a while
        b.archivio.esegui("DELETE FROM Lumigrafo WHERE Numero = 1");
        b.timers.avanza(32s);
    };
    b.clic(0, "A  3");
    EXPECT_THAT(b.celle(0), ElementsAre("A  1", "A  2", "", "A  4", "A  5", "A  6", "A  7", "A  8", ""));
    b.timers.avanza(32s);
    EXPECT_THAT(b.celle(0), ElementsAre("A  2", "A  4", "A  5", "A  6", "A  7", "A  8"));
}

TEST_F(Chiamate, OneTouchDoesTheWholeRoad) {
    b.imposta("ScontrinoFiscale", 1);
    b.caricata();
    b.clic(0, "A  3");
    EXPECT_THAT(b.senza({"cedi", "attendi"}),
                ElementsAre("ridisegna", "videata in vista", "android 0", "console in vista",
                            "voce Cucina A 3", "fiscale A/3"));
    EXPECT_EQ(b.scritta("lblNumero", 0), "A 3");
    EXPECT_THAT(b.posti(0), ElementsAre("", "", "A 3", "", "", ""));
    EXPECT_EQ(b.videata.LeggiIni("0", "Numero3"), "A 3");
    EXPECT_EQ(b.ultimi.LeggiIni("Impo", "Ultimo_0_0"), "A  3");
    EXPECT_THAT(b.celle(0), ElementsAre("A  1", "A  2", "", "A  4", "A  5", "A  6", "A  7", "A  8", ""));
    EXPECT_THAT(b.celle(1), Contains("A  3")); // its other category is still open
    EXPECT_EQ(
        b.archivio.leggi("SELECT Categoria1, Pezzi1, Categoria2, Pezzi2 FROM Lumigrafo WHERE Numero = 3"),
        "0|0|-1|1");
    // 20:30 is minute 1230; the lines of the other category stay unserved in the board's own details alone.
    EXPECT_EQ(
        b.archivio.leggi("SELECT CATEGORIA, SERVITO, MinutiServito FROM DettaglioLumigrafo WHERE Numero = 3"),
        "1|-1|1230 2|0|0");
    EXPECT_EQ(b.archivio.leggi("SELECT DISTINCT SERVITO, MinutiServito FROM Dettaglio WHERE Numero = 3"),
              "-1|1230");
    EXPECT_EQ(b.archivio.leggi("SELECT Numero FROM ScontriniEmessi WHERE Servito <> 0"), "3");
}

TEST_F(Chiamate, NumbersAgeThroughTheSlotsInTheirOddOrder) {
    b.caricata();
    for (int n = 1; n <= 7; ++n)
        b.clic(0, "A  " + std::to_string(n));
    EXPECT_THAT(b.posti(0), ElementsAre("A 5", "A 6", "A 7", "A 4", "A 3", "A 2"));
    EXPECT_THAT(b.posti(1), Each(""));
    for (std::size_t n = 1; n <= 6; ++n)
        EXPECT_EQ(b.videata.LeggiIni("0", "Numero" + std::to_string(n)), b.posti(0)[n - 1]);
    EXPECT_EQ(b.ultimi.LeggiIni("Impo", "Ultimo_0_6"), "A  1");
    EXPECT_EQ(b.ultimi.LeggiIni("Impo", "Ultimo_0_7"), "");
}

TEST_F(Chiamate, ANumberOnShowIsCalledAgainWithoutAShift) {
    b.caricata();
    b.clic(0, "A  1");
    b.clic(0, "A  2");
    b.archivio.esegui("UPDATE Lumigrafo SET Categoria1 = -1 WHERE Numero = 1"); // entered anew
    b.premi("cmdAggiorna");
    b.diario.clear();
    b.clic(0, "A  1");
    EXPECT_THAT(b.posti(0), ElementsAre("", "A 1", "A 2", "", "", ""));
    EXPECT_THAT(b.diario, Not(Contains("android 0")));
    EXPECT_THAT(b.diario, Contains("voce Cucina A 1"));
    EXPECT_EQ(b.archivio.leggi("SELECT Categoria1 FROM Lumigrafo WHERE Numero = 1"), "0");
    b.clic(1, "A  1"); // another quadrant has slots of its own
    EXPECT_EQ(b.posti(1)[2], "A 1");
}

TEST_F(Chiamate, TheLastOpenCategoryTakesTheOrderOffTheQueue) {
    b.caricata();
    b.clic(0, "A  1");
    b.clic(1, "A  1");
    EXPECT_EQ(b.archivio.coda(), "A2 A3 A4 A5 A6 A7 A8");
    b.stato.Categoria[3] = 2; // the further category is cleared with the first
    b.clic(0, "A  2");
    EXPECT_EQ(b.archivio.coda(), "A3 A4 A5 A6 A7 A8");
}

TEST_F(Chiamate, AnEmptiedRowGoesAndAHoleStays) {
    b.caricata();
    for (int n : {7, 8})
        b.clic(0, "A  " + std::to_string(n));
    EXPECT_THAT(b.celle(0), ElementsAre("A  1", "A  2", "A  3", "A  4", "A  5", "A  6"));
    b.stato.grid[0].sfondo(0, 1, kGiallo);
    b.clic(0, "A  2");
    EXPECT_THAT(b.celle(0), ElementsAre("A  1", "", "A  3", "A  4", "A  5", "A  6"));
    EXPECT_EQ(b.stato.grid[0].sfondo(0, 1), std::nullopt) << "the highlight was the order's";
    b.clic(0, "A  1");
    b.clic(0, "A  3");
    EXPECT_THAT(b.celle(0), ElementsAre("A  4", "A  5", "A  6"));
    EXPECT_EQ(b.stato.grid[0].Row(), -1) << "the order that came up isn't painted as the touched one";
}

TEST_F(Chiamate, StrikeOffModeOnlyStrikesOff) {
    b.caricata();
    b.premi("cmdModalita", 0);
    EXPECT_EQ(b.messaggi.mostrati.back().first, "Modalità depennamento");
    EXPECT_EQ(b.scritta("cmdModalita", 1), "Modalità depennamento");
    b.diario.clear();
    b.clic(0, "A  1");
    EXPECT_THAT(b.senza({"cedi", "attendi"}), ElementsAre("ridisegna"));
    EXPECT_THAT(b.posti(0), Each(""));
    EXPECT_FALSE(std::filesystem::exists(b.ultimi.file()));
    EXPECT_EQ(b.archivio.leggi("SELECT Numero FROM ScontriniEmessi WHERE Servito <> 0"), "1");
    b.premi("cmdModalita", 1);
    EXPECT_FALSE(b.stato.ModalitaDepennamento);
}

TEST_F(Chiamate, OneDepartmentSaysTheKeyWordAndMarksAllLines) {
    b.reparti({1, 0, 0});
    b.archivio.ordine("", 50, {{1, 1}, {4, 1}});
    b.caricata();
    b.clic(0, "50");
    EXPECT_THAT(b.diario, Contains("voce Numero  50")); // no letter leaves two blanks
    EXPECT_EQ(b.archivio.leggi("SELECT DISTINCT SERVITO FROM DettaglioLumigrafo WHERE Numero = 50"), "-1");
}

TEST_F(Chiamate, ClicksThatCallNothing) {
    b.caricata();
    b.stato.grid[0].corrente(2, 2); // a hole at the end of the last row
    b.console().clicGriglia(0);
    b.stato.grid[2].corrente(-1, -1); // an empty grid
    b.console().clicGriglia(2);
    EXPECT_THAT(b.diario, ElementsAre());
    b.stato.TipoLumigrafo = 4;
    b.clic(0, "A  1");
    EXPECT_EQ(b.messaggi.mostrati.back(),
              (std::pair<std::string, std::int16_t>("Clic non possibile con sistema Avanti il Prossimo", 2)));
    EXPECT_EQ(b.archivio.coda(), "A1 A2 A3 A4 A5 A6 A7 A8");
}

TEST_F(Chiamate, ASecondClickDuringTheFirstDoesNothing) {
    b.caricata();
    for (const char* punto : {"grid_click/5", "AggiornaGridDB/8"})
        b.pompa.alPunto(punto, [this] { b.clic(0, "A  5"); });
    b.clic(0, "A  1");
    EXPECT_THAT(b.posti(0), ElementsAre("", "", "A 1", "", "", ""));
    b.clic(0, "A  5"); // the guard is off again
    EXPECT_EQ(b.posti(0)[2], "A 5");
}

TEST_F(Chiamate, ARebuildInTheMiddleOfAClickStrikesOffTheTouchedOrder) {
    b.caricata();
    // Two orders go meanwhile, and the cell under the finger belongs to another one when it is emptied.
    b.pompa.alPunto("grid_click/5", [this] {
        b.archivio.esegui("DELETE FROM Lumigrafo WHERE Numero < 3");
        b.premi("cmdAggiorna");
    });
    b.clic(0, "A  3");
    EXPECT_EQ(b.posti(0)[2], "A 3");
    EXPECT_EQ(b.archivio.leggi("SELECT Numero FROM ScontriniEmessi WHERE Servito <> 0"), "3");
    EXPECT_EQ(b.celle(0)[2],
              ""); // the known hazard: A 5 hides until the next rebuild
    b.timers.avanza(32s);
    EXPECT_THAT(b.celle(0), ElementsAre("A  4", "A  5", "A  6", "A  7", "A  8", ""));
}

TEST_F(Chiamate, AnOrderThatAnotherStationTookIsStillCalled) {
    b.caricata();
    b.archivio.esegui("DELETE FROM Lumigrafo WHERE Numero = 4");
    b.clic(0, "A  4");
    EXPECT_EQ(b.posti(0)[2], "A 4");
    EXPECT_THAT(b.celle(0), Contains("A  4")); // its cell stays until the next rebuild
    EXPECT_EQ(b.archivio.leggi("SELECT Numero FROM ScontriniEmessi WHERE Servito <> 0"), "");
    // The queue shrinks to nothing while a click is under way.
    b.pompa.alPunto("grid_click/5", [this] {
        b.archivio.esegui("DELETE FROM Lumigrafo");
        b.premi("cmdAggiorna");
    });
    b.clic(0, "A  8");
    EXPECT_THAT(b.celle(0), ElementsAre());
}

TEST_F(Chiamate, AnnouncementsAreRepeatedFromTheLabelsAndTheList) {
    b.caricata();
    for (int n = 1; n <= 3; ++n)
        b.clic(1, "A  " + std::to_string(n));
    b.diario.clear();
    b.premi("lblNumero", 1);
    b.premi("lblNumero", 0); // nothing called there yet
    EXPECT_THAT(b.diario, ElementsAre("voce Bar A 3"));
    b.premi("cmdNumero", 1);
    const Controlli& c = b.console().controlli();
    EXPECT_TRUE(c("fraNumeri").Visible());
    EXPECT_EQ(c("fraNumeri").Left(), c("lblNumero", 1).Left());
    EXPECT_EQ(c("lblNumeroPrec", 0).Caption(), "A  3");
    EXPECT_EQ(c("lblNumeroPrec", 7).Caption(), "");
    b.premi("lblNumeroPrec", 2);
    EXPECT_EQ(b.diario.back(), "voce Bar A  1");
    EXPECT_FALSE(c("fraNumeri").Visible());
    b.premi("cmdNumero", 1);
    b.premi("lblNumeroPrec", 7); // nothing was called so long ago
    EXPECT_EQ(b.diario.back(), "voce Bar A  1");
    b.premi("cmdNumero", 0);
    b.timers.avanza(3s);
    EXPECT_FALSE(c("fraNumeri").Visible());
}

} // namespace
} // namespace lumigrafo::prova
