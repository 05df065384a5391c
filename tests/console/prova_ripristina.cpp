#include "settings/ripristina.h"
#include "tests/console/banco.h"

namespace lumigrafo::prova {
namespace {

/// The restore dialog over a console on a real archive; quadrants of the categories 1, 2, 3.
class Ripristino : public testing::Test {
protected:
    Banco b;
    std::optional<Ripristina> finestra;
    int chiusure = 0;

    void SetUp() override {
        b.reparti({1, 2, 3});
        b.archivio.ordine("Z", 99, {{1, 1}}); // a queue: else the start empties the board
        b.caricata();
    }
    void apri(std::initializer_list<std::pair<const char*, const char*>> ultimi) {
        for (const auto& [chiave, testo] : ultimi)
            b.ultimi.ScriviIni(kSezioneUltimi, chiave, std::string(testo));
        finestra.emplace(
            ServiziRipristina{b.ambiente, b.console().richiami(), b.orologio, b.pompa},
            [this] { b.diario.emplace_back("ridisegna"); },
            [this] {
                b.diario.emplace_back("chiudi");
                ++chiusure;
            });
        b.diario.clear();
    }
    void tocca(std::int16_t q, int riga) {
        finestra->grid(q).corrente(riga, 0);
        finestra->clicGriglia(q);
    }
    Controllo& nuovo(int q) { return b.board().controlli()("lblNumero3", q); }
    std::string aperte(int numero) {
        return b.archivio.leggi("SELECT Sigla, Categoria1, Categoria2, Categoria3, Pezzi2 FROM Lumigrafo "
                                "WHERE Numero = " +
                                std::to_string(numero));
    }
};

TEST_F(Ripristino, ShowsTheThreeNewestOfEachQuadrant) {
    apri({{"Ultimo_0_0", "A  3"}, {"Ultimo_0_2", "1"}, {"Ultimo_0_3", "A  7"}, {"Ultimo_2_0", "B  5"}});
    const auto celle = [&](int q) {
        Griglia& g = finestra->grid(q);
        return std::vector{g.testo(0, 0), g.testo(1, 0), g.testo(2, 0)};
    };
    EXPECT_THAT(celle(0), ElementsAre("A  3", "", "1"));
    EXPECT_THAT(celle(1), ElementsAre("", "", ""));
    EXPECT_THAT(celle(2), ElementsAre("B  5", "", ""));
    EXPECT_EQ(finestra->controlli()("lblReparto", 1).Caption(), "Bar");
    tocca(0, 1); // empty
    EXPECT_EQ(chiusure, 0);
    EXPECT_TRUE(b.diario.empty());
}

TEST_F(Ripristino, GoesStepByStep) {
    b.archivio.ordine("A", 12, {{2, 4}, {3, 1}});
    b.archivio.esegui("UPDATE Lumigrafo SET Categoria2 = 0, Pezzi2 = 0 WHERE Numero = 12;"
                      "UPDATE DettaglioLumigrafo SET SERVITO = -1 WHERE Numero = 12");
    apri({{"Ultimo_1_0", "A  12"}});
    b.diario.clear();
    b.pompa.alPunto("frmRipristina/2", [&] {
        EXPECT_EQ(finestra->grid(1).sfondo(0, 0), kGiallo);
        tocca(1, 0);
    });
    b.pompa.alPunto("frmRipristina/attesa", [&] { tocca(1, 0); }); // touched during the wait
    tocca(1, 0);
    EXPECT_EQ(chiusure, 1);
    EXPECT_EQ(b.diario,
              (Diario{"ridisegna", "cedi frmRipristina/2", "attendi 160", "cedi frmRipristina/attesa",
                      "attendi 400", "cedi CaricaVideataInizio/attesa", "cedi CaricaVideataInizio/9",
                      "cedi frmRipristina/9", "android 1", "chiudi"}));
    EXPECT_EQ(aperte(12), "A|0|-1|-1|0");
    EXPECT_THAT(b.celle(1), Contains("A  12"));
    EXPECT_EQ(b.archivio.leggi("SELECT CATEGORIA, SERVITO FROM DettaglioLumigrafo WHERE Numero = 12"),
              "2|0 3|-1"); // only the lines of the quadrant's category
    EXPECT_EQ(b.archivio.leggi("SELECT Servito FROM ScontriniEmessi WHERE Numero = 12"), "-1");
}

TEST_F(Ripristino, ANumberThatIsGoneComesBackAsANewRowAndTwiceAsOne) {
    apri({{"Ultimo_0_0", "B  5"}, {"Ultimo_2_0", "7"}, {"Ultimo_1_0", "B  5"}});
    tocca(0, 0);
    EXPECT_EQ(aperte(5), "B|-1|0|0|0");
    tocca(0, 0); // by a second opening
    EXPECT_EQ(aperte(5), "B|-1|0|0|0");
    tocca(1, 0);
    EXPECT_EQ(aperte(5), "B|-1|-1|0|0");
    tocca(2, 0);
    EXPECT_EQ(aperte(7), "|0|0|-1|0");
    b.stato.Categoria[2] = 0; // no longer in use
    tocca(2, 0);
    EXPECT_EQ(chiusure, 4);
}

TEST_F(Ripristino, TakesTheNumberWithoutItsLetterOffTheNewestSlots) {
    const struct {
        const char* cella;
        std::array<const char*, 3> prima, dopo;
    } casi[] = {
        {"12", {"12", "12", "12"}, {"", "", ""}},
        {"A  12", {"A 12", "12", "A  12"}, {"A 12", "", "A  12"}},
        {"12", {"1", "A 12", "112"}, {"1", "A 12", "112"}},
    };
    for (const auto& caso : casi) {
        apri({{"Ultimo_0_0", caso.cella}});
        b.board().controlli()("lblNumero2", 0).Caption("12"); // an older slot stays
        for (int q = 0; q < 3; ++q)
            nuovo(q).Caption(caso.prima[static_cast<std::size_t>(q)]);
        tocca(0, 0);
        for (int q = 0; q < 3; ++q)
            EXPECT_EQ(nuovo(q).Caption(), caso.dopo[static_cast<std::size_t>(q)]) << caso.cella << q;
        EXPECT_EQ(b.board().controlli()("lblNumero2", 0).Caption(), "12");
    }
}

TEST(RipristinoUnReparto, ABoardOfOneDepartmentHasNoOtherSlots) {
    Banco b;
    b.tipoVero = true;
    b.reparti({1});
    b.archivio.ordine("A", 1, {{1, 1}});
    b.caricata();
    b.ultimi.ScriviIni(kSezioneUltimi, "Ultimo_0_0", "12");
    b.board().controlli()("lblNumero3", 0).Caption("12");
    const ServiziRipristina servizi{b.ambiente, b.console().richiami(), b.orologio, b.pompa};
    int chiusure = 0;
    Ripristina finestra(
        servizi, [] {}, [&] { ++chiusure; });
    finestra.grid(0).corrente(0, 0);
    finestra.clicGriglia(0);
    EXPECT_EQ(b.board().controlli()("lblNumero3", 0).Caption(), "");
    EXPECT_THAT(b.diario, Contains("android 0"));
    EXPECT_EQ(chiusure, 1);

    b.console().richiami().ScaricaLumigrafo(); // for the first quadrant a failure is one
    EXPECT_THROW(finestra.clicGriglia(0), Guasto);
    EXPECT_EQ(chiusure, 1);
}

} // namespace
} // namespace lumigrafo::prova
