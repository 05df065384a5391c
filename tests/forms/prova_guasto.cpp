#include "platform/guasto.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <QProcess>

#include <fstream>
#include <gtest/gtest.h>
#include <string>

using namespace lumigrafo;

namespace {

// The box, then the end: no destructor of the windows below runs, no second box shows, no timer and no
// network goes on.
void finisce(const QString& modo, const std::string& detto) {
    SCOPED_TRACE(modo.toStdString());
    QProcess figlio;
    figlio.start(QStringLiteral(FIGLIO_GUASTO), {modo});
    ASSERT_TRUE(figlio.waitForFinished(20000));
    EXPECT_EQ(figlio.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(figlio.exitCode(), 1);
    EXPECT_EQ(figlio.readAllStandardOutput().toStdString(), "Lumigrafo|Errore di run-time " + detto);
}

TEST(GuastoNonPreso, MostraIlRiquadroEFinisceConUno) {
    finisce(QStringLiteral("rete"), "'6':\n\nOverflow|1|1\n");
    finisce(QStringLiteral("timer"), "'6':\n\nOverflow|1|1\n");
    finisce(QStringLiteral("eccezione"), "'51':\n\ncattiva|1|1\n");
    finisce(QStringLiteral("avvio"), "'6':\n\nOverflow|1|0\n");
    // Only its decoding, on another thread, shows that this file is no picture.
    const prova::CartellaTemporanea cartella;
    const std::string file = (cartella.percorso() / "rotta.jpg").string();
    std::ofstream(file) << "\xff\xd8\xff\xd9 and nothing more";
    finisce(QString::fromStdString(file),
            "'481':\n\n" + Guasto(guasti::kImmagine).descrizione() + ":\n" + file + "|1|0\n");
}

} // namespace
