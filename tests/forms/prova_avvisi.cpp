#include "platform/qt/aspetto.h"
#include "platform/qt/avvisi_qt.h"
#include "platform/qt/schermi_qt.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

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

} // namespace
