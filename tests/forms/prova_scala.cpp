#include "forms/scala.h"
#include "tests/forms/dimostrativo.h"

#include <gtest/gtest.h>

using namespace lumigrafo;

namespace {

constexpr Layout kQuadrato{"frm", "", 15000, 15000, kNero, {}};

TEST(Scala, OgniAsseSegueLaFinestraEIlCarattereIlPiuPiccolo) {
    const Scala disegno(kQuadrato, 1000, 1000), larga(kQuadrato, 3000, 2000);
    EXPECT_EQ(disegno.rettangolo({30, 1020, 5835, 7800}), (RettangoloPixel{2, 68, 389, 520}));
    EXPECT_EQ(disegno.carattere(9.75), 13);
    EXPECT_EQ(larga.rettangolo({1500, 1500, 1500, 1500}), (RettangoloPixel{300, 200, 300, 200}));
    EXPECT_EQ(larga.carattere(72), 192);
    EXPECT_EQ(Scala(kQuadrato, 2000, 3000).carattere(72), 192);
    EXPECT_EQ(larga.altezza(150), 20);
    EXPECT_EQ(Scala(kQuadrato, 1, 1).carattere(72), 1) << "type never vanishes";
    EXPECT_EQ(larga.carattere(1e30), 10000) << "nor is it larger than can be drawn";
}

TEST(Scala, ViciniRestanoVicini) {
    for (int lato = 900; lato < 1100; ++lato) {
        const Scala s(kQuadrato, lato, lato);
        const RettangoloPixel a = s.rettangolo({45, 0, 5805, 100});
        const RettangoloPixel b = s.rettangolo({5850, 0, 3333, 100});
        ASSERT_EQ(a.x + a.larghezza, b.x) << lato;
    }
}

} // namespace
