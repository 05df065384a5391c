#include "boards/lampeggio.h"
#include "platform/finti/finti.h"
#include "platform/guasto.h"
#include "tests/boards/banco_videata.h"
#include "tests/sostegno/guasto_atteso.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <string>

namespace lumigrafo::prova {
namespace {

using namespace std::chrono_literals;

TEST(Lampeggio, scattoPerScatto) {
    using enum Lampeggio::Forma;
    const struct {
        std::int16_t numero;
        Lampeggio::Forma forma;
        int scatti;         ///< until the timer is off
        int nascosto;       ///< phases with the number hidden
        std::int16_t conta; ///< left behind
    } casi[] = {{20, Diritta, 42, 20, 0}, {20, Rovesciata, 42, 20, 1}, {0, Diritta, 2, 0, 0},
                {0, Rovesciata, 2, 0, 1}, {-3, Diritta, 1, 0, 0},      {-3, Rovesciata, 1, 0, 1}};
    for (const auto& caso : casi) {
        SCOPED_TRACE(testing::Message() << caso.numero << (caso.forma == Rovesciata ? " reversed" : ""));
        TimersFinti timers;
        std::string fasi;
        Lampeggio lampeggio(timers, caso.forma, caso.numero,
                            [&](bool usuale) { fasi += usuale ? 'x' : '.'; });
        lampeggio.avvia();
        timers.avanza(299ms);
        EXPECT_EQ(fasi, "") << "the first phase comes with the first tick";
        timers.avanza(1ms);
        int scatti = 1;
        for (; lampeggio.attivo() && scatti < 100; ++scatti)
            timers.avanza(300ms);
        EXPECT_EQ(scatti, caso.scatti);
        EXPECT_EQ(std::count(fasi.begin(), fasi.end(), '.'), caso.nascosto);
        EXPECT_EQ(fasi.front(), 'x');
        EXPECT_EQ(fasi.back(), 'x');
        EXPECT_EQ(lampeggio.conta(), caso.conta);

        lampeggio.avvia(); // what is left behind doesn't shorten the next one
        EXPECT_EQ(lampeggio.conta(), 0);
    }
}

TEST(Lampeggio, unDoppioTroppoGrandeFermaAlPrimoScatto) {
    TimersFinti timers;
    std::int16_t numero = 16384;
    Lampeggio lampeggio(timers, Lampeggio::Forma::Diritta, numero, [](bool) {});
    lampeggio.avvia();
    EXPECT_EQ(guastoDi([&] { timers.avanza(300ms); }), guasti::kSovraccarico);
    numero = 16383;
    EXPECT_NO_THROW(timers.avanza(300ms));
}

TEST(Lampeggio, unSecondoNumeroRicominciaSenzaSpostareGliScatti) {
    BancoVideata banco;
    banco.imposta("NumeroLampeggi", 2);
    const Controllo& numero = banco.controllo("lblNumero3", 0);
    const auto dopo = [&](std::chrono::milliseconds tempo, bool inVista, int accesi) {
        banco.timers.avanza(tempo);
        EXPECT_EQ(numero.Visible(), inVista);
        EXPECT_EQ(banco.timers.accesi(), accesi);
    };
    banco.videata->Blinka(0);
    dopo(700ms, false, 1); // shown at 300, hidden at 600
    banco.videata->Blinka(0);
    dopo(199ms, false, 1);
    dopo(1ms, true, 1); // 900: the running period goes on
    dopo(1499ms, true, 1);
    dopo(1ms, true, 0); // six ticks from the second call
}

TEST(Lampeggio, iPostiNonSiDisturbano) {
    BancoVideata banco;
    banco.imposta("NumeroLampeggi", 3);
    banco.videata->Blinka(0);
    banco.timers.avanza(300ms);
    for (const std::int16_t indice : {1, -1, 3, 32767, -32768}) // the second place, and none
        banco.videata->Blinka(indice);
    for (const bool primo : {false, true}) {
        banco.timers.avanza(300ms);
        EXPECT_EQ(banco.controllo("lblNumero3", 0).Visible(), primo);
        EXPECT_EQ(banco.controllo("lblNumero3", 1).Visible(), !primo);
        EXPECT_TRUE(banco.controllo("lblNumero2", 1).Visible()) << "only the newest number blinks";
        EXPECT_TRUE(banco.controllo("lblNumero3", 2).Visible());
        EXPECT_EQ(banco.timers.accesi(), 2);
    }
}

} // namespace
} // namespace lumigrafo::prova
