#include "console/avanti_prossimo.h"
#include "tests/console/banco.h"

namespace lumigrafo::prova {
namespace {

/// The console of the next-customer system on a real archive, with its real board.
class AvantiIlProssimo : public testing::Test {
protected:
    Banco b;
    AvantiProssimo coda{b.stato, b.collegati};

    void SetUp() override {
        b.tipoVero = true;
        b.imposta("TipoLumigrafo", 4);
        b.reparti({1});
    }
    std::string sulTabellone(int cassa) { return b.board().controlli()("lblNumero", cassa).Caption(); }
};

TEST_F(AvantiIlProssimo, theNumbersGoInTheOrderOfTheCells) {
    for (const int n : {30, 4, 111, 7, 25})
        b.archivio.ordine("", n, {{1, 1}});
    b.archivio.ordine("B", 7, {{1, 1}}); // leaves the archive with the other 7
    b.caricata();
    ASSERT_THAT(b.celle(0), ElementsAre("4", "7", "25", "30", "111", "B  7", "", ""));

    EXPECT_EQ(coda.ProssimoNumero("C"), "4");
    EXPECT_EQ(sulTabellone(2), "4");
    EXPECT_EQ(b.archivio.coda(), "7 25 30 111 B7");
    EXPECT_EQ(coda.ProssimoNumero("A"), "7");
    EXPECT_EQ(b.archivio.coda(), "25 30 111");
    EXPECT_EQ(coda.ProssimoNumero("A"), "25");
    EXPECT_EQ(sulTabellone(0), "25");
    EXPECT_THAT(b.celle(0), ElementsAre("", "", "", "30", "111", "B  7", "", "")) << "holes stay";
    b.premi("cmdAggiorna");
    EXPECT_EQ(coda.ProssimoNumero("E"), "30");
    EXPECT_EQ(coda.ProssimoNumero("E"), "111");
    EXPECT_EQ(coda.ProssimoNumero("E"), "");
    EXPECT_FALSE(coda.Occupato());
}

TEST_F(AvantiIlProssimo, theVoiceSpeaksAtOnce) {
    b.archivio.ordine("", 9, {{1, 1}});
    b.imposta("Vocale", true);
    b.caricata();
    EXPECT_EQ(coda.ProssimoNumero("D"), "9");
    EXPECT_THAT(b.diario, Contains("parla Numero 9 in cassa, D"));
}

TEST_F(AvantiIlProssimo, aBoardThatIsLoadedInTheMiddleLetsNobodyTakeTheNumberTwice) {
    b.archivio.ordine("", 1, {{1, 1}});
    b.archivio.ordine("", 2, {{1, 1}});
    b.caricata();
    b.board().Scarica();
    bool dentro = false;
    b.pompa.sempre = [&](std::string_view) {
        dentro = true;
        b.pompa.sempre = nullptr;
        EXPECT_TRUE(coda.Occupato());
        b.premi("cmdAggiorna"); // shows the number again: it is still in the archive
    };
    EXPECT_EQ(coda.ProssimoNumero("A"), "1");
    EXPECT_TRUE(dentro);
    EXPECT_EQ(coda.ProssimoNumero("B"), "2");
}

TEST_F(AvantiIlProssimo, aStatementThatFailsEndsInTheErrorBoxWithTheServerBusy) {
    b.archivio.ordine("A", 12, {{1, 1}}); // the cell's text is no number
    b.caricata();
    EXPECT_THROW(coda.ProssimoNumero("A"), Guasto);
    EXPECT_TRUE(coda.Occupato());
    EXPECT_EQ(b.archivio.coda(), "A12");
}

} // namespace
} // namespace lumigrafo::prova
