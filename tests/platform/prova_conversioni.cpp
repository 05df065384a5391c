#include "platform/conversioni.h"
#include "platform/guasto.h"
#include "platform/utf8.h"
#include "tests/sostegno/guasto_atteso.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <string>

namespace lumigrafo {
namespace {

using prova::guastoDi;

TEST(Conversioni, testoANumero) {
    const std::pair<const char*, double> numeri[] = {{"12", 12},          {"  -3 ", -3},
                                                     {"3-", -3},          {"- 5", -5},
                                                     {"+7", 7},           {"23.5", 23.5},
                                                     {"23,5", 23.5},      {".5", 0.5},
                                                     {",5", 0.5},         {"12.", 12},
                                                     {"5,", 5},           {"1.234,5", 1234.5},
                                                     {"1,234.5", 1234.5}, {"1.234.567", 1234567},
                                                     {"1E3", 1000},       {"1d-1", 0.1},
                                                     {"1E-999", 0},       {"&H1F", 31},
                                                     {"&hFFFF", -1},      {"&O17", 15}};
    for (const auto& [testo, valore] : numeri) {
        EXPECT_TRUE(isNumeric(testo)) << testo;
        EXPECT_DOUBLE_EQ(aDoppio(testo), valore) << testo;
    }
    EXPECT_DOUBLE_EQ(aDoppio("5996501E00123"), 5996501e123);
    for (const char* altro : {"", "   ", ".", "-", "1-2", "--1", "1E", "E5", "E0012", "1 2", "12a", "inf",
                              "nan", "&H", "\t1", "1,2.3.4", ".1.2"}) {
        EXPECT_FALSE(isNumeric(altro)) << altro;
        EXPECT_EQ(guastoDi([&] { (void)aDoppio(altro); }), guasti::kTipo) << altro;
    }
    EXPECT_FALSE(isNumeric("1E400"));
    EXPECT_EQ(guastoDi([] { (void)aDoppio("1E400"); }), guasti::kSovraccarico);
    EXPECT_EQ(guastoDi([] { (void)aSingolo("1E39"); }), guasti::kSovraccarico);
    EXPECT_FLOAT_EQ(aSingolo("8752,5"), 8752.5F);
}

TEST(Conversioni, numeroInTesta) {
    const std::pair<const char*, double> casi[] = {
        {"12abc", 12}, {" 1 2 3x", 123}, {"-4.5,6", -4.5}, {"1D2", 100},  {"1E", 1},  {"1e-999", 0},
        {"", 0},       {"abc", 0},       {"+-5", 0},       {"&H1Fz", 31}, {"nan", 0}, {".5.5", 0.5}};
    for (const auto& [testo, valore] : casi)
        EXPECT_DOUBLE_EQ(val(testo), valore) << testo;
    EXPECT_EQ(guastoDi([] { (void)val("1E400"); }), guasti::kSovraccarico);
}

TEST(Conversioni, limitiDegliInteri) {
    EXPECT_EQ(aIntero16("32767,4"), 32767);
    EXPECT_EQ(aIntero16(-32768.5), -32768); // to the even neighbour, which is inside
    EXPECT_EQ(aIntero32("2147483647"), 2147483647);
    EXPECT_EQ(prodotto16(-128, 256), -32768);
    EXPECT_EQ(somma16(32766, 1), 32767);
    EXPECT_EQ(guastoDi([] { (void)aIntero16(32767.5); }), guasti::kSovraccarico);
    EXPECT_EQ(guastoDi([] { (void)aIntero16("40000"); }), guasti::kSovraccarico);
    EXPECT_EQ(guastoDi([] { (void)aIntero32(2147483648.0); }), guasti::kSovraccarico);
    EXPECT_EQ(guastoDi([] { (void)prodotto16(33, 1000); }), guasti::kSovraccarico);
    EXPECT_EQ(guastoDi([] { (void)somma16(-32768, -1); }), guasti::kSovraccarico);
    EXPECT_EQ(guastoDi([] { (void)aIntero16("dodici"); }), guasti::kTipo);
}

TEST(Conversioni, valoriDiVerita) {
    for (const char* vero : {"1", "-1", "0,1", "True", " vero ", "TRUE"})
        EXPECT_TRUE(aBooleano(vero)) << vero;
    for (const char* falso : {"0", "-0", "0,00", "False", "FALSO"})
        EXPECT_FALSE(aBooleano(falso)) << falso;
    EXPECT_EQ(aIntero16("True"), kVero);
    for (const char* nessuno : {"", "si", "verosimile"})
        EXPECT_EQ(guastoDi([&] { (void)aBooleano(nessuno); }), guasti::kTipo) << nessuno;
}

TEST(Conversioni, numeroATesto) {
    const std::pair<float, const char*> casi[] = {{12000, "12000"},    {8752.5F, "8752.5"}, {0.1F, "0.1"},
                                                  {-0.0F, "0"},        {-15, "-15"},        {1e7F, "1E+07"},
                                                  {9999999, "9999999"}};
    for (const auto& [valore, testo] : casi)
        EXPECT_EQ(aTesto(valore), testo);
    EXPECT_EQ(aTesto(48.25F, ','), "48,25");
    EXPECT_EQ(aTesto(std::int32_t{-2147483647 - 1}), "-2147483648");
}

TEST(Conversioni, testi) {
    EXPECT_EQ(trim("  a b \t "), "a b \t");
    EXPECT_EQ(trim("   "), "");
    EXPECT_TRUE(ugualeSenzaMaiuscole("PrimoPiano.EXE", "primopiano.exe"));
    EXPECT_FALSE(ugualeSenzaMaiuscole("Sfondo", "Sfondo0"));
    EXPECT_EQ(minuscolo("CAFFÈ"), "caffÈ"); // only ASCII has a lower case here
}

TEST(Conversioni, caratteriUtf8) {
    struct Caso {
        std::string byte;
        std::u32string caratteri;
    };
    const Caso casi[] = {
        {"aà€😀", U"aà€😀"},
        {"\xC3", U"\uFFFD"},                               // cut in the middle
        {"\xE2\x82z", U"\uFFFD\uFFFDz"},                   // a continuation missing
        {"\x80", U"\uFFFD"},                               // a continuation alone
        {"\xC0\xAF", U"\uFFFD\uFFFD"},                     // overlong
        {"\xF0\x8F\xBF\xBF", U"\uFFFD\uFFFD\uFFFD\uFFFD"}, // overlong too
        {"\xED\xA0\x80", U"\uFFFD\uFFFD\uFFFD"},           // half of a surrogate pair
        {"\xF4\x90\x80\x80", U"\uFFFD\uFFFD\uFFFD\uFFFD"}, // beyond the last character
    };
    for (const auto& c : casi) {
        std::u32string letti;
        std::string riscritti;
        for (std::size_t i = 0; i < c.byte.size();) {
            letti += prossimoCarattere(c.byte, i);
            accodaCarattere(riscritti, letti.back());
        }
        EXPECT_EQ(letti, c.caratteri);
        EXPECT_EQ(caratteri(c.byte), c.caratteri.size());
        const bool bene = letti.find(kCarattereIgnoto) == letti.npos;
        EXPECT_EQ(riscritti == c.byte, bene);
    }
}

} // namespace
} // namespace lumigrafo
