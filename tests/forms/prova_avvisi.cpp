#include "platform/qt/aspetto.h"
#include "platform/qt/avvisi_qt.h"
#include "platform/qt/finestra_avviso.h"
#include "platform/qt/notifiche_qt.h"
#include "platform/qt/schermi_qt.h"

#include <QAbstractButton>
#include <QLabel>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

using namespace lumigrafo;

namespace {

/// Answers the next box, which must show.
Risposta rispondi(const Avviso& avviso, const std::function<void(FinestraAvviso&)>& azione) {
    QTimer::singleShot(0, qApp, [&azione] {
        auto* box = dynamic_cast<FinestraAvviso*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        azione(*box);
    });
    return AvvisiQt().chiedi(avviso);
}

void premi(FinestraAvviso& box, const char* nome) {
    auto* b = box.findChild<QAbstractButton*>(QString::fromUtf8(nome));
    ASSERT_NE(b, nullptr) << nome;
    EXPECT_EQ(b->text(), QLatin1Char('&') + QString::fromUtf8(nome));
    EXPECT_GE(b->height(), aspetto::kTocco);
    b->click();
}

TEST(Avvisi, DiconoEsattamenteCioCheDevono) {
    const Avviso domanda{"Sei  sicuro?\r\n<b>Davvero</b>", "Attenzione", Icona::Domanda, Bottoni::SiNo};
    const Avviso detto{"Fatto", "", Icona::Critica, Bottoni::Ok};
    const auto si = [](FinestraAvviso& box) {
        EXPECT_EQ(box.testo(), QStringLiteral("Sei  sicuro?\n<b>Davvero</b>"));
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Attenzione"));
        EXPECT_EQ(box.icona(), Icona::Domanda);
        premi(box, "Sì");
    };
    const auto scontrino = [](FinestraAvviso& box) { // a receipt is scanned over it
        QWidget* chi = box.focusWidget() ? box.focusWidget() : &box;
        QTest::keyClicks(chi, QStringLiteral("5996501001233"));
        QTest::keyClick(chi, Qt::Key_Return);
        EXPECT_TRUE(box.isVisible());
        premi(box, "No");
    };
    const auto ok = [](FinestraAvviso& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Lumigrafo"));
        EXPECT_EQ(box.findChildren<QAbstractButton*>().size(), 1);
        premi(box, "OK");
    };
    EXPECT_EQ(rispondi(domanda, si), Risposta::Si);
    EXPECT_EQ(rispondi(domanda, [](auto& box) { premi(box, "No"); }), Risposta::No);
    EXPECT_EQ(rispondi(domanda, [](auto& box) { QTest::keyClick(&box, Qt::Key_Escape); }), Risposta::No);
    EXPECT_EQ(rispondi(domanda, scontrino), Risposta::No);
    EXPECT_EQ(rispondi(detto, ok), Risposta::Ok);
}

TEST(Avvisi, UnTestoLungoStaTuttoNelloSchermo) {
    const std::string percorso = "/srv/" + std::string(150, 'x') + "/archivio.mdb";
    std::string righe;
    for (int i = 0; i < 45; ++i)
        righe += "\r\nriga";
    for (const std::string& testo : {percorso, righe})
        rispondi({testo, "", Icona::Esclamazione, Bottoni::Ok}, [](FinestraAvviso& box) {
            EXPECT_TRUE(box.screen()->availableGeometry().contains(box.frameGeometry()));
            QTest::keyClick(&box, Qt::Key_Return);
            EXPECT_FALSE(box.isVisible());
        });
}

TEST(Schermi, UnoSoloEPrimarioEInTwip) {
    const auto schermi = SchermiQt().elenco();
    ASSERT_EQ(schermi.size(), 1U);
    EXPECT_TRUE(schermi[0].primario);
    EXPECT_EQ(schermi[0].tutto,
              (Rettangolo{0, 0, 800 * 15, 800 * 15})); // the display without a screen is 800 wide
}

std::vector<QLabel*> notificheInVista() {
    std::vector<QLabel*> tutte;
    for (QWidget* finestra : QApplication::topLevelWidgets())
        if (finestra->objectName() == QStringLiteral("notifica") && finestra->isVisible())
            tutte.push_back(qobject_cast<QLabel*>(finestra));
    std::sort(tutte.begin(), tutte.end(), [](auto* a, auto* b) { return a->y() < b->y(); });
    return tutte;
}

TEST(Notifiche, StannoUnaSopraLAltraSenzaPrendereLaTastiera) {
    NotificheQt notifiche;
    for (const char* ip : {"1", "2", "3", "4", "3", "5"})
        notifiche.NotificaPopup(std::string("Errore connessione a lumigrafo con IP = 10.0.0.") + ip);
    QCoreApplication::processEvents();
    QString ordine;
    int fondo = 0;
    for (const QLabel* notifica : notificheInVista()) {
        ordine += notifica->text().back();
        EXPECT_TRUE(notifica->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus));
        EXPECT_GT(notifica->y(), std::exchange(fondo, notifica->geometry().bottom()));
    }
    ASSERT_EQ(ordine, QStringLiteral("2435")); // four of them, and none that says the same twice
    EXPECT_EQ(notificheInVista().front()->text(),
              QStringLiteral("DEMONE LUMIGRAFO CUCINA\n\nErrore connessione a lumigrafo con IP = 10.0.0.2"));
    QTest::mouseClick(notificheInVista().front(), Qt::LeftButton);
    EXPECT_EQ(notificheInVista().size(), 3u);
    for (QLabel* resto : notificheInVista())
        resto->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace
