#include "strumenti/schermo/qt/finestra_schermo.h"

#include <QTest>

#include <gtest/gtest.h>

namespace lumigrafo::schermo {
namespace {

TEST(FinestraSchermo, IlNumeroChiamatoLampeggiaFinoAllAzzeramento) {
    FinestraSchermo finestra(QStringLiteral("10.0.0.1, porta 8989"));
    finestra.resize(640, 360);
    finestra.show();
    const auto figura = [&] { return finestra.grab().toImage(); };
    const QImage attesa = figura();
    Tabellone t{"SERVIAMO", 0, {}, std::nullopt};
    t.gruppi[0] = {"Cucina", {"A 12", "A 11"}, rgb(177, 50, 30), kBianco};
    finestra.mostra(t);
    const QImage fermo = figura();
    EXPECT_NE(fermo, attesa);
    EXPECT_EQ(fermo.pixelColor(320, 340), QColor(177, 50, 30)); // one department fills the window

    t.chiamato = 0;
    finestra.mostra(t);
    EXPECT_EQ(figura(), fermo);
    EXPECT_TRUE(QTest::qWaitFor([&] { return figura() != fermo; }, 3000));
    EXPECT_TRUE(QTest::qWaitFor([&] { return figura() == fermo; }, 3000));
    EXPECT_TRUE(QTest::qWaitFor([&] { return figura() != fermo; }, 3000));
    t.chiamato.reset();
    finestra.mostra(t);
    EXPECT_EQ(figura(), fermo);
    t.font = 12;
    finestra.mostra(t);
    EXPECT_NE(figura(), fermo);
    t.gruppi[2] = {"Bar", {"B 7"}, rgb(20, 90, 160), kBianco};
    finestra.mostra(t);
    for (const auto& [x, sfondo] : {std::pair(160, QColor(177, 50, 30)), {480, QColor(20, 90, 160)}})
        EXPECT_EQ(figura().pixelColor(x, 340), sfondo); // two stand side by side
    t.gruppi = {};
    finestra.mostra(t);
    EXPECT_EQ(figura(), attesa);
    QTest::keyClick(&finestra, Qt::Key_Escape);
    EXPECT_FALSE(finestra.isVisible());
}

} // namespace
} // namespace lumigrafo::schermo
