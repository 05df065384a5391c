#include "platform/finti/finti.h"
#include "platform/guasto.h"
#include "settings/messaggio.h"

#include <chrono>
#include <gtest/gtest.h>
#include <string>

namespace lumigrafo::prova {

using namespace std::chrono_literals;

namespace {

TEST(Messaggio, quantoResta) {
    const struct {
        std::int16_t secondi;
        std::chrono::milliseconds durata;
    } casi[] = {{0, 2000ms}, {-1, 2000ms}, {1, 1000ms}, {4, 4000ms}, {32, 32000ms}};
    for (const auto& caso : casi) {
        TimersFinti timers;
        int chiusure = 0;
        Messaggio messaggio(timers, "Posizionamento avvenuto", caso.secondi, [&] { ++chiusure; });
        timers.avanza(caso.durata - 1ms);
        EXPECT_EQ(chiusure, 0) << caso.secondi;
        timers.avanza(1ms);
        EXPECT_EQ(chiusure, 1) << caso.secondi;
    }
    TimersFinti timers;
    for (const std::int16_t troppi : {std::int16_t{33}, std::int16_t{32767}})
        EXPECT_THROW(Messaggio(timers, "x", troppi, [] {}), Guasto) << troppi;
}

TEST(Messaggio, unTestoLungoSiScrivePiuPiccolo) {
    std::string accentato;
    for (int i = 0; i < 50; ++i)
        accentato += "è"; // two bytes each
    const struct {
        std::string testo;
        bool piccolo;
    } casi[] = {{std::string(50, 'a'), false},
                {std::string(51, 'a'), true},
                {accentato, false},
                {accentato + "!", true}};
    for (const auto& caso : casi) {
        TimersFinti timers;
        Messaggio messaggio(timers, caso.testo, 1, [] {});
        const Controllo& etichetta = messaggio.controlli()("lblMessaggio");
        EXPECT_EQ(etichetta.Caption(), caso.testo);
        EXPECT_EQ(etichetta.FontSize() == 14, caso.piccolo) << caso.testo;
        EXPECT_GE(etichetta.FontSize(), 14);
    }
}

TEST(Messaggio, siChiudeColClicSulTesto) {
    TimersFinti timers;
    int chiusure = 0;
    Messaggio messaggio(timers, "x", 1, [&] { ++chiusure; });
    messaggio.clic("imgSfondo");
    EXPECT_EQ(chiusure, 0);
    messaggio.clic("lblMessaggio");
    EXPECT_EQ(chiusure, 1);
}

TEST(Splash, dueSecondiEMezzo) {
    TimersFinti timers;
    int chiusure = 0;
    Splash splash(timers, [&] { ++chiusure; });
    timers.avanza(2499ms);
    EXPECT_EQ(chiusure, 0);
    timers.avanza(1ms);
    EXPECT_EQ(chiusure, 1);
}

} // namespace

} // namespace lumigrafo::prova
