#include "forms/colonne.h"
#include "forms/griglia.h"
#include "platform/guasto.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

using namespace lumigrafo;

namespace {

using Celle = std::vector<std::pair<int, int>>;

TEST(Griglia, LaCorrenteRestaNellaGriglia) {
    Griglia g(3);
    g.Rows(4);
    g.corrente(3, 2);
    g.RemoveItem(0);
    EXPECT_EQ(g.Row(), 2);
    g.Cols(2);
    EXPECT_EQ(g.Col(), 1);
    g.Rows(0);
    EXPECT_EQ(g.Row(), -1);
}

TEST(Griglia, FuoriDalleCelleFallisce) {
    Griglia g(3);
    g.Rows(2);
    for (const auto& [r, c] : Celle{{2, 0}, {-1, 0}, {0, 3}, {0, -1}})
        EXPECT_THROW((void)g.testo(r, c), Guasto) << r << "," << c;
    EXPECT_THROW(g.RemoveItem(2), Guasto);
}

TEST(Griglia, DiceQualiCelleCambiano) {
    Griglia g(3);
    g.Rows(2);
    g.corrente(0, 0);
    Celle viste;
    g.osserva([&](int r, int c) { viste.emplace_back(r, c); });
    g.testo(0, 1, "A  7");
    g.testo(0, 1, "A  7");
    g.sfondo(1, 2, kGiallo);
    g.sfondo(1, 2, std::nullopt);
    g.corrente(1, 1);
    g.coloreSelezione(kGiallo);
    EXPECT_EQ(viste, (Celle{{0, 1}, {1, 2}, {1, 2}, {0, 0}, {1, 1}, {1, 1}}));
    g.Clear();
    EXPECT_EQ(viste.back(), std::pair(-1, -1));
    EXPECT_EQ(g.testo(0, 1), "");
}

TEST(Colonne, PropriaLarghezzaOParteUguale) {
    constexpr Layout disegno{"frm", "", 15000, 15000, kNero, {}};
    const Scala s(disegno, 1000, 1000);
    Griglia g(3);
    EXPECT_EQ(bordiColonne(g, s, 301), (std::vector{0, 100, 201, 301}));
    g.larghezzaColonna(0, 1500);
    EXPECT_EQ(bordiColonne(g, s, 300), (std::vector{0, 100, 200, 300}));
    EXPECT_EQ(bordiColonne(g, s, 400), (std::vector{0, 100, 250, 400}));
    g.larghezzaColonna(1, 3000);
    g.larghezzaColonna(2, 1480);
    EXPECT_EQ(bordiColonne(g, s, 400), (std::vector{0, 100, 300, 400})) << "no stripe at the edge";
    EXPECT_EQ(bordiColonne(g, s, 500), (std::vector{0, 100, 300, 399}));
    EXPECT_EQ(bordiColonne(g, Scala(disegno, 2000, 1000), 1000), (std::vector{0, 200, 600, 797}));
}

} // namespace
