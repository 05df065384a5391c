#include "forms/qt/finestra.h"
#include "forms/qt/griglia_widget.h"
#include "platform/guasto.h"
#include "platform/qt/aspetto.h"
#include "tests/forms/dimostrativo.h"

#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

using namespace lumigrafo;

namespace {

struct GrigliaProva : testing::Test {
    Controlli c{dimostrativo::kLayout};
    Griglia modello{3};
    Finestra f{c};
    GrigliaWidget& g{f.collegaGriglia("grid", 0, modello)};
    std::vector<std::pair<int, int>> clic;
    int puntatore = 0;

    void SetUp() override {
        riempi(100);
        g.alClic([this](int r, int col) { clic.emplace_back(r, col); });
        g.alPuntatore([this] { ++puntatore; });
        f.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&f));
        g.grab();
    }
    void riempi(int righe) {
        modello.Rows(0);
        modello.Rows(righe);
        for (int r = 0; r < righe; ++r)
            for (int col = 0; col < 3; ++col)
                modello.testo(r, col, "A  " + std::to_string(r * 3 + col));
    }
    void trascina(int da, int a) {
        QTest::mousePress(&g, Qt::LeftButton, {}, QPoint(50, da));
        for (int i = 1; i <= 10; ++i)
            QTest::mouseMove(&g, QPoint(50, da + (a - da) * i / 10));
        QTest::qWait(100); // the finger rests, so that the list doesn't run on
        QTest::mouseRelease(&g, Qt::LeftButton, {}, QPoint(50, a));
    }
    QColor coloreDi(int r, int col) {
        return g.grab().toImage().pixelColor(g.rettangolo(r, col).topLeft() + QPoint(3, 3));
    }
};

TEST_F(GrigliaProva, IlClicSceglieLaCella) {
    QTest::mouseClick(&g, Qt::LeftButton, {}, g.rettangolo(2, 1).center());
    EXPECT_EQ(clic, (std::vector{std::pair(2, 1)}));
    EXPECT_EQ(modello.Row(), 2);
    EXPECT_EQ(modello.Col(), 1);
    EXPECT_EQ(puntatore, 2);
    QTest::mousePress(&g, Qt::LeftButton, {}, g.rettangolo(1, 0).bottomRight() - QPoint(2, 2));
    QTest::mouseRelease(&g, Qt::LeftButton, {}, g.rettangolo(2, 1).topLeft() + QPoint(2, 2));
    EXPECT_EQ(clic.size(), 1U) << "pressed on one cell, released on another";
    riempi(1);
    g.grab();
    QTest::mouseClick(&g, Qt::LeftButton, {}, QPoint(20, 300));
    EXPECT_EQ(clic.back(), std::pair(-1, -1));
    EXPECT_EQ(modello.Row(), -1);
}

TEST_F(GrigliaProva, TrascinareScorreENonSceglie) {
    const int riga = g.altezzaRiga();
    trascina(300, 300 - 2 * riga);
    EXPECT_TRUE(clic.empty());
    EXPECT_EQ(g.scarto(), 2 * riga);
    QTest::mouseClick(&g, Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(clic, (std::vector{std::pair(2, 0)}));
    riempi(100);
    g.grab();
    EXPECT_EQ(g.scarto(), 2 * riga) << "a rebuild leaves the operator where he was";
    riempi(1);
    g.grab();
    EXPECT_EQ(g.scarto(), 0);
}

TEST_F(GrigliaProva, LaRotellaScorreFinoInFondo) {
    const auto gira = [&](int scatti) {
        QWheelEvent e(QPointF(20, 20), g.mapToGlobal(QPointF(20, 20)), {}, QPoint(0, scatti * 120),
                      Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&g, &e);
    };
    gira(-1);
    EXPECT_EQ(g.scarto(), 2 * g.altezzaRiga());
    gira(-1000);
    EXPECT_EQ(g.scarto(), 100 * g.altezzaRiga() - g.height());
    gira(1000);
    EXPECT_EQ(g.scarto(), 0);
    EXPECT_EQ(puntatore, 3);
}

TEST_F(GrigliaProva, ColoriDelleCelle) {
    EXPECT_EQ(coloreDi(0, 0), aspetto::kCarta);
    modello.sfondo(0, 0, rgb(255, 128, 128));
    modello.corrente(0, 1);
    modello.coloreSelezione(kGiallo);
    EXPECT_EQ(coloreDi(0, 0), QColor(255, 128, 128));
    EXPECT_EQ(coloreDi(0, 1), QColor(255, 255, 0));
    modello.corrente(0, 2);
    EXPECT_EQ(coloreDi(0, 1), aspetto::kCarta);
    modello.altezzaMinima(0);
    EXPECT_GE(g.altezzaRiga(), aspetto::kTocco) << "a row for a finger";
}

TEST(GrigliaSola, RegoleDelCollegamento) {
    Controlli c(dimostrativo::kLayout);
    Griglia modello(3);
    {
        Finestra f(c);
        EXPECT_THROW(f.collegaGriglia("grid", 5, modello), Guasto);
        EXPECT_THROW(f.collegaGriglia("lblTitolo", kSenzaIndice, modello), Guasto);
        f.collegaGriglia("grid", 0, modello);
    }
    modello.Rows(3); // the window is gone, and nobody listens any more
    c("lblTitolo").Caption("dopo");
}

} // namespace
