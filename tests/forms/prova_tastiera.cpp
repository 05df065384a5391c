#include "forms/tastiera.h"

#include <gtest/gtest.h>
#include <string>

namespace lumigrafo::prova {
namespace {

const Tasto* cerca(const Tastiera& t, std::string_view scritta, AzioneTasto azione = AzioneTasto::Scrive) {
    for (const RigaTasti& riga : t.righe())
        for (const Tasto& tasto : riga)
            if (tasto.azione == azione && t.scritta(tasto) == scritta)
                return &tasto;
    return nullptr;
}

/// Touches the key that writes it, changing page and capitals where needed. False: no key writes it.
bool scrivi(Tastiera& t, std::string_view carattere) {
    for (const auto prima : {AzioneTasto::Scrive, AzioneTasto::Maiuscole, AzioneTasto::Simboli}) {
        if (const Tasto* cambio = cerca(t, "", prima))
            t.premi(*cambio);
        if (const Tasto* tasto = cerca(t, carattere))
            return t.premi(*tasto)->testo == carattere;
    }
    return false;
}

TEST(Tastiera, WritesAllThatAnItalianMessageNeeds) {
    for (const char* c : {"a",  "Z", "0", "9", "à", "è", "é", "ì", "ò", "ù", "À",  "È", "É", "Ì",
                          "Ò",  "Ù", " ", ",", ".", ";", ":", "!", "?", "'", "\"", "-", "_", "/",
                          "\\", "(", ")", "@", "&", "%", "€", "°", "+", "*", "=",  "#"}) {
        Tastiera t(Tastiera::Forma::Completa);
        EXPECT_TRUE(scrivi(t, c)) << c;
    }
    for (const char* c : {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", ".", "-"}) {
        Tastiera t(Tastiera::Forma::Numerica);
        EXPECT_TRUE(scrivi(t, c)) << c;
    }
}

TEST(Tastiera, OneTouchGivesOneCapitalAndTwoKeepThem) {
    Tastiera t(Tastiera::Forma::Completa);
    const Tasto& maiuscole = *cerca(t, "", AzioneTasto::Maiuscole);
    const Tasto& e = *cerca(t, "è");
    const auto battuta = [&] { return t.premi(e)->testo; };
    EXPECT_FALSE(t.premi(maiuscole));
    EXPECT_EQ(battuta(), "È");
    EXPECT_EQ(battuta(), "è");
    t.premi(maiuscole);
    t.premi(maiuscole);
    EXPECT_EQ(battuta(), "È");
    EXPECT_EQ(battuta(), "È");
    t.premi(maiuscole);
    EXPECT_EQ(battuta(), "è");
}

TEST(Tastiera, KeysFillTheirPlaceWithoutTouchingEachOther) {
    for (const auto forma : {Tastiera::Forma::Completa, Tastiera::Forma::Numerica}) {
        const auto posti = Tastiera(forma).disponi(961, 331, 4);
        EXPECT_EQ(posti.front().posto.x + posti.front().posto.y, 0);
        const RettangoloPixel ultimo = posti.back().posto;
        EXPECT_EQ(ultimo.x + ultimo.larghezza, 961);
        EXPECT_EQ(ultimo.y + ultimo.altezza, 331);
        for (std::size_t i = 1; i < posti.size(); ++i) {
            const RettangoloPixel a = posti[i - 1].posto, b = posti[i].posto;
            EXPECT_GE(b.larghezza, 48);
            EXPECT_GE(b.altezza, 48);
            EXPECT_TRUE(a.y == b.y ? b.x - a.x - a.larghezza == 4 : b.x == 0 && b.y - a.y - a.altezza == 4);
        }
    }
}

} // namespace
} // namespace lumigrafo::prova
