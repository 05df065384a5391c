#include "platform/guasto.h"
#include "tests/boards/banco_videata.h"
#include "tests/sostegno/guasto_atteso.h"

#include <chrono>
#include <gtest/gtest.h>
#include <string>

namespace lumigrafo::prova {
namespace {

using namespace std::chrono_literals;

constexpr Rettangolo kPosto{300, 150, 9000, 6000};

// What each key does on each board is told by the test of those who read them, beside the settings dialog.
TEST(CaricoVideata, repartiNumeriEMessaggio) {
    BancoVideata banco;
    for (int n = 1; n <= 9; ++n) // as a board with nine numbers leaves it
        banco.stato.ScriviIni("1", "Numero" + std::to_string(n), "A " + std::to_string(n));
    banco.videata->Mostra();
    EXPECT_EQ(banco.vista.titolo, "");
    EXPECT_EQ(banco.vista.posto, (Rettangolo{0, 0, 12000, 9000}));
    EXPECT_FALSE(banco.vista.ridotta);
    EXPECT_EQ(banco.numeri(0), "||||||");
    EXPECT_EQ(banco.numeri(1), "A 1|A 2|A 3|A 4|A 5|A 6|");
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(banco.controllo("picPannello", i).Visible()) << "a department not in use stays on show";
        EXPECT_EQ(banco.controllo("lblTitolo", i).Caption(),
                  banco.console.reparti.at(static_cast<std::size_t>(i)));
    }
    EXPECT_FALSE(banco.controllo("picComunicazione").Visible());
    EXPECT_EQ(banco.pompa.punti, std::vector<std::string>{"Videata/Load"});
}

TEST(CaricoVideata, unaChiaveSbagliataLoFerma) {
    for (const char* chiave :
         {"FontSizeTesto2", "FontSizeNumeri", "ColoreTesto1", "ColoreSfondo2", "NumeroLampeggi"}) {
        SCOPED_TRACE(chiave);
        BancoVideata banco;
        banco.imposta(chiave, "grande");
        EXPECT_EQ(guastoDi([&] { (void)banco.videata->controlli(); }), guasti::kTipo);
        EXPECT_FALSE(banco.videata->caricata());
        EXPECT_FALSE(banco.vista.aperta);
        EXPECT_EQ(banco.postoSalvato(), "- - - - ") << "a board that never came up saves no place";
    }
}

TEST(PostoVideata, ripresoUnaVoltaESalvatoAllaFine) {
    BancoVideata banco;
    banco.impostaPosto("-150", "30000.5", "9000", "6000,25");
    (void)banco.videata->controlli();
    EXPECT_EQ(banco.vista.posizionata, 0) << "the load places nothing";
    banco.videata->Mostra();
    EXPECT_EQ(banco.vista.posto, (Rettangolo{30000.5, -150, 9000, 6000.25}));
    banco.vista.posto = kPosto; // moved by the operator
    banco.vista.eventi.attivata();
    banco.videata->Mostra();
    EXPECT_EQ(banco.vista.posto, kPosto);
    banco.videata->Scarica();
    EXPECT_EQ(banco.postoSalvato(), "150 300 9000 6000 ");
    banco.videata->Scarica(); // nothing to close
    EXPECT_EQ(banco.vista.create, 1);

    banco.videata->Mostra();
    EXPECT_EQ(banco.vista.create, 2);
    EXPECT_EQ(banco.vista.posto, kPosto);
}

TEST(PostoVideata, unaChiaveSbagliataFermaLAttivazione) {
    BancoVideata banco;
    banco.impostaPosto("0", "0", "largo", "9000");
    EXPECT_THROW(banco.videata->Mostra(), Guasto);
    EXPECT_EQ(banco.vista.posizionata, 0);
}

TEST(FineVideata, ilComandoDiChiusuraScaricaESalva) {
    for (const char* nome : {"lblChiudi", "picChiudi"}) {
        BancoVideata banco;
        banco.videata->Mostra();
        banco.vista.eventi.clic("lblNumero3", 0);
        EXPECT_TRUE(banco.vista.aperta);
        const auto eventi = banco.vista.eventi;
        eventi.clic(nome, kSenzaIndice);
        EXPECT_FALSE(banco.videata->caricata()) << nome;
        EXPECT_FALSE(banco.vista.aperta);
        EXPECT_EQ(banco.postoSalvato(), "0 0 12000 9000 ");
    }
}

TEST(FineVideata, laVideataNuovaMostraQuelCheDiceIlFile) {
    BancoVideata banco;
    banco.stato.ScriviIni("1", "Numero3", "B 7");
    Controlli& vecchi = banco.videata->controlli();
    EXPECT_EQ(vecchi("lblNumero3", 1).Caption(), "B 7");
    banco.videata->Blinka(1);
    banco.timers.avanza(600ms);
    banco.videata->Scarica();
    EXPECT_EQ(banco.timers.accesi(), 0);
    std::filesystem::remove(banco.stato.file());
    banco.videata->Mostra();
    EXPECT_EQ(banco.numeri(1), "||||||");
    EXPECT_TRUE(banco.controllo("lblNumero3", 1).Visible());
    vecchi("lblNumero3", 1).Caption("B 8"); // a routine that an unload interrupted
    EXPECT_EQ(banco.numeri(1), "||||||");
}

TEST(FineVideata, scaricataNelMezzoDelCarico) {
    BancoVideata banco;
    banco.pompa.alPunto("Videata/Load", [&] { banco.videata->Scarica(); });
    banco.videata->Mostra();
    EXPECT_FALSE(banco.videata->caricata());
    EXPECT_FALSE(banco.vista.inVista);
    banco.videata->Mostra();
    EXPECT_TRUE(banco.vista.inVista);

    // The same with the board loaded anew before the interrupted load goes on: the new one isn't touched.
    banco.videata->Scarica();
    banco.pompa.alPunto("Videata/Load", [&] {
        const auto eventi = banco.vista.eventi;
        eventi.chiusa();
        banco.videata->Mostra();
        banco.vista.titolo = "nuova";
    });
    banco.videata->controlli()("lblNumero3", 0).Caption("A 1");
    EXPECT_TRUE(banco.vista.inVista);
    EXPECT_EQ(banco.vista.titolo, "nuova");
    EXPECT_EQ(banco.controllo("lblNumero3", 0).Caption(), "");
}

TEST(FineVideata, usataDuranteIlCaricoNonSiRicarica) {
    BancoVideata banco;
    banco.pompa.alPunto("Videata/Load", [&] {
        banco.videata->Blinka(0);
        banco.videata->Mostra();
    });
    (void)banco.videata->controlli();
    EXPECT_EQ(banco.vista.create, 1);
    EXPECT_TRUE(banco.vista.inVista);
    EXPECT_EQ(banco.timers.accesi(), 1);
}

} // namespace
} // namespace lumigrafo::prova
