#include "fiscale/escpos.h"
#include "tests/fiscale/banco.h"
#include "tests/fiscale/stampante.h"

#include <chrono>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lumigrafo::prova {
namespace {

using testing::HasSubstr;
using namespace std::chrono_literals;

TEST(Stampante, EachMoodGivesItsOutcomeInBoundedTime) {
    const struct {
        Umore umore;
        Fine fine;
        const char* testo; ///< of the box
        bool mandato;      ///< the receipt was sent
    } casi[] = {
        {Umore::Buona, Fine::Fatto, "", true},
        {Umore::Lenta, Fine::Fatto, "", true},
        {Umore::SenzaCarta, Fine::NonStampato, "La carta della stampante è finita.", false},
        {Umore::Aperta, Fine::NonStampato, "Il coperchio della stampante è aperto.", false},
        {Umore::Muta, Fine::NonStampato, "La stampante non comunica il suo stato.", false},
        {Umore::Insensata, Fine::NonStampato, "La stampante ha dato una risposta incomprensibile.", false},
        {Umore::ChiudeAMeta, Fine::Incerto, "stampa", true},
        {Umore::CartaAMeta, Fine::Incerto, "La carta della stampante è finita.", true},
        {Umore::CartaAllaFine, Fine::Incerto, "La carta della stampante è finita.", true},
        {Umore::FineInsensata, Fine::Incerto, "La stampante ha dato una risposta incomprensibile.", true},
    };
    for (const auto& caso : casi) {
        SCOPED_TRACE(static_cast<int>(caso.umore));
        Stampante stampante(caso.umore);
        BancoFiscale b(TipoDriver::Rete, "127.0.0.1:" + std::to_string(stampante.porta()));
        const auto inizio = std::chrono::steady_clock::now();
        EXPECT_EQ(b.emetti(7), caso.fine == Fine::Fatto);
        EXPECT_LT(std::chrono::steady_clock::now() - inizio, 8s);
        EXPECT_EQ(b.registro().size(), 1U);
        EXPECT_EQ(b.registro().at(0).fine, caso.fine);
        EXPECT_THAT(b.avviso(), HasSubstr(caso.testo));
        EXPECT_EQ(b.avviso().find("potrebbe essere già stato stampato") != std::string::npos,
                  caso.fine == Fine::Incerto);
        EXPECT_EQ(stampante.ricevuto().find("ORDINE A 12") != std::string::npos, caso.mandato);
        EXPECT_LE(stampante.tagli(), 1);       // never twice in one attempt
        if (caso.umore == Umore::CartaAMeta) { // it mustn't print the rest with new paper
            EXPECT_THAT(stampante.ricevuto(), testing::EndsWith(escpos::kScordaTutto));
        }
        if (caso.umore == Umore::Buona) {
            EXPECT_THAT(stampante.ricevuto(), HasSubstr("Lasagne al rag\x97"));
        }
    }
}

TEST(Stampante, NobodyThereAndAnAddressThatIsNone) {
    for (const char* indirizzo : {"127.0.0.1:1", "stampante!", "127.0.0.1:x", ""}) {
        SCOPED_TRACE(indirizzo);
        BancoFiscale b(TipoDriver::Rete, indirizzo);
        EXPECT_FALSE(b.emetti(7));
        EXPECT_THAT(b.avviso(), HasSubstr("Lo scontrino non è stato stampato."));
    }
}

TEST(Stampante, ADeviceFileTakesTheBytes) {
    BancoFiscale b(TipoDriver::Dispositivo);
    b.impostazioni.controllaStato = false;
    b.impostazioni.indirizzo() = (b.cartella.percorso() / "lp").string();
    EXPECT_FALSE(b.emetti(7)); // a missing device isn't made
    static_cast<void>(sostituisciFile(b.impostazioni.indirizzo(), ""));
    EXPECT_TRUE(b.emetti(7));
    EXPECT_THAT(leggiFile(b.impostazioni.indirizzo()).value_or(""), HasSubstr("TOTALE"));
}

TEST(EscPos, EuroAndAccentsInBothPages) {
    EXPECT_EQ(escpos::codificato("€ àèéìòù ÀÈÌÒÙ ç °", false),
              "\xD5 \x85\x8A\x82\x8D\x95\x97 \xB7\xD4\xDE\xE3\xEB \x87 \xF8");
    EXPECT_EQ(escpos::codificato("€ àèéìòù", true), "\x80 \xE0\xE8\xE9\xEC\xF2\xF9");
    EXPECT_EQ(escpos::codificato("“l’orto” – 🍕", false), "\"l'orto\" - ?");
}

TEST(Coda, OnlyAPrintedJobIsDoneAndOneThatStaysIsTakenOut) {
    BancoFiscale b(TipoDriver::Coda, "cassa");
    const std::string qui = b.cartella.percorso().string();
    const std::string percorsoVecchio = std::getenv("PATH");
    ::setenv("PATH", (qui + ":" + percorsoVecchio).c_str(), 1);
    b.programma("lp", "cat > " + qui + "/grezzo; echo \"request id is $2-5 (1 file(s))\"");
    const auto uscito = [&](const std::string& come) { // an empty queue, and its history
        b.programma("lpstat",
                    "case \"$*\" in *' completed '*) printf 'cassa-55 x\\n\\tAlerts: job-canceled\\n" + come +
                        "cassa-4 x\\n\\tAlerts: job-completed-successfully\\n';; esac");
        return b.emetti(7);
    };
    EXPECT_TRUE(uscito("cassa-5 x\\n\\tStatus: \\n\\tAlerts: job-completed-successfully\\n"));
    for (const char* come : {"cassa-5 x\\n\\tAlerts: aborted-by-system\\n", ""}) {
        EXPECT_FALSE(uscito(come));
        EXPECT_EQ(b.registro().at(0).fine, Fine::Incerto);
    }
    EXPECT_THAT(leggiFile(b.cartella.percorso() / "grezzo").value_or(""), HasSubstr("TOTALE"));
    b.programma("lpstat", "echo 'cassa-55 operatore 1024'; echo 'cassa-5 operatore 1024'");
    b.programma("cancel", "echo \"$1\" > " + qui + "/tolto");
    EXPECT_FALSE(b.emetti(7));
    EXPECT_EQ(b.registro().at(0).fine, Fine::Incerto);
    EXPECT_EQ(leggiFile(b.cartella.percorso() / "tolto"), "cassa-5\n");
    b.programma("lp", "echo 'lp: no such queue' >&2; exit 1");
    EXPECT_FALSE(b.emetti(7));
    EXPECT_THAT(b.avviso(), HasSubstr("La coda di stampa cassa non accetta"));
    ::setenv("PATH", percorsoVecchio.c_str(), 1);
}

} // namespace
} // namespace lumigrafo::prova
