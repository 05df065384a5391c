#include "tests/announce/banco_voce.h"
#include "tests/sostegno/guasto_atteso.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lumigrafo::prova {
namespace {

using testing::ElementsAre;

class Log : public testing::Test {
protected:
    [[nodiscard]] std::vector<std::string> di(const char* nome) const {
        return righe(cartella.percorso() / nome);
    }
    CartellaTemporanea cartella;
    OrologioFinto orologio;
    RegistroLog log{cartella.percorso(), orologio};
};

TEST_F(Log, EachHourHasItsFile) {
    orologio.ora = {{2024, 3, 9}, 13, 59, 59};
    log.ScriviLog("Fine stampo fiscale");
    orologio.ora = {{2024, 3, 9}, 14, 0, 0};
    log.ScriviLog("Fine stampo fiscale");
    orologio.ora.secondo = 7;
    log.ScriviLog("");
    EXPECT_THAT(di("loglumigrafo_09032024_13.txt"), ElementsAre("13:59:59  Fine stampo fiscale"));
    EXPECT_THAT(di("loglumigrafo_09032024_14.txt"),
                ElementsAre("14:00:00  Fine stampo fiscale", "14:00:07  "));
    orologio.ora = {{2024, 12, 31}, 5, 6, 7};
    log.ScriviLog("Non trovato id_scontrino per A 12");
    EXPECT_THAT(di("loglumigrafo_31122024_05.txt"),
                ElementsAre("05:06:07  Non trovato id_scontrino per A 12"));
}

TEST_F(Log, TheOthersAreAppendedToWithoutATime) {
    log.ScriviLogConnessioni("***********   RICHIESTA 7");
    log.ScriviLogConnessioni("");
    log.ScriviLogVoce("Numero  12");
    log.ScriviLogVoce("Menù à la carte");
    EXPECT_THAT(di("log_lumigrafoAndroid.txt"), ElementsAre("***********   RICHIESTA 7", ""));
    EXPECT_THAT(di("log.vocal.txt"), ElementsAre("Numero  12", "Menù à la carte"));
}

/// A folder in the file's place can be written neither at its end nor anew, whoever runs the test.
TEST_F(Log, ALineThatCannotBeWrittenIsAFailure) {
    const std::vector<void (*)(RegistroLog&)> scritture = {
        [](RegistroLog& l) { l.ScriviLog("x"); },
        [](RegistroLog& l) { l.ScriviLogConnessioni("x"); },
        [](RegistroLog& l) { l.ScriviLogVoce("x"); },
    };
    orologio.ora = {{2024, 3, 9}, 14, 5, 0};
    for (const char* nome : {"loglumigrafo_09032024_14.txt", kFileLogConnessioni, kFileLogVoce})
        std::filesystem::create_directory(cartella.percorso() / nome);
    RegistroLog altrove(cartella.percorso() / "manca", orologio);
    for (const auto scrivi : scritture) {
        EXPECT_EQ(fallimento([&] { scrivi(log); }).first, guasti::kAccesso);
        EXPECT_EQ(fallimento([&] { scrivi(altrove); }).first, guasti::kPercorso);
    }
}

#ifdef __linux__
TEST_F(Log, AFullDeviceIsAFailure) {
    std::filesystem::create_symlink("/dev/full", cartella.percorso() / kFileLogVoce);
    EXPECT_THROW(log.ScriviLogVoce("x"), Guasto);
}
#endif

} // namespace
} // namespace lumigrafo::prova
