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
    void finche(const char* segno) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return ordine.find(segno) != std::string::npos; }));
    }
};

TEST_F(TimersProva, SpentoAllInizioEPeriodico) {
    EXPECT_FALSE(t->abilitato());
    traccia(90ms, "|");
    finche("|");
    EXPECT_EQ(ordine, "|");
    t->abilita(true);
    finche("tt");
}

TEST_F(TimersProva, CioCheRicomincia) {
    struct Caso {
        const char* nome;
        void (*azione)(Timer&); ///< in the middle of the first period
        const char* atteso;     ///< by the time that period and half another would be over
    };
    for (const auto& [nome, azione, atteso] :
         {Caso{"turned on again", [](Timer& x) { x.abilita(true); }, "t|"},
          Caso{"started anew", [](Timer& x) { x.riavvia(); }, "|"},
          Caso{"another period", [](Timer& x) { x.intervallo(70ms); }, "|"},
          Caso{"no period", [](Timer& x) { x.intervallo(0ms); }, "|"}}) {
        t->intervallo(60ms);
        t->abilita(false);
        t->abilita(true);
        ordine.clear();
        a(40ms, [&, fai = azione] { fai(*t); });
        traccia(85ms, "|");
        finche("|");
        EXPECT_EQ(ordine, atteso) << nome;
        EXPECT_TRUE(t->abilitato());
        if (std::string_view(nome) == "no period")
            t->intervallo(20ms);
        ordine.clear();
        finche("t");
    }
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
