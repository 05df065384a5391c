#include "tests/boards/banco_finestra.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPointer>
#include <QTest>

#include <gtest/gtest.h>

namespace lumigrafo::prova {
namespace {

TEST(FinestraVideata, siMostraDovEraESiSalvaAlClicSuChiudi) {
    BancoFinestra banco;
    banco.impostaPosto("150", "300", "9000", "6000");
    QPointer<QWidget> finestra = banco.mostra();
    ASSERT_TRUE(finestra);
    EXPECT_EQ(finestra->geometry(), QRect(20, 10, 600, 400));
    EXPECT_EQ(QFontMetrics(finestra->font()).horizontalAdvance(finestra->windowTitle()), 0);
    EXPECT_FALSE(finestra->windowTitle().isEmpty()) << "Qt would put the program's name there";
    finestra->move(-800, 40);
    QTest::mouseClick(figlio(finestra, "lblNumero1", 0), Qt::LeftButton);
    EXPECT_TRUE(finestra->isVisible());
    QTest::mouseClick(figlio(finestra, "lblChiudi"), Qt::LeftButton);
    EXPECT_FALSE(banco.videata->caricata());
    EXPECT_EQ(banco.postoSalvato(), "600 -12000 9000 6000 ");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(finestra) << "the window is gone, not only out of sight";
    banco.controllo("lblNumero3", 0).Caption("A 1");
    EXPECT_TRUE(banco.videata->caricata());
}

TEST(FinestraVideata, ilPostoRestaSeIlMonitorMancaAUnAvvio) {
    BancoFinestra banco;
    banco.impostaPosto("0", "900000", "9000", "6000");
    for (int avvio = 0; avvio < 2; ++avvio) {
        banco.mostra()->move(0, 0); // a window manager pulls it back to where people see it
        banco.videata->Scarica();
        EXPECT_EQ(banco.postoSalvato(), "0 900000 9000 6000 ");
    }
}

TEST(FinestraVideata, chiusaDalSistemaSiSalva) {
    BancoFinestra banco;
    banco.mostra()->close();
    EXPECT_FALSE(banco.videata->caricata());
    EXPECT_EQ(banco.postoSalvato(), "0 0 12000 9000 ");
}

TEST(FinestraVideata, ridottaNonCompare) {
    BancoFinestra banco;
    banco.console.soloAndroid = true;
    const QWidget* finestra = banco.mostra();
    ASSERT_TRUE(finestra);
    EXPECT_TRUE(finestra->isMinimized());
    banco.videata->Riduci(false);
    EXPECT_FALSE(finestra->isMinimized());
}

} // namespace
} // namespace lumigrafo::prova
