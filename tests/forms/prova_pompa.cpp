#include "platform/qt/pompa_qt.h"

#include <QDialog>
#include <QLineEdit>
#include <QShortcut>
#include <QTest>
#include <QTimer>

#include <functional>
#include <gtest/gtest.h>
#include <utility>

using namespace lumigrafo;

namespace {

struct PompaProva : testing::Test {
    PompaQt pompa;
    QLineEdit campo;

    void SetUp() override { attiva(campo); }
    static void attiva(QWidget& w) {
        w.show();
        w.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&w));
    }
    /// As from the keyboard: through the window system's own queue.
    static void scrivi(QWidget& w, const char* testo) {
        for (const char* t = testo; *t; ++t)
            QTest::keyClick(w.windowHandle(), *t);
    }
    template <typename F>
    void dentroCedi(Ammessi ammessi, F azione) {
        QTimer::singleShot(0, &campo, azione);
        pompa.cedi("prova", ammessi);
    }
    void finoA(const char* testo) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return campo.text() == QString::fromUtf8(testo); }))
            << campo.text().toStdString();
    }
};

TEST_F(PompaProva, IlRestoPassaESubito) {
    int scatti = 0;
    dentroCedi(Ammessi::SenzaTastiera, [&] { ++scatti; });
    EXPECT_EQ(scatti, 1);
    dentroCedi(Ammessi::Tutti, [&] { scrivi(campo, "12"); });
    EXPECT_EQ(campo.text(), QStringLiteral("12"));
}

TEST_F(PompaProva, NessunTastoSiPerdeETuttiInOrdine) {
    dentroCedi(Ammessi::SenzaTastiera, [&] {
        scrivi(campo, "12");
        EXPECT_TRUE(campo.text().isEmpty());
        dentroCedi(Ammessi::SenzaTastiera, [&] { scrivi(campo, "34"); });
        scrivi(campo, "5");
    });
    EXPECT_TRUE(campo.text().isEmpty()) << "not in the middle of the routine";
    scrivi(campo, "67"); // come before the loop was back at the older ones
    finoA("1234567");
}

TEST_F(PompaProva, UnaPompaInternaCheAmmetteTuttoConsegna) {
    dentroCedi(Ammessi::SenzaTastiera, [&] {
        scrivi(campo, "12");
        dentroCedi(Ammessi::Tutti, [&] { scrivi(campo, "3"); });
        EXPECT_EQ(campo.text(), QStringLiteral("123"));
        scrivi(campo, "4");
        EXPECT_EQ(campo.text(), QStringLiteral("123"));
    });
    finoA("1234");
}

TEST_F(PompaProva, ChiConsumaUnTastoPuoCedereAncora) {
    // Each digit runs a routine that lets events through, as a scan does: the next digits must wait, in
    // order.
    QStringList letti;
    QObject::connect(&campo, &QLineEdit::textEdited, &campo, [&](const QString& t) {
        letti += t;
        pompa.cedi("scansione", Ammessi::SenzaTastiera);
        letti += QStringLiteral(".");
    });
    dentroCedi(Ammessi::SenzaTastiera, [&] { scrivi(campo, "123"); });
    finoA("123");
    EXPECT_EQ(letti.join(QLatin1Char(' ')), QStringLiteral("1 . 12 . 123 ."));
}

TEST_F(PompaProva, UnTastoInCamminoNonSiMetteInCoda) {
    // The console's window takes a scanner's Enter and works on the code before the key reaches the field.
    struct Filtro : QObject {
        std::function<void()> azione;
        bool eventFilter(QObject*, QEvent* evento) override {
            if (evento->type() == QEvent::KeyPress && azione)
                std::exchange(azione, {})();
            return false;
        }
    } filtro;
    filtro.azione = [&] { dentroCedi(Ammessi::SenzaTastiera, [&] { scrivi(campo, "12"); }); };
    campo.windowHandle()->installEventFilter(&filtro);
    scrivi(campo, "x");
    finoA("x12");
}

TEST_F(PompaProva, UnaFinestraModaleHaISuoiTasti) {
    dentroCedi(Ammessi::SenzaTastiera, [&] {
        QDialog dialogo;
        QLineEdit interno(&dialogo);
        QTimer::singleShot(0, &dialogo, [&] {
            attiva(dialogo);
            interno.setFocus();
            scrivi(dialogo, "99");
            EXPECT_EQ(interno.text(), QStringLiteral("99"));
            dialogo.accept();
        });
        dialogo.exec();
        attiva(campo);
        scrivi(campo, "1");
        EXPECT_TRUE(campo.text().isEmpty());
    });
    finoA("1");
}

TEST_F(PompaProva, AncheLeScorciatoieAspettano) {
    QShortcut scorciatoia(QKeySequence(Qt::CTRL | Qt::Key_R), &campo);
    int volte = 0;
    QObject::connect(&scorciatoia, &QShortcut::activated, &campo, [&] { ++volte; });
    dentroCedi(Ammessi::SenzaTastiera, [&] {
        QTest::keyClick(campo.windowHandle(), Qt::Key_R, Qt::ControlModifier);
        scrivi(campo, "1");
    });
    EXPECT_EQ(volte, 0);
    finoA("1");
    EXPECT_EQ(volte, 1);
}

} // namespace
