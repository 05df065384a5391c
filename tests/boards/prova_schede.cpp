#include "boards/colori.h"
#include "tests/boards/banco_videata.h"

#include <chrono>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace lumigrafo::prova {
namespace {

using namespace std::chrono_literals;
using enum TipoVideata;

TEST(Colori, schiaritiEScuriti) {
    struct Caso {
        Colore da, schiarito, scurito;
    };
    for (const Caso& c : {Caso{kNero, kNero, kNero}, Caso{kBianco, kBianco, rgb(205, 205, 205)},
                          Caso{rgb(30, 100, 255), rgb(45, 150, 255), rgb(0, 50, 205)},
                          // halves go to the even neighbour: 1.5 and 4.5, 7.5 and 10.5
                          Caso{rgb(1, 3, 5), rgb(2, 4, 8), kNero},
                          Caso{rgb(7, 169, 170), rgb(10, 254, 255), rgb(0, 119, 120)}}) {
        EXPECT_EQ(ColoreSchiarito(c.da), c.schiarito) << c.da.v;
        EXPECT_EQ(ColoreScurito(c.da), c.scurito) << c.da.v;
    }
    EXPECT_EQ(coloreSpostato(Colore(65280), 30), rgb(30, 255, 30));
}

TEST(Orizzontali, ilTerzoReparto) {
    struct Caso {
        TipoVideata tipo;
        bool terzo;
        Twip secondaTop, pubblicitaTop, pubblicitaAltezza;
        bool pubblicita;
    };
    for (const Caso& c : {Caso{frmLumigrafooRIZZ, true, 2925, 6810, 3525, true},
                          Caso{frmLumigrafooRIZZ, false, 3225, 5415, 5415, true},
                          Caso{frmLumigrafoOrizz9numeri, true, 3900, 6945, 3645, false},
                          Caso{frmLumigrafoOrizz9numeri, false, 4200, 7560, 3645, true}})
        for (const bool secondo : {true, false}) { // only the third one counts
            BancoVideata banco(c.tipo);
            banco.console.inUso = {true, secondo, c.terzo};
            EXPECT_EQ(banco.controllo("picPannello", 2).Visible(), c.terzo);
            EXPECT_TRUE(banco.controllo("picPannello", 1).Visible());
            EXPECT_EQ(banco.controllo("picPannello", 1).Top(), c.secondaTop);
            EXPECT_EQ(banco.controllo("picPubblicita").Top(), c.pubblicitaTop);
            EXPECT_EQ(banco.controllo("picPubblicita").Height(), c.pubblicitaAltezza);
            EXPECT_EQ(banco.controllo("picPubblicita").Visible(), c.pubblicita);
            EXPECT_EQ(banco.timers.accesi(), c.pubblicita ? 1 : 0);
        }
}

TEST(Sfumate, icoloriDeiPannelliEDelleCaselle) {
    for (const TipoVideata tipo :
         {frmLumigrafooRIZZ, frmLumigrafoOrizz9numeri, frmLumigrafo1Reparto, frmLumigrafo1Reparto9numeri}) {
        const RigaFamiglia& riga = famiglia(tipo);
        BancoVideata banco(tipo);
        for (int i = 0; i < riga.slot; ++i) {
            const std::string c = std::to_string(i);
            banco.imposta(("ColoreSfondo" + c).c_str(), rgb(20 + i, 40, 60).v);
            banco.imposta(("ColoreTesto" + c).c_str(), 255 - i);
            for (int n = 1; n <= 9; ++n)
                banco.stato.ScriviIni(c, "Numero" + std::to_string(n), "A " + c + std::to_string(n));
        }
        for (int i = 0; i < riga.slot; ++i) {
            const Colore base = rgb(20 + i, 40, 60);
            const Controllo& pannello = banco.controllo("picPannello", i);
            EXPECT_EQ(pannello.Sfumatura1(), base);
            EXPECT_EQ(pannello.Sfumatura2(), ColoreSchiarito(base));
            for (int n = 1; n <= riga.grandi; ++n)
                EXPECT_EQ(banco.controllo(nomeCasella(n), i).BackColor(),
                          riga.slot == 3 ? ColoreSchiarito(base) : base);
            for (int n = 1; n <= riga.numeri; ++n) {
                const Controllo& numero = banco.controllo(etichettaNumero(n), i);
                EXPECT_EQ(numero.ForeColor(), Colore(255 - i));
                EXPECT_EQ(numero.Caption(), "A " + std::to_string(i) + std::to_string(n));
            }
            if (riga.slot == 1) {
                EXPECT_EQ(banco.controllo("lblChiamati").ForeColor(), Colore(255));
                EXPECT_EQ(banco.controllo("lblChiamati").Caption(), "Già chiamati");
            }
        }
        EXPECT_EQ(banco.controllo("lblNumero3", 0).disegno().padre, "picNumero1(0)")
            << "the first box holds the newest";
    }
}

/// Text and box colours of the newest number: "text/top/bottom".
std::string colori(BancoVideata& banco) {
    const Controllo& casella = banco.controllo("picNumero1", 0);
    return std::to_string(banco.controllo("lblNumero3", 0).ForeColor().v) + "/" +
           std::to_string(casella.Sfumatura1().v) + "/" + std::to_string(casella.Sfumatura2().v);
}

TEST(Big, iColoriSiScambiano) {
    BancoVideata banco(frmLumigrafo1RepartoBig);
    EXPECT_EQ(colori(banco), "0/0/0") << "black numbers, unlike every other board";
    EXPECT_EQ(banco.controllo("lblChiamati").ForeColor(), kBianco);
    EXPECT_EQ(banco.controllo("picPannello", 0).Sfumatura2(), kBianco);
    banco.videata->Scarica();

    const Colore base = rgb(100, 60, 20);
    banco.imposta("ColoreTesto0", 255);
    banco.imposta("ColoreSfondo0", base.v);
    banco.imposta("NumeroLampeggi", 2);
    const std::string usuali = "255/" + std::to_string(rgb(50, 10, 0).v) + "/" + std::to_string(base.v);
    const std::string lampo = "0/16777215/16777215";
    EXPECT_EQ(colori(banco), usuali);
    EXPECT_EQ(banco.controllo("picPannello", 0).Sfumatura1(), base);
    banco.videata->Blinka(0);
    std::vector<std::string> fasi;
    while (banco.timers.accesi() > 0 && fasi.size() < 20) {
        banco.timers.avanza(300ms);
        fasi.push_back(colori(banco));
        EXPECT_TRUE(banco.controllo("lblNumero3", 0).Visible());
    }
    EXPECT_EQ(fasi, (std::vector<std::string>{usuali, lampo, usuali, lampo, usuali, usuali}));
    EXPECT_EQ(banco.controllo("lblNumero2", 0).ForeColor(), Colore(255));
}

TEST(AvantiProssimo, casseEStrisce) {
    struct Caso {
        const char* quante;
        int pannelli;
        bool unaRiga;
    };
    for (const Caso& c : {Caso{"", 5, true}, Caso{"5", 5, true}, Caso{"6", 4, false}, Caso{"4", 4, false},
                          Caso{"3", 3, false}, Caso{"2", 2, true}, Caso{"1", 1, false}, Caso{"0", 0, false},
                          Caso{"-3", 0, false}}) {
        BancoVideata banco(frmAvantiProssimo);
        banco.imposta("QuanteCasse", c.quante);
        banco.imposta("PubblicitaMirtolanda", 0);
        int inVista = 0;
        for (int i = 0; i < 5; ++i) {
            inVista += banco.controllo("picPannello", i).Visible();
            EXPECT_EQ(banco.controllo("lblNumero", i).Caption(), c.pannelli == 2 && i < 2 ? "---" : "");
        }
        EXPECT_EQ(inVista, c.pannelli) << c.quante;
        EXPECT_EQ(banco.controllo("FraMirtolanda").Visible(), c.unaRiga) << c.quante;
        EXPECT_EQ(banco.controllo("FraMirtolanda2").Visible(), !c.unaRiga);
        EXPECT_EQ(banco.controllo("picPubblicita").Visible(), c.pannelli == 2);
        EXPECT_EQ(banco.timers.accesi(), c.pannelli == 2 ? 1 : 0);
    }
}

TEST(AvantiProssimo, dueCasseCrescono) {
    BancoVideata banco(frmAvantiProssimo);
    banco.imposta("QuanteCasse", 2);
    struct Caso {
        const char* nome;
        int indice;
        Rettangolo posto;
    };
    for (const Caso& c :
         {Caso{"picPannello", 0, {30, 15, 15375, 3240}}, Caso{"picPannello", 1, {30, 3285, 15375, 3150}},
          Caso{"picNumero", 1, {10170, 240, 4755, 2452.5}}, Caso{"lblNumero", 1, {240, 0, 4320, 2452.5}},
          Caso{"lblDescrCassa", 0, {570, 195, 6270, 3034.5}}, Caso{"lblCassa", 0, {6695, 195, 2340, 2655}},
          Caso{"lblCassa", 2, {6195, 195, 2340, 1770}},
          Caso{"picPubblicita", kSenzaIndice, {15, 6435, 15360, 4320}}}) {
        const Rettangolo r = banco.controllo(c.nome, c.indice).Posto();
        EXPECT_NEAR(r.left.v, c.posto.left.v, 1e-6) << c.nome;
        EXPECT_NEAR(r.top.v, c.posto.top.v, 1e-6) << c.nome;
        EXPECT_NEAR(r.width.v, c.posto.width.v, 1e-6) << c.nome;
        EXPECT_NEAR(r.height.v, c.posto.height.v, 1e-6) << c.nome;
    }
    EXPECT_NEAR(banco.controllo("lblCassa", 1).FontSize(), 122.4, 1e-6);
}

TEST(AvantiProssimo, iColoriSonoUnoPerTutte) {
    BancoVideata banco(frmAvantiProssimo);
    banco.imposta("QuanteCasse", 3);
    banco.imposta("ColoreTesto0", 1);
    banco.imposta("ColoreSfondo0", rgb(10, 200, 240).v);
    for (int i = 0; i < 5; ++i) { // used or not
        EXPECT_EQ(banco.controllo("lblCassa", i).ForeColor(), Colore(1));
        EXPECT_EQ(banco.controllo("lblDescrCassa", i).ForeColor(), Colore(1));
        EXPECT_EQ(banco.controllo("picPannello", i).Sfumatura2(), rgb(10, 200, 240));
        EXPECT_EQ(banco.controllo("picPannello", i).Sfumatura1(), rgb(40, 230, 255));
        EXPECT_EQ(banco.controllo("picNumero", i).BackColor(), kBianco);
    }
}

TEST(AvantiProssimo, lampeggiaSenzaRicominciare) {
    BancoVideata banco(frmAvantiProssimo);
    banco.imposta("NumeroLampeggi", 2);
    banco.imposta("QuanteCasse", 3);
    banco.videata->Lampeggia("B", "7");
    const Controllo& numero = banco.controllo("lblNumero", 1);
    EXPECT_EQ(numero.Caption(), "7");
    banco.timers.avanza(600ms);
    EXPECT_FALSE(numero.Visible());
    banco.videata->Lampeggia("B", "8");
    EXPECT_EQ(numero.Caption(), "8");
    banco.timers.avanza(1199ms);
    EXPECT_EQ(banco.timers.accesi(), 1);
    banco.timers.avanza(1ms); // six ticks from the first call
    EXPECT_EQ(banco.timers.accesi(), 0);
    EXPECT_TRUE(numero.Visible());
    for (const char* ignota : {"F", "b", "", "AB", "è"}) {
        banco.videata->Lampeggia(ignota, ignota);
        EXPECT_EQ(banco.controllo("lblNumero", 0).Caption(), ignota);
    }
    banco.videata->Lampeggia("E", "9");
    EXPECT_FALSE(banco.controllo("picPannello", 4).Visible()) << "a desk without a row shows nothing";
    banco.videata->Scarica();
    EXPECT_EQ(banco.controllo("lblNumero", 0).Caption(), "") << "nothing is kept between runs";
}

TEST(OgniScheda, postoERiduzione) {
    for (const RigaFamiglia& riga : kFamiglia)
        for (const bool soloAndroid : {false, true})
            for (const bool ridotta : {false, true}) {
                SCOPED_TRACE(testing::Message() << riga.nome << soloAndroid << ridotta);
                BancoVideata banco(riga.tipo);
                banco.console.soloAndroid = soloAndroid;
                banco.ambiente.argomenti = ridotta ? "RIDOTTA" : "";
                const bool avanti = riga.tipo == frmAvantiProssimo, rizz = riga.tipo == frmLumigrafooRIZZ;
                const bool conRidotta = ridotta && (avanti || rizz || riga.tipo == frmLumigrafoOrizz9numeri ||
                                                    riga.tipo == frmLumigrafo1Reparto ||
                                                    riga.tipo == frmLumigrafo1Reparto9numeri);
                banco.videata->Mostra();
                EXPECT_EQ(banco.vista.ridotta, soloAndroid || conRidotta);
                EXPECT_TRUE(!banco.vista.ridotta || banco.vista.posizionata == 0);
                banco.videata->Riduci(false); // the operator wants to see it
                banco.vista.eventi.attivata();
                const bool ferma = avanti ? ridotta : soloAndroid || (conRidotta && !rizz);
                EXPECT_EQ(banco.vista.posizionata, ferma ? 0 : 1);
                banco.videata->Scarica();
                EXPECT_NE(banco.postoSalvato(), "- - - - ");
            }
}

} // namespace
} // namespace lumigrafo::prova
