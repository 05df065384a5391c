#include "tests/announce/banco_voce.h"

#include <gmock/gmock.h>

namespace lumigrafo::prova {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Does what a line of words says: "+uno" calls, "!uno" speaks at once, "." the voice falls silent; "@" and
/// words with commas between them: they happen inside the pump of the next end.
void esegui(BancoVoce& b, const std::string& parole, char fra = ' ') {
    std::istringstream da(parole);
    for (std::string p; std::getline(da, p, fra);)
        if (p[0] == '+')
            b.annunciatore.AccodaAnnuncio(p.substr(1));
        else if (p[0] == '!')
            b.annunciatore.Parla(p.substr(1));
        else if (p[0] == '.')
            b.voce.tace();
        else
            b.pompa.alPunto("Voice_EndStream/2", [&b, dentro = p.substr(1)] {
                EXPECT_FALSE(b.dati.attiva);
                esegui(b, dentro, ',');
            });
}

TEST(Annuncio, WhatIsSpokenAndLoggedInWhichOrder) {
    const struct {
        const char* passi;
        Diario detti;
        std::vector<std::string> loggati; ///< the calls alone, when they start
        bool libera;                      ///< the voice is, for the next call
    } casi[] = {
        // Quick calls are spoken in turn; behind the last one the next is spoken at once.
        {"+uno +due +tre", {"uno"}, {"uno"}, false},
        {"+uno +due +tre .", {"uno", "due"}, {"uno", "due"}, false},
        {"+uno +due +tre . .", {"uno", "due", "tre"}, {"uno", "due", "tre"}, false},
        {"+uno +due +tre . . .", {"uno", "due", "tre"}, {"uno", "due", "tre"}, true},
        {"+uno . +due", {"uno", "due"}, {"uno", "due"}, false},
        {"+uno +due @+tre .", {"uno", "due"}, {"uno", "due"}, false},
        {"+uno +due @+tre . . .", {"uno", "due", "tre"}, {"uno", "due", "tre"}, true},
        // A text spoken at once cuts in, and the queue goes on behind it.
        {"+uno +due !subito", {"uno", "subito"}, {"uno"}, false},
        {"+uno +due !subito .", {"uno", "subito", "due"}, {"uno", "due"}, false},
        {"+uno +due !subito . .", {"uno", "subito", "due"}, {"uno", "due"}, true},
        {"!subito +uno", {"subito"}, {}, false},
        {"!subito +uno .", {"subito", "uno"}, {"uno"}, false},
        // A message window opened inside the pump stays for minutes: a text is spoken from it, ends, and the
        // queue goes on. When the pump returns at last, nothing may be spoken twice or over the text that is
        // on, and an emptied queue isn't read.
        {"+uno +due @!subito,. .", {"uno", "subito", "due"}, {"uno", "due"}, false},
        {"+uno +due @!subito,. . .", {"uno", "subito", "due"}, {"uno", "due"}, true},
        {"+uno +due +tre @!subito,. .", {"uno", "subito", "due"}, {"uno", "due"}, false},
        {"+uno +due +tre @!subito,. . .", {"uno", "subito", "due", "tre"}, {"uno", "due", "tre"}, false},
        // An empty text at the head stops the queue for good: the voice is free, but something waits.
        {"+uno + +due .", {"uno"}, {"uno"}, true},
        {"+uno + +due . +tre", {"uno"}, {"uno"}, true},
        {"+uno + +due . +tre !subito .", {"uno", "subito"}, {"uno"}, true},
    };
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.passi);
        BancoVoce b;
        b.annunciatore.ScegliVoce();
        esegui(b, caso.passi);
        Diario detti = caso.detti;
        for (std::string& testo : detti)
            testo = "Speak " + testo + " -3 80"; // with the speed and the volume of the settings
        EXPECT_EQ(b.diario, detti);
        EXPECT_EQ(b.loggati(), caso.loggati);
        EXPECT_EQ(b.dati.attiva, caso.libera);
        EXPECT_EQ(b.voce.parla(), !caso.libera);
    }
}

TEST(Annuncio, WaitsForTheEndOfTheLoad) {
    BancoVoce b;
    b.annunciatore.ScegliVoce();
    b.dati.attiva = false;
    esegui(b, "+uno");
    EXPECT_THAT(b.diario, IsEmpty());
    EXPECT_THAT(b.loggati(), IsEmpty());
}

TEST(Annuncio, ALogThatCannotBeWrittenFailsTheCall) {
    BancoVoce b;
    std::filesystem::create_directory(b.cartella.percorso() / kFileLogVoce);
    EXPECT_THROW(esegui(b, "+uno"), Guasto);
    EXPECT_EQ(b.diario.size(), 1u);
}

TEST(Annuncio, TheOperatorLearnsThatThereIsNoEngine) {
    BancoVoce b;
    b.annunciatore.ScegliVoce();
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
