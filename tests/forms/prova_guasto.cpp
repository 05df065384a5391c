#include "platform/guasto.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <QProcess>

#include <fstream>
#include <gtest/gtest.h>
#include <string>

using namespace lumigrafo;

namespace {

struct Caso {
    const char* modo;
    const char* detto;
};

class GuastoNonPreso : public testing::TestWithParam<Caso> {};

// The box, then the end: no destructor of the windows below runs, no second box shows, no timer and no
// network goes on.
void finisce(const QString& modo, const std::string& detto) {
    QProcess figlio;
    figlio.start(QStringLiteral(FIGLIO_GUASTO), {modo});
    ASSERT_TRUE(figlio.waitForFinished(20000));
    EXPECT_EQ(figlio.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(figlio.exitCode(), 1);
    EXPECT_EQ(figlio.readAllStandardOutput().toStdString(), detto);
}

TEST_P(GuastoNonPreso, MostraIlRiquadroEFinisceConUno) {
    finisce(QString::fromLatin1(GetParam().modo), GetParam().detto);
}

// Only its decoding, on another thread, shows that the file is no picture.
TEST(GuastoNonPreso, UnaFotografiaRottaFinisceUguale) {
    const prova::CartellaTemporanea cartella;
    const std::string file = (cartella.percorso() / "rotta.jpg").string();
    std::ofstream(file) << "\xff\xd8\xff\xd9 and nothing more";
    finisce(QString::fromStdString(file), "Lumigrafo|Errore di run-time '481':\n\n" +
                                              Guasto(guasti::kImmagine).descrizione() + ":\n" + file +
                                              "|1|0\n");
}

INSTANTIATE_TEST_SUITE_P(
    Modi, GuastoNonPreso,
    testing::Values(Caso{"rete", "Lumigrafo|Errore di run-time '6':\n\nOverflow|1|1\n"},
                    Caso{"timer", "Lumigrafo|Errore di run-time '6':\n\nOverflow|1|1\n"},
                    Caso{"eccezione", "Lumigrafo|Errore di run-time '51':\n\ncattiva|1|1\n"},
                    Caso{"avvio", "Lumigrafo|Errore di run-time '6':\n\nOverflow|1|0\n"}),
    [](const auto& prova) { return std::string(prova.param.modo); });

} // namespace
