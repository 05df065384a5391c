#include "platform/qt/timers_qt.h"

#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace lumigrafo;
using namespace std::chrono_literals;

namespace {

// Events are ordered by when they fall due, not timed: a slow machine delays all alike.
struct TimersProva : testing::Test {
    TimersQt timers;
    std::string ordine;
    std::unique_ptr<Timer> t = timers.crea(60ms, [this] { ordine += "t"; });

    void a(std::chrono::milliseconds quando, std::function<void()> azione) {
        QTimer::singleShot(quando, Qt::PreciseTimer, qApp, std::move(azione));
    }
    void traccia(std::chrono::milliseconds quando, const char* segno) {
        a(quando, [this, segno] { ordine += segno; });
    }
    void finche(char segno) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return ordine.find(segno) != std::string::npos; }));
        t->abilita(false);
    }
};

TEST_F(TimersProva, SpentoAllInizioEPeriodico) {
    EXPECT_FALSE(t->abilitato());
    traccia(90ms, "|");
    finche('|');
    EXPECT_EQ(ordine, "|");
    t->abilita(true);
    traccia(150ms, "!");
    finche('!');
    EXPECT_EQ(ordine, "|tt!");
}

TEST_F(TimersProva, RiaccendereNonRicomincia) {
    t->abilita(true);
    a(40ms, [&] { t->abilita(true); });
    traccia(85ms, "|");
    finche('|');
    EXPECT_EQ(ordine, "t|");
}

TEST_F(TimersProva, RiavviareRicomincia) {
    t->abilita(true);
    a(40ms, [&] { t->riavvia(); });
    traccia(85ms, "|");
    finche('|');
    EXPECT_EQ(ordine, "|");
}

TEST_F(TimersProva, UnNuovoPeriodoRicomincia) {
    t->abilita(true);
    a(40ms, [&] { t->intervallo(70ms); });
    traccia(85ms, "|");
    traccia(150ms, "!");
    finche('!');
    EXPECT_EQ(ordine, "|t!");
    ordine.clear();
    t->abilita(true);
    t->intervallo(0ms);
    EXPECT_TRUE(t->abilitato());
    traccia(120ms, "|");
    a(130ms, [&] {
        t->intervallo(20ms);
        traccia(30ms, "!");
    });
    finche('!');
    EXPECT_EQ(ordine, "|t!");
}

TEST_F(TimersProva, UnoScattoDentroLAltro) {
    int profondita = 0, massima = 0;
    const auto altro = timers.crea(5ms, [&] {
        massima = std::max(massima, ++profondita);
        if (massima < 2) {
            EXPECT_TRUE(QTest::qWaitFor([&] { return massima >= 2; }))
                << "a modal window would stop the clock";
        }
        --profondita;
    });
    altro->abilita(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return massima >= 2 && profondita == 0; }));
}

TEST_F(TimersProva, UnoScattoPuoDistruggereIlSuoTimer) {
    std::unique_ptr<Timer> breve;
    bool fatto = false;
    const std::string lungo(100, 'x');
    std::size_t letti = 0;
    breve = timers.crea(1ms, [&, lungo] {
        breve.reset();
        letti = lungo.size();
        fatto = true;
    });
    breve->abilita(true);
    ASSERT_TRUE(QTest::qWaitFor([&] { return fatto; }));
    EXPECT_EQ(letti, 100U);
}

} // namespace
