#include "announce/qt/frm_fiscale_qt.h"
#include "fiscale/configurazione.h"
#include "fiscale/qt/finestre_componente_qt.h"
#include "fiscale/utilita.h"
#include "forms/qt/tastiera_widget.h"
#include "tests/fiscale/banco.h"

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <gtest/gtest.h>

namespace lumigrafo::prova {
namespace {

/// What the operator does in the window that stands.
void quandoAperta(std::function<void(QWidget&)> azione) {
    QTimer::singleShot(0, [azione = std::move(azione)] {
        QWidget* modale = QApplication::activeModalWidget();
        ASSERT_TRUE(modale);
        ASSERT_TRUE(QTest::qWaitForWindowActive(modale));
        azione(*modale);
    });
}

void tocca(QWidget& finestra, const char* nome) {
    auto* w = finestra.findChild<QWidget*>(QString::fromLatin1(nome));
    ASSERT_TRUE(w) << nome;
    QTest::mouseClick(w, Qt::LeftButton);
}

TEST(FinestreFiscali, TheSettingsAreTypedAndSaved) {
    BancoFiscale b;
    FinestreComponenteQt finestre;
    b.nelleImpostazioni = [&](ConfigurazioneFiscale& c) { finestre.mostra(c); };
    quandoAperta([](QWidget& w) {
        tocca(w, "cmdDriver(1)");
        QTest::keyClicks(w.findChild<QWidget*>(QStringLiteral("txtIndirizzo")), QStringLiteral("10.0.0.7"));
        QTest::keyClicks(w.findChild<QWidget*>(QStringLiteral("txtPiede(0)")), QStringLiteral("Grazie"));
        auto* tastiera = dynamic_cast<TastieraWidget*>(w.findChild<QWidget*>(QStringLiteral("tastiera")));
        ASSERT_TRUE(tastiera);
        tocca(w, "txtIntestazione(3)");
        for (const char* tasto : {"è", "5"}) {
            const QRect posto = tastiera->rettangolo(QString::fromUtf8(tasto));
            EXPECT_GE(posto.height(), 48);
            QTest::mouseClick(tastiera, Qt::LeftButton, {}, posto.center());
        }
        EXPECT_LE(w.height(), 728); // of 768, with the frame
        tocca(w, "cmdSalva");
    });
    b.configura();
    const auto lette = leggiImpostazioniFiscali(b.cartella.percorso());
    EXPECT_EQ(lette.driver, TipoDriver::Rete);
    EXPECT_EQ(lette.indirizzo(), "10.0.0.7");
    EXPECT_EQ(lette.piede[0], "Grazie");
    EXPECT_EQ(lette.intestazione[3], "è5");
}

TEST(FinestreFiscali, TheUtilitiesShowTheRecordAndAScannerPressesNothing) {
    BancoFiscale b;
    ASSERT_TRUE(b.emetti(7));
    FinestreComponenteQt finestre;
    b.nelleUtilita = [&](UtilitaFiscale& u) {
        quandoAperta([&](QWidget& w) {
            QTest::keyClicks(&w, QStringLiteral("5996501001233 "));
            QTest::keyClick(&w, Qt::Key_Return);
            EXPECT_TRUE(w.isVisible());
            EXPECT_EQ(u.elenco().testo(0, 1), "A 12");
            EXPECT_TRUE(QTest::qWaitFor(
                [&] { return u.controlli()("lblStato").Caption().find("cartella") != std::string::npos; }));
            tocca(w, "cmdChiudi");
        });
        finestre.mostra(u);
    };
    b.componente()->MostraUtilita();
    EXPECT_EQ(b.registro().size(), 1U);
}

TEST(FinestreFiscali, TheSmallWindowIsPaintedWhenItIsShownAndGoesWithItsObject) {
    const auto inVista = [] {
        const auto finestre = QApplication::topLevelWidgets();
        return std::any_of(finestre.begin(), finestre.end(), [](const QWidget* w) {
            return w->objectName() == QStringLiteral("frmFiscale") && w->windowHandle()->isExposed();
        });
    };
    FrmFiscaleQt frmFiscale;
    auto mostrata = frmFiscale.mostra();
    EXPECT_TRUE(inVista());
    mostrata.reset();
    EXPECT_FALSE(inVista());
}

} // namespace
} // namespace lumigrafo::prova
