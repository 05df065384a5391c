#include <QMessageBox>
#include <QProcess>

#include <gtest/gtest.h>

namespace {

struct Caso {
    const char* modo;
    const char* detto;
};

class GuastoNonPreso : public testing::TestWithParam<Caso> {};

// The box, then the end: no destructor of the windows below runs, no second box shows, no timer goes on.
TEST_P(GuastoNonPreso, MostraIlRiquadroEFinisceConUno) {
    QProcess figlio;
    figlio.start(QStringLiteral(FIGLIO_GUASTO), {QString::fromLatin1(GetParam().modo)});
    ASSERT_TRUE(figlio.waitForFinished(20000));
    EXPECT_EQ(figlio.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(figlio.exitCode(), 1);
    EXPECT_EQ(figlio.readAllStandardOutput().toStdString(), GetParam().detto);
}

INSTANTIATE_TEST_SUITE_P(
    Modi, GuastoNonPreso,
    testing::Values(Caso{"timer", "Lumigrafo|Errore di run-time '6':\n\nOverflow|3|1\n"},
                    Caso{"eccezione", "Lumigrafo|Errore di run-time '51':\n\ncattiva|3|1\n"},
                    Caso{"avvio", "Lumigrafo|Errore di run-time '6':\n\nOverflow|3|0\n"}),
    [](const auto& prova) { return std::string(prova.param.modo); });

} // namespace
