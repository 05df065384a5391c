#include "forms/scorrimento.h"

#include <gtest/gtest.h>

namespace {

struct ScorrimentoProva : testing::Test {
    lumigrafo::Scorrimento s;
    void SetUp() override { s.misure(2000, 500); }
    /// A finger down, elsewhere after `dopo` milliseconds, and up 5 later.
    void trascina(int da, int a, double adesso, double dopo = 10) {
        s.premi(da, adesso);
        EXPECT_TRUE(s.muovi(a, adesso + dopo));
        EXPECT_FALSE(s.rilascia(adesso + dopo + 5));
    }
};

TEST_F(ScorrimentoProva, UnTremitoEUnClic) {
    s.premi(100, 0);
    EXPECT_FALSE(s.muovi(106, 10));
    EXPECT_TRUE(s.rilascia(20));
    EXPECT_EQ(s.posizione(), 0);
    EXPECT_FALSE(s.rilascia(30)) << "a release without a press is no click";
}

TEST_F(ScorrimentoProva, SegueIlDitoETieneIBordi) {
    s.premi(400, 0);
    EXPECT_TRUE(s.muovi(300, 10));
    EXPECT_EQ(s.posizione(), 100);
    EXPECT_TRUE(s.muovi(400, 20)) << "back where it began, it is a drag still";
    EXPECT_EQ(s.posizione(), 0);
    s.muovi(450, 30);
    EXPECT_EQ(s.posizione(), 0);
    EXPECT_FALSE(s.rilascia(40));
    s.vai(9999);
    EXPECT_EQ(s.posizione(), 1500);
    s.misure(600, 500);
    EXPECT_EQ(s.posizione(), 100);
    s.misure(300, 500);
    EXPECT_EQ(s.posizione(), 0);
    EXPECT_EQ(s.massimo(), 0);
}

TEST_F(ScorrimentoProva, LanciataCorreEUnToccoLaFerma) {
    trascina(400, 300, 0);
    ASSERT_TRUE(s.inMoto());
    s.passo(31);
    EXPECT_GT(s.posizione(), 100);
    s.premi(200, 40);
    EXPECT_FALSE(s.inMoto());
    EXPECT_FALSE(s.rilascia(60)) << "the touch that stops the list chooses nothing";
    s.premi(200, 100);
    EXPECT_TRUE(s.rilascia(120));
}

TEST_F(ScorrimentoProva, LaCorsaFinisce) {
    trascina(400, 370, 0, 100);
    double t = 110;
    while (s.inMoto() && t < 10000)
        s.passo(t += 16);
    EXPECT_LT(t, 3000);
    EXPECT_LT(s.posizione(), 1500);
    s.premi(400, 20000);
    s.muovi(300, 20010);
    s.rilascia(20200);
    EXPECT_FALSE(s.inMoto()) << "the finger rested before it left";
}

} // namespace
