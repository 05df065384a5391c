#include "console/qt/frmGestione.h"
#include "forms/qt/griglia_widget.h"
#include "platform/qt/pompa_qt.h"
#include "platform/qt/timers_qt.h"
#include "tests/console/banco.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QLineEdit>
#include <QTest>

namespace lumigrafo::prova {
namespace {

/// The real window over the real loop, with the waits taken out.
class FinestraGestione : public testing::Test {
protected:
    Banco b;
    PompaQt pompa;
    TimersQt timers;
    frmGestione finestra;

    void SetUp() override {
        b.reparti({1, 2});
        b.pompaVera = &pompa;
        b.timersVeri = &timers;
        b.finestraVera = &finestra;
    }

    void avvia() {
        finestra.collega(b.console());
        finestra.resize(1280, 1024);
        finestra.show();
        b.caricata();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&finestra));
        QApplication::processEvents();
    }

    template <typename W = QWidget>
    W* trova(const char* nome) {
        auto* w = finestra.findChild<W*>(QString::fromLatin1(nome));
        EXPECT_NE(w, nullptr) << nome;
        return w;
    }

    /// A key as the system's queue holds it: taken when events are let through.
    void accoda(char tasto) {
        const auto codice = static_cast<Qt::Key>(tasto == '\r' ? Qt::Key_Return : Qt::Key(tasto));
        const QString testo = QChar::fromLatin1(tasto);
        QWidget* chi = QApplication::focusWidget() ? QApplication::focusWidget() : &finestra;
        QCoreApplication::postEvent(chi, new QKeyEvent(QEvent::KeyPress, codice, Qt::NoModifier, testo));
        QCoreApplication::postEvent(chi, new QKeyEvent(QEvent::KeyRelease, codice, Qt::NoModifier, testo));
    }
    void accodaCodice(int numero) {
        char codice[24];
        std::snprintf(codice, sizeof codice, "5996501%05d0\r", numero);
        for (const char* c = codice; *c; ++c)
            accoda(*c);
    }
};

TEST_F(FinestraGestione, ControlsBearTheirNamesAndMenusTheirs) {
    avvia();
    EXPECT_EQ(finestra.objectName(), QStringLiteral("frmGestione"));
    for (const char* nome :
         {"grid(0)", "grid(2)", "lblReparto(1)", "lblPezzi(0)", "cmdModalita(0)", "cmdModalita(1)",
          "txtBarCode", "fraMessaggio", "lblNumeroPrec(7)", "cmdAllarga", "lblDB"})
        (void)trova(nome);
    for (const char* nome : {"mnuImposta", "mnuDatabase", "mnuFiscale"})
        (void)trova<QAction>(nome);
    EXPECT_FALSE(trova<QAction>("mnuFiscale")->isVisible());
    EXPECT_FALSE(trova("grid(2)")->isVisible());
}

TEST_F(FinestraGestione, FiftyCodesAtScannerSpeedAreAllWorkedOnInOrder) {
    for (int n = 1; n <= 50; ++n)
        b.archivio.ordine("A", n, {{1, 1}});
    avvia();
    int prossimo = 1;
    // A code each 300 ms: two or three arrive in the 700 ms that a panel stands, in the middle of one at
    // times.
    b.orologio.durante = [&] {
        for (int i = 0; i < 2 + prossimo % 2 && prossimo <= 50; ++i)
            accodaCodice(prossimo++);
    };
    accodaCodice(prossimo++);
    // Held keys come back one by one: qWaitFor would sleep 10 ms before each.
    for (QDeadlineTimer fine(30000); !b.archivio.coda().empty() && !fine.hasExpired();)
        QApplication::processEvents(QEventLoop::AllEvents, 50);
    EXPECT_EQ(b.archivio.coda(), "");
    std::vector<std::string> attesi, chiamati;
    for (int n = 50; n > 39; --n)
        attesi.push_back("A  " + std::to_string(n));
    for (int i = 0; i < 11; ++i)
        chiamati.push_back(b.ultimi.LeggiIni("Impo", "Ultimo_0_" + std::to_string(i)));
    EXPECT_EQ(chiamati, attesi);
    EXPECT_THAT(b.posti(0), ElementsAre("A 48", "A 49", "A 50", "A 47", "A 46", "A 45"));
}

TEST_F(FinestraGestione, KeysReachTheCodeWhateverHasTheFocusButNotFromADialog) {
    avvia();
    trova("cmdRiavvia")->setFocus();
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("59"));
    EXPECT_EQ(trova<QLineEdit>("txtBarCode")->text(), QStringLiteral("59"));
    QWidget dialogo;
    dialogo.setWindowModality(Qt::ApplicationModal);
    QLineEdit casella(&dialogo);
    dialogo.show();
    casella.setFocus();
    QTest::keyClicks(&casella, QStringLiteral("AB12"));
    EXPECT_EQ(casella.text(), QStringLiteral("AB12"));
    EXPECT_EQ(trova<QLineEdit>("txtBarCode")->text(), QStringLiteral("59"));
}

TEST_F(FinestraGestione, ATouchOnACellCallsItsNumberAndLeavesTheFocusToTheScanner) {
    for (int n = 1; n <= 5; ++n)
        b.archivio.ordine("A", n, {{1, 1}});
    avvia();
    auto* grid = dynamic_cast<GrigliaWidget*>(trova("grid(0)"));
    ASSERT_NE(grid, nullptr);
    QTest::mouseClick(grid, Qt::LeftButton, {}, grid->rettangolo(1, 0).center());
    EXPECT_EQ(b.posti(0)[2], "A 4");
    EXPECT_THAT(b.celle(0), ElementsAre("A  1", "A  2", "A  3", "", "A  5", ""));
    EXPECT_EQ(QApplication::focusWidget(), trova("txtBarCode"));
}

TEST_F(FinestraGestione, ATouchOnAnEmptyGridGivesTheScannerItsFieldBack) {
    avvia();
    finestra.setFocus();
    QTest::mouseClick(trova("grid(0)"), Qt::LeftButton, {}, {40, 40});
    EXPECT_EQ(QApplication::focusWidget(), trova("txtBarCode"));
}

TEST_F(FinestraGestione, WithACustomBoardTheFirstQuadrantCoversTheOthers) {
    b.reparti({1, 2, 3});
    b.imposta("TipoLumigrafo", 2);
    avvia();
    for (const char* coperta : {"grid(1)", "grid(2)"}) {
        const QWidget* w = trova(coperta);
        EXPECT_EQ(w->parentWidget()->childAt(w->geometry().center()), trova("grid(0)")) << coperta;
    }
}

TEST_F(FinestraGestione, TheOutcomePanelCoversTheWholeConsole) {
    b.archivio.ordine("A", 1, {{1, 1}});
    avvia();
    QImage vista;
    b.orologio.durante = [&] { vista = finestra.centralWidget()->grab().toImage(); };
    for (const char c : std::string("5996501000010\r"))
        accoda(c);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !vista.isNull(); }, 5000));
    const QColor verde(128, 255, 128);
    for (const QPoint p :
         {QPoint(2, 2), QPoint(vista.width() - 3, vista.height() - 3), QPoint(60, vista.height() / 2)})
        EXPECT_EQ(vista.pixelColor(p), verde) << p.x() << "," << p.y();
}

TEST_F(FinestraGestione, ClosingTheWindowEndsTheRun) {
    avvia();
    EXPECT_THROW(finestra.close(), FineProcesso);
    EXPECT_EQ(b.diario.back(), "fine 0");
}

} // namespace
} // namespace lumigrafo::prova
