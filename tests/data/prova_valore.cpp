#include "data/valore.h"
#include "tests/sostegno/guasto_atteso.h"

#include <gtest/gtest.h>

namespace lumigrafo {
namespace {

using prova::guastoDi;

TEST(Valore, NulloNonSiConverte) {
    const Valore nullo;
    EXPECT_EQ(guastoDi([&] { (void)nullo.aIntero16(); }), 94);
    EXPECT_EQ(guastoDi([&] { (void)nullo.aIntero32(); }), 94);
    EXPECT_EQ(guastoDi([&] { (void)nullo.aTesto(); }), 94);
    EXPECT_EQ(guastoDi([&] { (void)nullo.aBooleano(); }), 94);
    EXPECT_EQ(nullo.aTestoOVuoto(), "");
}

TEST(Valore, Conversioni) {
    EXPECT_EQ(Valore(true), Valore(-1));
    EXPECT_TRUE(Valore(1).aBooleano()); // a foreign writer's idea of true
    EXPECT_FALSE(Valore(0).aBooleano());
    EXPECT_EQ(Valore(2.5).aIntero16(), 2);
    EXPECT_EQ(Valore(" 12 ").aIntero16(), 12);
    EXPECT_EQ(Valore(32767).aIntero16(), 32767);
    EXPECT_EQ(guastoDi([] { (void)Valore(32768).aIntero16(); }), 6);
    EXPECT_EQ(guastoDi([] { (void)Valore(3e9).aIntero32(); }), 6);
    EXPECT_EQ(guastoDi([] { (void)Valore("dodici").aIntero16(); }), 13);
    EXPECT_EQ(Valore(-7).aTesto(), "-7");
    EXPECT_EQ(Valore(4.5).aTesto(), "4.5");
    EXPECT_EQ(Valore(12.0).aTesto(), "12");
}

} // namespace
} // namespace lumigrafo
