#include "console/testi.h"
#include "platform/guasto.h"
#include "tests/console/banco.h"

namespace lumigrafo::prova {
namespace {

class Griglie : public testing::Test {
protected:
    Banco b;
    void SetUp() override { b.reparti({1, 2, 3}); }
};

TEST_F(Griglie, OrdersStandInTheQuadrantsOfTheirOpenCategoriesByLetterAndNumber) {
    b.archivio.ordine("B", 7, {{1, 1}});
    b.archivio.ordine("A", 12, {{1, 2}, {2, 3}});
    b.archivio.ordine("A", 7, {{2, 1}}, true);
    b.archivio.ordine("", 9, {{1, 1}});
    b.archivio.ordine(std::nullopt, 3, {{3, 1}});
    b.archivio.esegui("UPDATE Lumigrafo SET Pezzi3 = NULL WHERE Numero = 3");
    b.archivio.esegui("UPDATE Numero SET Numero = 41");
    b.caricata();
    EXPECT_THAT(b.celle(0), ElementsAre("9", "A  12", "B  7"));
    EXPECT_THAT(b.celle(1), ElementsAre("A  7", "A  12", ""));
    EXPECT_THAT(b.celle(2), ElementsAre("3", "", ""));
    EXPECT_EQ(b.stato.grid[1].sfondo(0, 0), rgb(255, 128, 128));
    EXPECT_EQ(b.stato.grid[1].sfondo(0, 1), std::nullopt);
    EXPECT_EQ(b.scritta("lblNumCasse"), "Le casse stanno servendo il numero 41");
    EXPECT_EQ(b.scritta("lblPezzi", 1), "Pezzi 4");
    EXPECT_EQ(b.scritta("lblReparto", 1), "Bar");
}

TEST_F(Griglie, TheFurtherCategoryOfTheFirstQuadrantShowsAnOrderOnce) {
    b.reparti({1, 0, 0, 2});
    b.archivio.ordine("A", 1, {{1, 1}, {2, 1}});
    b.archivio.ordine("A", 2, {{2, 1}});
    b.archivio.ordine("B", 2, {{2, 1}});
    b.caricata();
    EXPECT_THAT(b.celle(0), ElementsAre("A  1", "A  2", "B  2", ""));
}

TEST_F(Griglie, RowLimitLeavesOneRowMoreWithASingleCell) {
    b.imposta("NumeroMassimoRighe", 1);
    for (int n = 1; n <= 9; ++n)
        b.archivio.ordine("A", n, {{1, 1}, {2, 1}, {3, 1}});
    b.caricata();
    EXPECT_THAT(b.celle(0), ElementsAre("A  1", "A  2", "A  3", "A  4", "", ""));
    EXPECT_THAT(b.celle(2), ElementsAre("A  1", "A  2", "A  3", "A  4", "", ""));
}

TEST_F(Griglie, AServedOrderVanishesAndTheCounterTableMayBeEmpty) {
    b.archivio.ordine("A", 1, {{1, 1}});
    b.archivio.ordine("A", 2, {});
    b.caricata();
    EXPECT_EQ(b.archivio.coda(), "A1");
    const std::string prima = b.scritta("lblNumCasse");
    b.archivio.esegui("DELETE FROM Numero");
    b.archivio.esegui("DELETE FROM Lumigrafo");
    b.timers.avanza(32s);
    EXPECT_THAT(b.celle(0), ElementsAre());
    EXPECT_EQ(b.scritta("lblNumCasse"), prima);
    // Sums over nothing are null: the last figure stays on show.
    EXPECT_EQ(b.scritta("lblPezzi", 0), "Pezzi 1");
}

TEST_F(Griglie, APointerOnTheGridHoldsTheRebuildBack) {
    b.caricata();
    b.archivio.ordine("A", 1, {{1, 1}});
    b.timers.avanza(31s);
    b.console().puntatoreSuGriglia();
    b.timers.avanza(31s);
    EXPECT_THAT(b.celle(0), ElementsAre());
    b.stato.BarCodeInCorso = true;
    b.console().puntatoreSuGriglia(); // a scan is being worked on: no restart
    b.timers.avanza(1s);
    EXPECT_THAT(b.celle(0), ElementsAre("A  1", "", ""));
}

TEST_F(Griglie, ARebuildInsideARebuildReturnsAtOnce) {
    b.archivio.ordine("A", 1, {{1, 1}});
    b.caricata();
    b.pompa.alPunto("CaricaVideataInizio/9", [this] {
        b.archivio.ordine("A", 2, {{1, 1}});
        b.premi("cmdAggiorna");
    });
    b.premi("cmdAggiorna");
    EXPECT_THAT(b.celle(0), ElementsAre("A  1", "", ""));
    b.premi("cmdAggiorna");
    EXPECT_THAT(b.celle(0), ElementsAre("A  1", "A  2", ""));
}

TEST_F(Griglie, ATouchDuringTheWaitMeansTheOrderThatWasOnShow) {
    for (int n : {1, 2, 3, 4})
        b.archivio.ordine("A", n, {{1, 1}});
    b.caricata();
    b.clic(0, "A  1"); // leaves a hole: the rebuild moves all others
    b.pompa.alPunto("CaricaVideataInizio/attesa", [this] {
        b.stato.grid[0].corrente(0, 1);
        b.console().clicGriglia(0);
    });
    b.premi("cmdAggiorna");
    EXPECT_EQ(b.posti(0)[2], "A 2");
    EXPECT_THAT(b.celle(0), ElementsAre("A  3", "A  4", ""));
}

TEST_F(Griglie, CategoryOutOfRangeAndNumberTooLargeAreFailures) {
    b.archivio.ordine("A", 40000, {{1, 1}});
    EXPECT_THROW(b.caricata(), Guasto);
    Banco altro;
    altro.reparti({11});
    EXPECT_THROW(altro.caricata(), Guasto);
}

TEST_F(Griglie, ClicksOnItsHeadWidenAGridForGood) {
    b.caricata();
    const Controllo& grid = b.console().controlli()("grid", 1);
    const Twip prima = grid.Width();
    b.premi("lblPezz", 1);
    b.premi("picInfo", 1);
    EXPECT_EQ(grid.Width(), prima + 600);
}

TEST(Testi, NumbersInCellsAndSlots) {
    EXPECT_EQ(FormattaNumero(" A ", " 00123 "), "A  123");
    EXPECT_EQ(FormattaNumero("", "007"), "7");
    EXPECT_EQ(FormattaNumero("A", ""), "A  0");
    EXPECT_THROW((void)FormattaNumero("A", "32768"), Guasto);
    EXPECT_EQ(testoVideata(" A ", " 12 "), "A 12");
    EXPECT_EQ(testoVideata("", "12"), "12");
    const auto [sigla, numero] = dividiCella("è  12");
    EXPECT_EQ(sigla, "è");
    EXPECT_EQ(numero, "12");
    EXPECT_EQ(dividiCella("12").sigla, "");
    EXPECT_EQ(dividiCella("12").numero, "12");
}

} // namespace
} // namespace lumigrafo::prova
