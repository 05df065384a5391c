#include "platform/qt/aspetto.h"
#include "platform/qt/avvisi_qt.h"
#include "platform/qt/notifiche_qt.h"
#include "platform/qt/schermi_qt.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

using namespace lumigrafo;

namespace {

/// Answers the next box, which must show, by a key or by a button's name.
template <typename F>
Risposta rispondi(const Avviso& avviso, F azione) {
    QTimer::singleShot(0, qApp, [&azione] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        azione(*box);
    });
    return AvvisiQt().chiedi(avviso);
}

void premi(QMessageBox& box, const char* nome) {
    auto* b = box.findChild<QAbstractButton*>(QString::fromUtf8(nome));
    ASSERT_NE(b, nullptr) << nome;
    EXPECT_EQ(b->text(), QString::fromUtf8(nome));
    EXPECT_GE(b->height(), aspetto::kTocco);
    b->click();
}

TEST(Avvisi, DiconoEsattamenteCioCheDevono) {
    const Avviso domanda{"Sei  sicuro?\r\n<b>Davvero</b>", "Attenzione", Icona::Domanda, Bottoni::SiNo};
    EXPECT_EQ(rispondi(domanda,
                       [](QMessageBox& box) {
                           EXPECT_EQ(box.text(), QStringLiteral("Sei  sicuro?\n<b>Davvero</b>"));
                           EXPECT_EQ(box.textFormat(), Qt::PlainText);
                           EXPECT_EQ(box.windowTitle(), QStringLiteral("Attenzione"));
                           EXPECT_EQ(box.icon(), QMessageBox::Question);
                           premi(box, "Sì");
                       }),
              Risposta::Si);
    EXPECT_EQ(rispondi(domanda, [](QMessageBox& box) { premi(box, "No"); }), Risposta::No);
    EXPECT_EQ(rispondi(domanda, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }),
              Risposta::No);
    EXPECT_EQ(rispondi(domanda,
                       [](QMessageBox& box) {
                           QWidget* chi = box.focusWidget() ? box.focusWidget() : &box;
                           QTest::keyClicks(chi,
                                            QStringLiteral("5996501001233")); // a receipt is scanned over it
                           QTest::keyClick(chi, Qt::Key_Return);
                           EXPECT_TRUE(box.isVisible());
                           premi(box, "No");
                       }),
              Risposta::No);
    EXPECT_EQ(rispondi({"Fatto", "", Icona::Critica, Bottoni::Ok},
                       [](QMessageBox& box) {
                           EXPECT_EQ(box.windowTitle(), QStringLiteral("Lumigrafo"));
                           EXPECT_EQ(box.buttons().size(), 1);
                           premi(box, "OK");
                       }),
              Risposta::Ok);
}

TEST(Avvisi, UnTestoLungoSiLeggeTutto) {
    const Avviso lungo{
        "Errore di collegamento al database /srv/cassa/condivisa/della/festa/archivio.mdb\r\n\r\nPING SU "
        "192.168.1.10 NON RIUSCITO",
        "", Icona::Esclamazione, Bottoni::Ok};
    rispondi(lungo, [](QMessageBox& box) {
        const auto* testo = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        ASSERT_NE(testo, nullptr);
        EXPECT_GE(testo->width(), testo->sizeHint().width());
        EXPECT_GE(testo->height(), testo->heightForWidth(testo->width()));
        premi(box, "OK");
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
    for (const char* ip : {"1", "2", "3", "2", "4", "5"})
        notifiche.NotificaPopup(std::string("Errore connessione a lumigrafo con IP = 10.0.0.") + ip);
    QCoreApplication::processEvents();
    const auto tutte = notificheInVista();
    QString ordine;
    for (std::size_t i = 0; i < tutte.size(); ++i) {
        ordine += tutte[i]->text().back();
        EXPECT_TRUE(tutte[i]->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus));
        EXPECT_GT(tutte[i]->y(), i == 0 ? 0 : tutte[i - 1]->geometry().bottom());
    }
    EXPECT_EQ(ordine, QStringLiteral("3245")); // four of them, and none that says the same twice
    ASSERT_FALSE(tutte.empty());
    EXPECT_EQ(tutte.front()->text(),
              QStringLiteral("DEMONE LUMIGRAFO CUCINA\n\nErrore connessione a lumigrafo con IP = 10.0.0.3"));
    QTest::mouseClick(tutte.front(), Qt::LeftButton);
    EXPECT_EQ(notificheInVista().size(), 3u);
    for (QLabel* resto : notificheInVista())
        resto->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace
