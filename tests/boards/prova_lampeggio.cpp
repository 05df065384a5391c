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

using namespace std::chrono_literals;

namespace {

struct Caso {
    const char* nome;
    std::int16_t numero;
    Lampeggio::Forma forma;
    int scatti;         ///< until the timer is off
    int nascosto;       ///< phases with the number hidden
    std::int16_t conta; ///< left behind
};

class DurataLampeggio : public testing::TestWithParam<Caso> {};

TEST_P(DurataLampeggio, scattoPerScatto) {
    const Caso& caso = GetParam();
    TimersFinti timers;
    std::string fasi;
    Lampeggio lampeggio(timers, caso.forma, caso.numero, [&](bool usuale) { fasi += usuale ? 'x' : '.'; });
    lampeggio.avvia();
    timers.avanza(299ms);
    EXPECT_EQ(fasi, "") << "the first phase comes with the first tick";
    timers.avanza(1ms);
    int scatti = 1;
    while (lampeggio.attivo() && scatti < 100) {
        timers.avanza(300ms);
        ++scatti;
    }
    EXPECT_EQ(scatti, caso.scatti);
    EXPECT_EQ(std::count(fasi.begin(), fasi.end(), '.'), caso.nascosto);
    EXPECT_EQ(fasi.front(), 'x');
    EXPECT_EQ(fasi.back(), 'x');
    EXPECT_EQ(lampeggio.conta(), caso.conta);

    lampeggio.avvia(); // what is left behind doesn't shorten the next one
    EXPECT_EQ(lampeggio.conta(), 0);
}

INSTANTIATE_TEST_SUITE_P(Casi, DurataLampeggio,
                         testing::Values(Caso{"venti", 20, Lampeggio::Forma::Diritta, 42, 20, 0},
                                         Caso{"ventiRovesciata", 20, Lampeggio::Forma::Rovesciata, 42, 20, 1},
                                         Caso{"zero", 0, Lampeggio::Forma::Diritta, 2, 0, 0},
                                         Caso{"zeroRovesciata", 0, Lampeggio::Forma::Rovesciata, 2, 0, 1},
                                         Caso{"negativo", -3, Lampeggio::Forma::Diritta, 1, 0, 0},
                                         Caso{"negativoRovesciata", -3, Lampeggio::Forma::Rovesciata, 1, 0,
                                              1}),
                         [](const auto& caso) { return std::string(caso.param.nome); });

TEST(Lampeggio, unDoppioTroppoGrandeFermaAlPrimoScatto) {
    TimersFinti timers;
    std::int16_t numero = 16384;
    Lampeggio lampeggio(timers, Lampeggio::Forma::Diritta, numero, [](bool) {});
    lampeggio.avvia();
    EXPECT_EQ(fallimento([&] { timers.avanza(300ms); }).first, guasti::kSovraccarico);
    numero = 16383;
    EXPECT_NO_THROW(timers.avanza(300ms));
}

TEST(Lampeggio, unSecondoNumeroRicominciaSenzaSpostareGliScatti) {
    BancoVideata banco;
    banco.imposta("NumeroLampeggi", 2);
    Controllo& numero = banco.controllo("lblNumero3", 0);
    banco.videata->Blinka(0);
    banco.timers.avanza(700ms); // shown at 300, hidden at 600
    EXPECT_FALSE(numero.Visible());
    banco.videata->Blinka(0);
    banco.timers.avanza(199ms);
    EXPECT_FALSE(numero.Visible());
    banco.timers.avanza(1ms); // 900: the running period goes on
    EXPECT_TRUE(numero.Visible());
    banco.timers.avanza(1499ms);
    EXPECT_EQ(banco.timers.accesi(), 1);
    banco.timers.avanza(1ms); // six ticks from the second call
    EXPECT_EQ(banco.timers.accesi(), 0);
    EXPECT_TRUE(numero.Visible());
}

TEST(Lampeggio, iPostiNonSiDisturbano) {
    BancoVideata banco;
    banco.imposta("NumeroLampeggi", 3);
    banco.videata->Blinka(0);
    banco.timers.avanza(300ms);
    banco.videata->Blinka(1);
    banco.timers.avanza(300ms);
    EXPECT_FALSE(banco.controllo("lblNumero3", 0).Visible());
    EXPECT_TRUE(banco.controllo("lblNumero3", 1).Visible());
    banco.timers.avanza(300ms);
    EXPECT_TRUE(banco.controllo("lblNumero3", 0).Visible());
    EXPECT_FALSE(banco.controllo("lblNumero3", 1).Visible());
    EXPECT_TRUE(banco.controllo("lblNumero2", 1).Visible()) << "only the newest number blinks";
    EXPECT_TRUE(banco.controllo("lblNumero3", 2).Visible());
    EXPECT_EQ(banco.timers.accesi(), 2);

    for (const std::int16_t indice : {-1, 3, 32767, -32768})
        banco.videata->Blinka(indice);
    EXPECT_EQ(banco.timers.accesi(), 2);
}

} // namespace

} // namespace lumigrafo::prova
