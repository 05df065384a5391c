#include "console/codice_scontrino.h"
#include "tests/console/banco.h"

namespace lumigrafo::prova {
namespace {

class Scansioni : public testing::Test {
protected:
    Banco b;
    void SetUp() override {
        b.reparti({1, 2, 0, 5});
        b.imposta("Vocale", 1);
        b.imposta("ScontrinoFiscale", 1);
        for (int n : {7, 123, 200})
            b.archivio.ordine("A", n, {{1, 2}, {2, 1}});
        b.archivio.ordine("", 9, {{1, 1}});
    }
    void scandisci(const std::string& codice) { b.digita(codice + "\r"); }
    [[nodiscard]] const Controllo& c(const char* nome) { return b.console().controlli()(nome); }
};

TEST_F(Scansioni, AReceiptDoesWhatATouchDoesInItsOwnOrder) {
    b.caricata();
    scandisci("5996501001233");
    EXPECT_THAT(b.senza({"cedi"}),
                ElementsAre("videata in vista", "android 0", "console in vista", "console in primo piano",
                            "ridisegna", "attendi 700", "ridisegna", "voce Cucina A 123", "fiscale A/123"));
    EXPECT_EQ(b.posti(0)[2], "A 123");
    EXPECT_THAT(b.celle(0), Not(Contains("A  123")));
    EXPECT_EQ(b.ultimi.LeggiIni("Impo", "Ultimo_0_0"), "A  123");
    EXPECT_EQ(b.archivio.leggi("SELECT Categoria1 FROM Lumigrafo WHERE Numero = 123"), "0");
    EXPECT_EQ(b.scritta("lblMessaggioBarCode"), "Cucina\r\nA  123");
    EXPECT_EQ(c("fraMessaggio").BackColor(), rgb(128, 255, 128));
    EXPECT_FALSE(c("fraMessaggio").Visible());
    EXPECT_EQ(b.scritta("txtBarCode"), "");
    EXPECT_FALSE(b.stato.BarCodeInCorso);
}

TEST_F(Scansioni, WhatIsNotInTheGridIsCalledAllTheSame) {
    b.caricata();
    scandisci("5996501001233");
    b.diario.clear();
    scandisci("5996501001233"); // again: a repeat on the board, and green
    EXPECT_THAT(b.senza({"cedi"}), ElementsAre("videata in vista", "console in primo piano", "ridisegna",
                                               "attendi 700", "ridisegna", "voce Cucina A 123"));
    EXPECT_EQ(b.ultimi.LeggiIni("Impo", "Ultimo_0_1"), "");
    scandisci("5996601000015"); // never sold
    EXPECT_EQ(b.posti(0)[2], "B 1");
    EXPECT_EQ(b.archivio.coda(), "9 A7 A123 A200");
}

TEST_F(Scansioni, BadCodesAreRefusedInTheirWordsAndChangeNothing) {
    const std::pair<const char*, std::string> casi[] = {
        {"599650100123", "BarCode errato! Lunghezza errata."},
        {"59965010012333", "BarCode errato! Lunghezza errata."},
        {"1", "BarCode errato! Lunghezza errata."},
        {"5986501001233", "BarCode errato!"},
        {"599650100A233", "BarCode errato!"},
        {"5996501999993", "Categoria 1 non corretta, controllare le impostazioni: 01"},
        {"5996502001233", "Categoria 1 non corretta, controllare le impostazioni: 02"},
    };
    b.caricata();
    b.stato.Categoria = {0, 0, 0, 0};
    for (const auto& [codice, messaggio] : casi) {
        b.diario.clear();
        scandisci(codice);
        EXPECT_EQ(b.scritta("lblMessaggioBarCode"), messaggio) << codice;
        EXPECT_THAT(b.senza({"cedi"}),
                    ElementsAre("console in primo piano", "ridisegna", "attendi 2000", "ridisegna"))
            << codice;
        EXPECT_TRUE(c("picErrore").Visible());
        EXPECT_EQ(c("fraMessaggio").BackColor(), Colore(4079359));
        EXPECT_EQ(c("lblMessaggioBarCode").FontSize(), messaggio.size() > 30 ? 50 : 80);
        EXPECT_EQ(c("lblMessaggioBarCode").Left(), c("picErrore").Left() + c("picErrore").Width() + 100);
    }
    b.stato.Categoria = {1, 0, 0, 0};
    for (const char* oltre : {"5996501999993", "599000009E099"}) { // numbers beyond any order's
        scandisci(oltre);
        EXPECT_EQ(b.scritta("lblMessaggioBarCode"), "BarCode errato!");
    }
    EXPECT_THAT(b.posti(0), Each(""));
    EXPECT_FALSE(std::filesystem::exists(b.ultimi.file()));
}

TEST_F(Scansioni, TheCategoryChoosesTheQuadrant) {
    b.caricata();
    const std::pair<const char*, int> casi[] = {
        {"5996500000073", 0}, {"5996505001233", 0}, {"5996502002003", 1}, {"5996509000993", 0}};
    for (const auto& [codice, quadrante] : casi) {
        scandisci(codice);
        EXPECT_NE(b.posti(quadrante)[2], "") << codice;
        EXPECT_EQ(b.scritta("lblMessaggioBarCode").substr(0, 3), quadrante == 0 ? "Cuc" : "Bar") << codice;
    }
    scandisci("5990000000099"); // no letter
    EXPECT_EQ(b.posti(0)[2], "9");
    EXPECT_EQ(b.archivio.leggi("SELECT count(*) FROM Lumigrafo WHERE Numero = 9"), "0");
}

TEST_F(Scansioni, ANumberWhoseDigitsAreNoneGoesOnEmpty) {
    b.caricata();
    scandisci("5996501E00123"); // the whole is a number, with an exponent; its digits 8 to 12 aren't
    EXPECT_THAT(b.senza({"cedi", "ridisegna"}),
                ElementsAre("console in primo piano", "attendi 2000", "videata in vista", "android 0",
                            "console in vista", "console in primo piano", "attendi 700", "voce Cucina A "));
    EXPECT_EQ(b.posti(0)[2], "A");
}

TEST_F(Scansioni, SilenceEndsACodeAndOtherKeysDo) {
    b.caricata();
    for (const char tasto : std::string("59965"))
        EXPECT_TRUE(b.console().tasto(static_cast<unsigned char>(tasto)));
    b.timers.avanza(499ms);
    EXPECT_TRUE(b.console().tasto(U'0'));
    b.timers.avanza(499ms);
    EXPECT_EQ(b.scritta("txtBarCode"), "599650");
    b.timers.avanza(1ms);
    EXPECT_EQ(b.scritta("lblMessaggioBarCode"), "BarCode errato! Lunghezza errata.");
    EXPECT_EQ(b.scritta("txtBarCode"), "");
    EXPECT_FALSE(b.console().tasto(U'a')); // lower case, accents and the rest aren't swallowed
    EXPECT_FALSE(b.console().tasto(U'è'));
    for (int i = 0; i < 10000; ++i)
        EXPECT_TRUE(b.console().tasto(U'7'));
    b.diario.clear();
    EXPECT_FALSE(b.console().tasto(U'x'));
    EXPECT_THAT(b.diario, Contains("attendi 2000"));
    EXPECT_EQ(b.scritta("txtBarCode"), "");
}

TEST_F(Scansioni, KeysThatWaitedWhileTheProgramWasBusyAreNoSilence) {
    b.caricata();
    b.digita("5996501");
    b.pompa.alPunto("TimerBarCode/tasti", [this] { b.digita("001233"); }); // the tick came first
    b.timers.avanza(500ms);
    EXPECT_EQ(b.scritta("txtBarCode"), "5996501001233");
    b.timers.avanza(500ms);
    EXPECT_EQ(b.posti(0)[2], "A 123");
}

TEST_F(Scansioni, ACodeCannotStartInsideAnother) {
    b.caricata();
    // The timer's own tick, in the events that the strike-off lets through.
    b.pompa.alPunto("AggiornaGridDB/8", [this] {
        EXPECT_TRUE(b.stato.BarCodeInCorso);
        b.timers.avanza(600ms);
        EXPECT_EQ(b.scritta("txtBarCode"), "5996501001233");
    });
    scandisci("5996501001233");
    EXPECT_EQ(b.scritta("txtBarCode"), "");
    EXPECT_EQ(b.posti(0)[2], "A 123");
    // And a scan while the grids are being rebuilt, at its only point that lets events through.
    b.pompa.alPunto("CaricaVideataInizio/9", [this] { scandisci("5996501002003"); });
    b.timers.avanza(32s);
    EXPECT_EQ(b.posti(0)[2], "A 200");
    EXPECT_THAT(b.celle(0), Not(Contains("A  200")));
}

TEST_F(Scansioni, ABoardWithoutSlotsForTheQuadrantShowsNothingAndStopsNothing) {
    b.imposta("TipoLumigrafo", 2); // the custom board shows the first department only
    b.tipoVero = true;
    b.caricata();
    scandisci("5996502001233");
    EXPECT_THAT(b.diario, Contains("voce Numero A 123"));
    EXPECT_EQ(b.archivio.leggi("SELECT Categoria2 FROM Lumigrafo WHERE Numero = 123"), "0");
    EXPECT_FALSE(std::filesystem::exists(b.videata.file()));
    Banco prossimo;
    prossimo.reparti({1});
    prossimo.imposta("TipoLumigrafo", 4);
    prossimo.tipoVero = true;
    prossimo.archivio.ordine("A", 7, {{1, 1}});
    prossimo.caricata();
    prossimo.digita("5996501000070\r");
    EXPECT_EQ(prossimo.archivio.coda(), "");
}

TEST_F(Scansioni, AScanIgnoresStrikeOffModeAndTheNextButtonRefusesInIt) {
    b.imposta("BottoneAvanti", 1);
    b.caricata();
    b.premi("cmdModalita", 0);
    scandisci("5996501001233");
    EXPECT_EQ(b.posti(0)[2], "A 123");
    b.diario.clear();
    b.premi("cmdAvanti");
    EXPECT_EQ(b.scritta("lblMessaggioBarCode"), "Sei in Modalità depennamento");
    EXPECT_THAT(b.diario, ElementsAre("console in primo piano", "ridisegna", "attendi 2000", "ridisegna"));
    EXPECT_EQ(b.archivio.coda(), "9 A7 A123 A200");
}

} // namespace
} // namespace lumigrafo::prova
