#include "console/scelta_videata.h"
#include "tests/console/banco.h"

namespace lumigrafo::prova {
namespace {

TEST(Disposizione, BoardOfEachKindOfStation) {
    using T = TipoVideata;
    const struct {
        std::int16_t tipo;
        bool nove;
        std::int16_t categoria1, categoria2;
        SceltaVideata attesa;
    } casi[] = {
        {4, false, 2, 3, {T::frmAvantiProssimo, true}},
        {4, true, 0, 0, {T::frmAvantiProssimo, true}},
        {3, true, 0, 0, {T::frmLumigrafo1RepartoBig, true}},
        {3, false, 0, 2, {T::frmLumigrafo, false}},
        {0, true, 0, 0, {T::frmLumigrafo1Reparto9numeri, true}},
        {1, false, -1, 0, {T::frmLumigrafo1Reparto, true}},
        {9, false, 0, 0, {T::frmLumigrafo1Reparto, true}},
        {0, true, 2, 0, {T::frmLumigrafo, false}},
        {1, true, 2, 0, {T::frmLumigrafoOrizz9numeri, false}},
        {1, false, 0, 3, {T::frmLumigrafooRIZZ, false}},
        {2, false, 2, 3, {T::frmLumigrafoPerson, true}},
        {2, true, 0, 0, {T::frmLumigrafoPerson, true}},
        {-5, false, 2, 0, {T::frmLumigrafo, false}},
    };
    for (const auto& caso : casi) {
        StatoConsole stato;
        stato.TipoLumigrafo = caso.tipo;
        stato.Lumigrafo9Numeri = caso.nove;
        stato.Categoria = {1, caso.categoria1, caso.categoria2, 0};
        EXPECT_EQ(scegliVideata(stato), caso.attesa)
            << caso.tipo << " " << caso.nove << " " << caso.categoria1;
    }
}

TEST(Disposizione, TheseSetsOfQuadrantsKeepTheDesign) {
    for (const int fuoriUso : {-1, 0, 1}) {
        Banco b;
        b.reparti({fuoriUso == 0 ? 0 : 1, fuoriUso == 1 ? 0 : 2, 3});
        const Controlli& c = b.caricata().controlli();
        for (int q = 0; q < 3; ++q) {
            EXPECT_EQ(c("grid", q).Posto(), c("grid", q).disegno().rett);
            EXPECT_EQ(c("grid", q).Visible(), q != fuoriUso);
        }
        EXPECT_FALSE(b.stato.SoloUnReparto);
        EXPECT_EQ(c("cmdRipristina").Caption(), "Carica numeri"); // the archive lies in the program folder
    }
}

TEST(Disposizione, TwoQuadrantsShareTheWidth) {
    Banco b;
    b.reparti({1, 2});
    const Controlli& c = b.caricata().controlli();
    EXPECT_EQ(c("grid", 0).Width(), Twip(8752.5));
    EXPECT_EQ(c("grid", 1).Left(), Twip(30 + 8752.5 + 40));
    EXPECT_EQ(c("lblReparto", 1).Posto().left, c("grid", 1).Left());
    EXPECT_EQ(c("picInfo", 1).Width(), Twip(8752.5));
    EXPECT_EQ(c("lblReparto", 1).FontSize(), 25);
    EXPECT_EQ(c("cmdNumero", 1).Left(), c("grid", 1).Left() + Twip(8752.5 / 2));
    const Griglia& grid = b.stato.grid[1];
    EXPECT_EQ(grid.larghezzaColonna(1), Twip(2918)); // 2917.5 to the even neighbour
    EXPECT_EQ(grid.larghezzaColonna(2), b.stato.grid[2].larghezzaColonna(2));
    EXPECT_EQ(grid.altezzaMinima(), Twip(1000));
    EXPECT_FALSE(c("grid", 2).Visible());
    EXPECT_FALSE(c("cmdNumero", 2).Visible());
}

TEST(Disposizione, OneQuadrantFillsTheScreenWithFourColumns) {
    Banco b;
    b.reparti({1});
    const Controlli& c = b.caricata().controlli();
    const Griglia& grid = b.stato.grid[0];
    EXPECT_TRUE(b.stato.SoloUnReparto);
    EXPECT_EQ(grid.Cols(), 4);
    EXPECT_EQ(c("lblReparto", 0).Width(), c("grid", 0).Width());
    EXPECT_LT(c("grid", 0).Left() + c("grid", 0).Width(), c("cmdAllarga").Left());
}

TEST(Disposizione, NextButtonTakesTheGridsFoot) {
    Banco b;
    b.reparti({1});
    b.imposta("BottoneAvanti", 1);
    b.archivio.ordine("A", 2, {{1, 1}});
    b.archivio.ordine("A", 9, {{1, 1}});
    const Controlli& c = b.caricata().controlli();
    EXPECT_TRUE(c("cmdAvanti").Visible());
    EXPECT_EQ(c("cmdAvanti").Width(), c.layout().larghezza);
    EXPECT_EQ(c("grid", 0).Top() + c("grid", 0).Height(), c("cmdAvanti").Top());
    for (int i = 0; i < 3; ++i) { // the third finds nothing left
        b.premi("cmdAvanti");
        EXPECT_TRUE(c("cmdAvanti").Enabled());
    }
    EXPECT_THAT(b.posti(0), ElementsAre("", "A 2", "A 9", "", "", ""));
}

TEST(Disposizione, TypeFourOpensTheServerForAsLongAsThereIsABoard) {
    Banco b;
    b.imposta("TipoLumigrafo", 4);
    b.console().carica();
    EXPECT_THAT(b.diario, Contains("server"));
    EXPECT_THAT(b.diario, Not(Contains("server chiuso")));
    b.console().richiami().ScaricaLumigrafo();
    EXPECT_THAT(b.diario, Contains("server chiuso"));
}

} // namespace
} // namespace lumigrafo::prova
