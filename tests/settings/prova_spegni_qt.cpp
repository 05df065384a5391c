#include "platform/finti/finti.h"
#include "settings/qt/spegni_qt.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lumigrafo::prova {
namespace {

using testing::ElementsAre;

TEST(SpegniQt, AReceiptScannedOverItPressesNothing) {
    ProcessiFinti processi;
    AlimentazioneFinta alimentazione;
    UscitaFinta uscita;
    QTimer::singleShot(0, [] {
        QWidget* modale = QApplication::activeModalWidget();
        ASSERT_TRUE(modale);
        QWidget* chi = QApplication::focusWidget() ? QApplication::focusWidget() : modale;
        QTest::keyClicks(chi, QStringLiteral("5996501001233 "));
        QTest::keyClick(chi, Qt::Key_Return);
        EXPECT_TRUE(modale->isVisible());
        QTest::mouseClick(modale->findChild<QWidget*>(QStringLiteral("cmdAnnulla")), Qt::LeftButton);
    });
    mostraSpegni(processi, alimentazione, uscita);
    EXPECT_EQ(alimentazione.spegnimenti + alimentazione.riavvii, 0);
}

TEST(Spegni, EachButtonStopsTheCompanionAndDoesItsOwn) {
    Diario diario;
    ProcessiFinti processi(&diario);
    AlimentazioneFinta alimentazione;
    UscitaFinta uscita(&diario);
    Spegni spegni(processi, alimentazione, uscita, [&] { diario.emplace_back("indietro"); });
    spegni.clic("cmdSpegni");
    spegni.clic("cmdRiavvia");
    EXPECT_EQ(alimentazione.spegnimenti, 1);
    EXPECT_EQ(alimentazione.riavvii, 1);
    diario.clear();
    spegni.clic("cmdAnnulla");
    EXPECT_THROW(spegni.clic("cmdChiudi"), FineProcesso);
    EXPECT_THAT(diario,
                ElementsAre("indietro", "termina PrimoPiano.exe", "termina primopiano.exe", "fine 0"));
}

} // namespace
} // namespace lumigrafo::prova
