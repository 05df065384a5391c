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
    banco.videata->Mostra();
    QPointer<QWidget> finestra = BancoFinestra::finestra();
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
        banco.videata->Mostra();
        BancoFinestra::finestra()->move(0, 0); // a window manager pulls it back to where people see it
        banco.videata->Scarica();
        EXPECT_EQ(banco.postoSalvato(), "0 900000 9000 6000 ");
    }
}

TEST(FinestraVideata, chiusaDalSistemaSiSalva) {
    BancoFinestra banco;
    banco.videata->Mostra();
    BancoFinestra::finestra()->close();
    EXPECT_FALSE(banco.videata->caricata());
    EXPECT_EQ(banco.postoSalvato(), "0 0 12000 9000 ");
}

TEST(FinestraVideata, laComunicazioneCopreTutto) {
    BancoFinestra banco;
    banco.videata->Mostra();
    QWidget* finestra = BancoFinestra::finestra();
    finestra->resize(1280, 720);
    banco.controllo("lblComunicazione").Caption("Si chiude alle 23");
    banco.controllo("picComunicazione").ZOrder();
    banco.controllo("picComunicazione").Visible(true);
    EXPECT_EQ(figlio(finestra, "picComunicazione")->geometry(), finestra->rect());
    EXPECT_EQ(figlio(finestra, "lblComunicazione")->size(), finestra->size());
    for (const QPoint punto : {QPoint(1, 1), QPoint(1260, 10), QPoint(640, 360)})
        EXPECT_TRUE(figlio(finestra, "picComunicazione")->isAncestorOf(finestra->childAt(punto)) ||
                    finestra->childAt(punto) == figlio(finestra, "picComunicazione"));
}

TEST(FinestraVideata, ridottaNonCompare) {
    BancoFinestra banco;
    banco.console.soloAndroid = true;
    banco.videata->Mostra();
    ASSERT_TRUE(BancoFinestra::finestra());
    EXPECT_TRUE(BancoFinestra::finestra()->isMinimized());
    banco.videata->Riduci(false);
    EXPECT_FALSE(BancoFinestra::finestra()->isMinimized());
}

} // namespace

} // namespace lumigrafo::prova
