#include "platform/finti/finti.h"
#include "platform/guasto.h"
#include "settings/messaggio.h"

#include <chrono>
#include <gtest/gtest.h>
#include <string>

namespace lumigrafo::prova {
namespace {

using namespace std::chrono_literals;

/// The window that `crea` makes, of timers and of what closes it, goes after that time and not before.
void resta(std::chrono::milliseconds durata, auto crea) {
    TimersFinti timers;
    int chiusure = 0;
    const auto finestra = crea(timers, [&] { ++chiusure; });
    timers.avanza(durata - 1ms);
    EXPECT_EQ(chiusure, 0) << durata.count();
    timers.avanza(1ms);
    EXPECT_EQ(chiusure, 1) << durata.count();
}

TEST(Messaggio, quantoResta) {
    for (const auto& [secondi, durata] :
         {std::pair(0, 2000ms), {-1, 2000ms}, {1, 1000ms}, {4, 4000ms}, {32, 32000ms}})
        resta(durata, [s = static_cast<std::int16_t>(secondi)](Timers& timers, auto chiudi) {
            return Messaggio(timers, "Posizionamento avvenuto", s, chiudi);
        });
    resta(2500ms, [](Timers& timers, auto chiudi) { return Splash(timers, chiudi); });
    TimersFinti timers;
    for (const std::int16_t troppi : {std::int16_t{33}, std::int16_t{32767}})
        EXPECT_THROW(Messaggio(timers, "x", troppi, [] {}), Guasto) << troppi;
}

TEST(Messaggio, unTestoLungoSiScrivePiuPiccolo) {
    std::string accentato;
    for (int i = 0; i < 50; ++i)
        accentato += "è"; // two bytes each
    for (const auto& [testo, piccolo] : {std::pair(std::string(50, 'a'), false),
                                         {std::string(51, 'a'), true},
                                         {accentato, false},
                                         {accentato + "!", true}}) {
        TimersFinti timers;
        Messaggio messaggio(timers, testo, 1, [] {});
        const Controllo& etichetta = messaggio.controlli()("lblMessaggio");
        EXPECT_EQ(etichetta.Caption(), testo);
        EXPECT_EQ(etichetta.FontSize() == 14, piccolo) << testo;
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

} // namespace
} // namespace lumigrafo::prova
