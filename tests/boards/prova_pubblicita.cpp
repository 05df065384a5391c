#include "boards/pubblicita.h"
#include "platform/guasto.h"
#include "tests/boards/banco_videata.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

namespace lumigrafo::prova {
namespace {

using namespace std::chrono_literals;

void crea(const CartellaTemporanea& cartella, std::initializer_list<const char*> nomi) {
    for (const char* nome : nomi)
        std::ofstream(cartella.percorso() / nome) << "x";
}

std::vector<std::string> giro(ElencoPubblicita& elenco, int quanti) {
    std::vector<std::string> nomi;
    for (int i = 0; i < quanti; ++i)
        nomi.push_back(elenco.prossimo().filename().string());
    return nomi;
}

TEST(ElencoPubblicita, nPiuUnoComeElencaIlDisco) {
    CartellaTemporanea cartella;
    crea(cartella, {"pubblicita3.jpg", "PUBBLICITA.JPG", "pubblicita sera.Jpg", "pubblicita.jpeg",
                    "altro.jpg", "la pubblicita.jpg", "pubblicita.png"});
    std::filesystem::create_directory(cartella.percorso() / "pubblicita-cartella.jpg");
    std::vector<std::string> atteso;
    for (const auto& voce : std::filesystem::directory_iterator(cartella.percorso()))
        if (const auto nome = voce.path().filename().string();
            nome == "pubblicita3.jpg" || nome == "PUBBLICITA.JPG" || nome == "pubblicita sera.Jpg")
            atteso.push_back(nome);
    atteso.emplace_back();
    ElencoPubblicita elenco(cartella.percorso());
    EXPECT_FALSE(elenco.vuoto());
    EXPECT_EQ(giro(elenco, 4), atteso);
    EXPECT_EQ(giro(elenco, 4), atteso) << "each listing begins anew";
}

TEST(ElencoPubblicita, laCartellaCambiaDuranteIlGiro) {
    CartellaTemporanea cartella;
    ElencoPubblicita elenco(cartella.percorso());
    EXPECT_TRUE(elenco.vuoto());
    EXPECT_EQ(giro(elenco, 2), (std::vector<std::string>{"", ""}));
    crea(cartella, {"pubblicita1.jpg"});
    EXPECT_EQ(giro(elenco, 1), (std::vector<std::string>{"pubblicita1.jpg"})) << "at the next tick";
    crea(cartella, {"pubblicita2.jpg"});
    EXPECT_EQ(giro(elenco, 1), (std::vector<std::string>{""}));
    const auto due = giro(elenco, 1);
    const std::string altra = due[0] == "pubblicita1.jpg" ? "pubblicita2.jpg" : "pubblicita1.jpg";
    std::filesystem::remove(cartella.percorso() / altra);
    EXPECT_EQ(giro(elenco, 2), (std::vector<std::string>{"", due[0]}))
        << "a picture that is gone is no failure";
    std::filesystem::remove_all(cartella.percorso());
    EXPECT_EQ(giro(elenco, 3), (std::vector<std::string>{"", "", ""}));
}

TEST(Rotazione, tempiMisureEStriscia) {
    using enum TipoVideata;
    const struct {
        TipoVideata tipo;
        std::chrono::milliseconds intervallo;
        int margine;       ///< twips under a picture that is stretched
        Twip altezza;      ///< of the panel with three departments, two desks
        Twip altaStriscia; ///< what the strip takes of it; 0 where the settings don't show it
    } casi[] = {
        {frmLumigrafooRIZZ, 10000ms, 0, 3525, 540},    {frmLumigrafoOrizz9numeri, 10000ms, 600, 3645, 540},
        {frmLumigrafo1Reparto, 10000ms, 0, 4815, 540}, {frmLumigrafo1RepartoBig, 10000ms, 0, 3375, 0},
        {frmLumigrafoPerson, 32000ms, 0, 2985, 0},     {frmAvantiProssimo, 10000ms, 0, 4320, 0}};
    for (const auto& caso : casi)
        for (const auto& [valore, vale] :
             {std::pair("1", true), {"-1", false}, {"2", false}, {"0", false}, {"", false}}) {
            SCOPED_TRACE(std::string(famiglia(caso.tipo).nome) + " " + valore);
            const bool sempre = caso.tipo == frmAvantiProssimo, mai = caso.tipo == frmLumigrafoPerson;
            BancoVideata banco(caso.tipo);
            crea(banco.cartella, {"pubblicita1.jpg"});
            banco.console.inUso[2] = caso.tipo != frmLumigrafoOrizz9numeri;
            banco.imposta("QuanteCasse", 2);
            banco.imposta("ResizePubblicita", valore);
            banco.imposta("PubblicitaMirtolanda", valore);
            Controllo& pannello = banco.controllo("picPubblicita");
            banco.timers.avanza(caso.intervallo - 1ms);
            EXPECT_EQ(pannello.Figura(), "");
            banco.timers.avanza(1ms);
            EXPECT_EQ(pannello.Figura(), (banco.cartella.percorso() / "pubblicita1.jpg").string());
            pannello.Figura("segno");
            banco.timers.avanza(caso.intervallo);
            EXPECT_EQ(pannello.Figura(), "segno") << "the end of the listing: the picture stays";
            banco.timers.avanza(caso.intervallo);
            EXPECT_NE(pannello.Figura(), "segno");

            const bool stira = sempre || (vale && !mai);
            EXPECT_EQ(pannello.Adatta(), stira ? Adattamento::Stirata : Adattamento::Naturale);
            EXPECT_EQ(pannello.MargineFigura().v, stira ? caso.margine : 0);
            const bool striscia = vale && caso.altaStriscia > Twip(0);
            EXPECT_EQ(pannello.Height(), caso.altezza - (striscia ? caso.altaStriscia : Twip(0)));
            if (const Controllo* fra = banco.videata->controlli().cerca("FraMirtolanda")) {
                EXPECT_EQ(fra->Visible(), striscia || sempre);
            }
            EXPECT_EQ(pannello.Visible(), !mai);
        }
}

TEST(Striscia, ilTestoSiCambia) {
    for (const char* testo : {"", "Grazie ai volontari"}) {
        BancoVideata banco(TipoVideata::frmLumigrafo1Reparto);
        banco.imposta("PubblicitaMirtolanda", 1);
        banco.imposta("TestoPubblicitaMirtolanda", testo);
        const Controllo& riga = banco.controllo("lblMirtolanda");
        EXPECT_EQ(riga.Caption(), *testo ? testo : riga.disegno().caption);
        EXPECT_FALSE(riga.Caption().empty());
    }
}

TEST(PubblicitaBig, senzaFigureNonCEPannello) {
    BancoVideata banco(TipoVideata::frmLumigrafo1RepartoBig);
    banco.imposta("ResizePubblicita", "forse"); // not even read
    EXPECT_FALSE(banco.controllo("picPubblicita").Visible());
    EXPECT_EQ(banco.timers.accesi(), 0);
    banco.videata->Scarica();
    crea(banco.cartella, {"pubblicita1.jpg"});
    EXPECT_THROW((void)banco.videata->controlli(), Guasto);
}

} // namespace
} // namespace lumigrafo::prova
