#include "forms/scorrimento.h"

#include <gtest/gtest.h>

using lumigrafo::Scorrimento;

namespace {

Scorrimento lista() {
    Scorrimento s;
    s.misure(2000, 500);
    return s;
}

TEST(Scorrimento, UnTremitoEUnClic) {
    Scorrimento s = lista();
    s.premi(100, 0);
    EXPECT_FALSE(s.muovi(106, 10));
    EXPECT_TRUE(s.rilascia(20));
    EXPECT_EQ(s.posizione(), 0);
    EXPECT_FALSE(s.rilascia(30)) << "a release without a press is no click";
}

TEST(Scorrimento, SegueIlDitoETieneIBordi) {
    Scorrimento s = lista();
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

TEST(Scorrimento, LanciataCorreEUnToccoLaFerma) {
    Scorrimento s = lista();
    s.premi(400, 0);
    s.muovi(300, 10);
    s.rilascia(15);
    ASSERT_TRUE(s.inMoto());
    s.passo(31);
    EXPECT_GT(s.posizione(), 100);
    s.premi(200, 40);
    EXPECT_FALSE(s.inMoto());
    EXPECT_FALSE(s.rilascia(60)) << "the touch that stops the list chooses nothing";
    s.premi(200, 100);
    EXPECT_TRUE(s.rilascia(120));
}

TEST(Scorrimento, LaCorsaFinisce) {
    Scorrimento s = lista();
    s.premi(400, 0);
    s.muovi(370, 100);
    s.rilascia(110);
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
