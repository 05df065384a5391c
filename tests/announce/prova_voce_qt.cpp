#include "platform/qt/voce_qt.h"
#include "tests/announce/attesa.h"
#include "tests/announce/banco_voce.h"

#include <QCoreApplication>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lumigrafo::prova {
namespace {

using testing::ElementsAre;

constexpr std::chrono::seconds kLimite{30}; // a loaded machine starts the engine slowly

/// A machine whose speech service can't be reached: the run goes on in silence, and the queue doesn't pile
/// up.
TEST(VoceQt, WithoutAnEngineTextsPassInSilence) {
    qputenv("SPEECHD_ADDRESS", "unix_socket:/nonexistent/speechd.sock");
    int argc = 1;
    char nome[] = "prova";
    char* argv[] = {nome, nullptr};
    QCoreApplication applicazione(argc, argv);

    BancoVoce b; // its clock, log and state; the voice is the real one
    VoceQt voce;
    std::vector<std::string> notifiche;
    AnnunciatoreVocale annunciatore(voce, b.log, b.pompa, b.dati,
                                    [&](const std::string& testo) { notifiche.push_back(testo); });
    annunciatore.ScegliVoce();
    for (const char* testo : {"uno", "due", "tre"})
        annunciatore.AccodaAnnuncio(testo);
    EXPECT_THAT(b.loggati(), ElementsAre("uno")); // taken before the engine has said anything
    EXPECT_TRUE(attendi([&] { return b.dati.attiva; }, kLimite));
    EXPECT_THAT(b.loggati(), ElementsAre("uno", "due", "tre"));
    EXPECT_EQ(notifiche.size(), 1u);

    annunciatore.Parla("quattro");
    annunciatore.Parla("cinque"); // cuts the other off: one end for both
    EXPECT_FALSE(b.dati.attiva);
    EXPECT_TRUE(attendi([&] { return b.dati.attiva; }, kLimite));
    annunciatore.Parla("");
    EXPECT_TRUE(attendi([&] { return b.dati.attiva; }, kLimite));
}

} // namespace
} // namespace lumigrafo::prova
