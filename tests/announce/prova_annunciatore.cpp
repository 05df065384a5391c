#include "tests/announce/banco_voce.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lumigrafo::prova {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kPunto = "Voice_EndStream/2";

class Annuncio : public testing::Test {
protected:
    void SetUp() override { b.annunciatore.ScegliVoce(); }
    void chiama(std::initializer_list<const char*> testi) {
        for (const char* testo : testi)
            b.annunciatore.AccodaAnnuncio(testo);
    }
    BancoVoce b;
};

TEST_F(Annuncio, QuickCallsAreSpokenInTurnAndLoggedWhenTheyStart) {
    chiama({"Numero A 1", "Numero  2", "Numero B 3"});
    EXPECT_THAT(b.diario, ElementsAre("Speak Numero A 1 -3 80"));
    EXPECT_THAT(b.loggati(), ElementsAre("Numero A 1"));
    b.voce.tace();
    EXPECT_THAT(b.diario, ElementsAre("Speak Numero A 1 -3 80", "Speak Numero  2 -3 80"));
    EXPECT_THAT(b.loggati(), ElementsAre("Numero A 1", "Numero  2"));
    EXPECT_FALSE(b.dati.attiva);
    b.voce.tace();
    b.voce.tace();
    EXPECT_THAT(b.loggati(), ElementsAre("Numero A 1", "Numero  2", "Numero B 3"));
    EXPECT_TRUE(b.dati.attiva);
    chiama({"Numero C 4"}); // free again: at once
    EXPECT_EQ(b.diario.back(), "Speak Numero C 4 -3 80");
}

TEST_F(Annuncio, WaitsForTheEndOfTheLoad) {
    b.dati.attiva = false;
    chiama({"Numero 1"});
    EXPECT_THAT(b.diario, IsEmpty());
    EXPECT_THAT(b.loggati(), IsEmpty());
}

TEST_F(Annuncio, ACallInsideThePumpGoesBehindTheOthers) {
    chiama({"uno", "due"});
    b.pompa.alPunto(kPunto, [this] {
        EXPECT_FALSE(b.dati.attiva);
        chiama({"tre"});
        EXPECT_THAT(b.diario, ElementsAre("Speak uno -3 80"));
    });
    b.voce.tace();
    EXPECT_THAT(b.loggati(), ElementsAre("uno", "due"));
    b.voce.tace();
    b.voce.tace();
    EXPECT_THAT(b.loggati(), ElementsAre("uno", "due", "tre"));
}

TEST_F(Annuncio, ATextSpokenAtOnceCutsInAndTheQueueGoesOnBehindIt) {
    chiama({"uno", "due"});
    b.annunciatore.Parla("Numero 5 in cassa, A");
    EXPECT_THAT(b.diario, ElementsAre("Speak uno -3 80", "Speak Numero 5 in cassa, A -3 80"));
    b.voce.tace();
    EXPECT_EQ(b.diario.back(), "Speak due -3 80");
    EXPECT_THAT(b.loggati(), ElementsAre("uno", "due")); // a text spoken at once isn't logged
    b.voce.tace();
    EXPECT_EQ(b.diario.size(), 3u);
    EXPECT_TRUE(b.dati.attiva);
}

TEST_F(Annuncio, ACallWaitsForATextSpokenAtOnce) {
    b.annunciatore.Parla("Spostare l'auto");
    chiama({"uno"});
    EXPECT_EQ(b.diario.size(), 1u);
    b.voce.tace();
    EXPECT_EQ(b.diario.back(), "Speak uno -3 80");
}

/// A message window opened inside the pump stays for minutes: a text is spoken from it, ends, and the queue
/// goes on. When the pump returns at last, nothing may be spoken twice or over the text that is on, and an
/// emptied queue isn't read.
TEST_F(Annuncio, ATextThatStartsAndEndsInsideThePumpTakesTheQueueOver) {
    for (const bool altroInCoda : {false, true}) {
        BancoVoce banco;
        banco.annunciatore.ScegliVoce();
        banco.annunciatore.AccodaAnnuncio("uno");
        banco.annunciatore.AccodaAnnuncio("due");
        if (altroInCoda)
            banco.annunciatore.AccodaAnnuncio("tre");
        banco.pompa.alPunto(kPunto, [&banco] {
            banco.annunciatore.Parla("subito");
            banco.voce.tace();
        });
        banco.voce.tace();
        EXPECT_THAT(banco.diario, ElementsAre("Speak uno -3 80", "Speak subito -3 80", "Speak due -3 80"));
        banco.voce.tace();
        EXPECT_EQ(banco.voce.parla(), altroInCoda);
        EXPECT_EQ(banco.loggati().size(), altroInCoda ? 3u : 2u);
    }
}

TEST_F(Annuncio, AnEmptyTextAtTheHeadStopsTheQueueForGood) {
    chiama({"uno", "", "due"});
    b.voce.tace();
    EXPECT_TRUE(b.dati.attiva);
    chiama({"tre"}); // the voice is free, but something waits
    EXPECT_FALSE(b.voce.parla());
    b.annunciatore.Parla("subito");
    b.voce.tace();
    EXPECT_THAT(b.diario, ElementsAre("Speak uno -3 80", "Speak subito -3 80"));
    EXPECT_THAT(b.loggati(), ElementsAre("uno"));
}

TEST_F(Annuncio, ALogThatCannotBeWrittenFailsTheCall) {
    std::filesystem::create_directory(b.cartella.percorso() / kFileLogVoce);
    EXPECT_THROW(chiama({"uno"}), Guasto);
    EXPECT_EQ(b.diario.size(), 1u);
}

TEST_F(Annuncio, TheOperatorLearnsThatThereIsNoEngine) {
    b.voce.manca();
    EXPECT_THAT(b.notifiche,
                ElementsAre("Sintesi vocale non disponibile: i numeri chiamati non verranno pronunciati."));
}

TEST(SceltaVoce, FirstDescriptionThatHoldsTheName) {
    struct Caso {
        std::vector<std::string> descrizioni;
        std::optional<std::size_t> scelta;
    };
    for (const Caso& caso : std::vector<Caso>{
             {{}, std::nullopt},
             {{"Elsa", "silvia", "SILVIA - Italian"}, std::nullopt},
             {{"Elsa", "ScanSoft Silvia_Full", "Silvia"}, 1},
             {{"Silvia"}, 0},
         }) {
        BancoVoce b;
        b.voce.descrizioni = caso.descrizioni;
        b.annunciatore.ScegliVoce();
        EXPECT_EQ(b.voce.scelta, caso.scelta);
    }
}

TEST(SceltaVoce, ATextSpokenAtOnceIsHeardAlsoWhereTheCallsAreSilent) {
    BancoVoce b;
    b.annunciatore.Parla("testo");
    EXPECT_TRUE(b.voce.accesa);
    EXPECT_THAT(b.diario, ElementsAre("Speak testo -3 80"));
}

} // namespace
} // namespace lumigrafo::prova
